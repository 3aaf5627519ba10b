#include "host/flightdeck/reach.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>
#include <qrencode.h>

#include <memory>

namespace host {
namespace {

// The interfaces' addresses of one family, without those of a link, which need the link's name too.
std::vector<std::string> InterfaceAddresses(int family) {
    ifaddrs* found = nullptr;
    if (getifaddrs(&found) != 0) return {};
    const std::unique_ptr<ifaddrs, void (*)(ifaddrs*)> keeper(found, freeifaddrs);
    std::vector<std::string> outer, loopback;
    for (const ifaddrs* at = found; at != nullptr; at = at->ifa_next) {
        if (at->ifa_addr == nullptr || at->ifa_addr->sa_family != family || (at->ifa_flags & IFF_UP) == 0)
            continue;
        const void* address = nullptr;
        if (family == AF_INET) {
            address = &reinterpret_cast<const sockaddr_in*>(at->ifa_addr)->sin_addr;
        } else {
            const auto& v6 = *reinterpret_cast<const sockaddr_in6*>(at->ifa_addr);
            if (IN6_IS_ADDR_LINKLOCAL(&v6.sin6_addr)) continue;
            address = &v6.sin6_addr;
        }
        char text[INET6_ADDRSTRLEN];
        if (inet_ntop(family, address, text, sizeof text) == nullptr) continue;
        ((at->ifa_flags & IFF_LOOPBACK) != 0 ? loopback : outer).emplace_back(text);
    }
    outer.insert(outer.end(), loopback.begin(), loopback.end());
    return outer;
}

}  // namespace

std::vector<std::string> DeckUrls(const std::string& address, int port, const std::string& token) {
    const bool is_v6 = address.find(':') != std::string::npos;
    std::vector<std::string> addresses;
    if (address == "0.0.0.0" || address == "::") addresses = InterfaceAddresses(is_v6 ? AF_INET6 : AF_INET);
    if (addresses.empty()) addresses = {address};
    std::vector<std::string> urls;
    for (const std::string& one : addresses)
        urls.push_back("http://" + (is_v6 ? '[' + one + ']' : one) + ':' + std::to_string(port) + '/' +
                       (token.empty() ? "" : "?token=" + token));
    return urls;
}

std::string DrawQrCode(const std::string& text) {
    constexpr int kQuiet = 4;  // modules of white around it
    const std::unique_ptr<QRcode, void (*)(QRcode*)> code(
        QRcode_encodeString8bit(text.c_str(), 0, QR_ECLEVEL_L), QRcode_free);
    if (!code) return {};
    const int width = code->width;
    const auto is_dark = [&](int row, int column) {
        const bool inside = row >= 0 && row < width && column >= 0 && column < width;
        return inside && (code->data[row * width + column] & 1) != 0;
    };
    // Black on white, whatever the terminal's own colours are: scanners want it so.
    constexpr const char* kLetters[] = {" ", "\u2580", "\u2584", "\u2588"};  // by dark above, dark below
    std::string drawn;
    for (int row = -kQuiet; row < width + kQuiet; row += 2) {
        drawn += "\x1b[30;107m";
        for (int column = -kQuiet; column < width + kQuiet; ++column)
            drawn += kLetters[(is_dark(row, column) ? 1 : 0) + (is_dark(row + 1, column) ? 2 : 0)];
        drawn += "\x1b[0m\n";
    }
    return drawn;
}

}  // namespace host
