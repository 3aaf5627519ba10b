#include "frame/active_runways.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>

#include "platform/host.h"

namespace {

constexpr int kOffsetRequest = 0xD000;
constexpr int kOffsetIcao = 0xD004;
constexpr int kOffsetToken = 0xD008;
constexpr int kOffsetRunways1 = 0xD00C;
constexpr int kOffsetRunways2 = 0xD010;
constexpr std::uint32_t kRequestRunways = 0x4BD9;
constexpr int kMaxTries = 30;

constexpr const char* kDesignators[] = {"", "L", "R", "C", "W"};

std::string RunwayName(std::uint8_t number, std::uint8_t designator) {
    if (number == 0) return {};
    char text[8];
    std::snprintf(text, sizeof text, "%02d%s", number,
                  designator < std::size(kDesignators) ? kDesignators[designator] : "");
    return text;
}

}  // namespace

std::array<std::string, 4> QueryActiveRunways(std::string_view icao) {
    std::array<std::string, 4> runways;
    if (Host().ipc_open() == 0) return runways;
    std::array<char, 4> ident = {};
    std::copy_n(icao.begin(), std::min(icao.size(), ident.size()), ident.begin());
    const auto ask = [&] {
        Host().ipc_write(kOffsetIcao, ident.data(), static_cast<int>(ident.size()));
        Host().ipc_write(kOffsetRequest, &kRequestRunways, sizeof kRequestRunways);
    };
    std::uint32_t token = 0;
    std::array<char, 4> echo = {};
    std::array<std::uint8_t, 8> answer = {};  // pairs of number and designator
    ask();
    Host().ipc_read(kOffsetToken, &token, sizeof token);
    Host().ipc_process();
    for (int tries = 0; tries < kMaxTries && answer[0] == 0; ++tries) {
        ask();
        Host().ipc_read(kOffsetIcao, echo.data(), static_cast<int>(echo.size()));
        Host().ipc_read(kOffsetToken, &token, sizeof token);
        Host().ipc_read(kOffsetRunways1, answer.data(), 4);
        Host().ipc_read(kOffsetRunways2, answer.data() + 4, 4);
        Host().ipc_process();
    }
    for (std::size_t i = 0; i < runways.size(); ++i)
        runways[i] = RunwayName(answer[2 * i], answer[2 * i + 1]);
    const std::uint32_t done = 0;
    Host().ipc_write(kOffsetRequest, &done, sizeof done);
    Host().ipc_process();
    Host().ipc_close();
    return runways;
}
