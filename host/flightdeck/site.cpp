#include "host/flightdeck/site.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>

#include "host/flightdeck/exchange.h"
#include "host/flightdeck/request_text.h"
#include "host/flightdeck/stored_files.h"
#include "host/root_folder.h"

namespace host {
namespace {

constexpr std::string_view kPageType = "text/html; charset=utf-8";

bool IsWithin(const std::filesystem::path& file, const std::filesystem::path& folder) {
    return std::mismatch(folder.begin(), folder.end(), file.begin(), file.end()).first == folder.end();
}

SiteAnswer FileAnswer(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) return Refusal(404);
    return {200, MediaType(file), {std::istreambuf_iterator<char>(in), {}}};
}

// Of a screen alone, or of one unit for a phone or tablet.
bool IsPageOfOneUnit(std::string_view name) {
    constexpr std::string_view kScreenPage = "screen/";
    if (name.starts_with(kScreenPage)) return ScreenIndex(name.substr(kScreenPage.size())) != kScreens.size();
    return name == "cdu/l" || name == "cdu/r" || name == "tablet/l" || name == "tablet/r";
}

// A file of the page's folder, by one plain name; every page of one unit is the one page.
SiteAnswer PageFile(const DeckSettings& settings, std::string_view path) {
    std::string name(path.substr(std::min<std::size_t>(1, path.size())));
    if (name.empty() || IsPageOfOneUnit(name)) name = "index.html";
    const std::filesystem::path file = std::filesystem::path(settings.page_folder) / name;
    std::error_code failed;
    // A link in the folder is not followed: it may lead anywhere.
    if (!IsPlainFileName(name) ||
        !std::filesystem::is_regular_file(std::filesystem::symlink_status(file, failed)))
        return Refusal(404);
    return FileAnswer(file);
}

SiteAnswer Font(const DeckSettings& settings, std::string_view number) {
    const auto& fonts = settings.fonts;
    std::size_t index = 0;
    const auto [end, failed] = std::from_chars(number.data(), number.data() + number.size(), index);
    if (failed != std::errc{} || end != number.data() + number.size() || index >= fonts.size() ||
        fonts[index].second.empty())
        return Refusal(404);
    return FileAnswer(fonts[index].second);
}

// An image by the name that pictures give it: what came to the module as a stream, or a file under the root,
// nothing else.
SiteAnswer Image(const DeckSettings& settings, std::string_view encoded) {
    const std::optional<std::string> name = DecodePercent(encoded);
    const std::filesystem::path root = settings.root;
    std::string stream;
    if (name && settings.stream_image && settings.stream_image(*name, stream))
        return {200, MediaType(*name), std::move(stream)};
    std::error_code failed;
    std::filesystem::path file = name ? FindUnderRoot(root.string(), *name) : std::filesystem::path{};
    if (!file.empty()) file = std::filesystem::canonical(file, failed);
    if (failed || !IsWithin(file, std::filesystem::canonical(root, failed)) || failed ||
        !MediaType(file).starts_with("image/") || !std::filesystem::is_regular_file(file, failed))
        return Refusal(404);
    return FileAnswer(file);
}

struct RefusalRow {
    int status;
    std::string_view title, what_to_do;
};
constexpr RefusalRow kRefusals[] = {
    {400, "That is no flight plan",
     "A name that ends with <code>.rte</code> or <code>.PLN</code>, text in it, at most a megabyte."},
    {403, "This flight deck doesn't know you",
     "Open the address that <code>tz900 fly</code> has printed in its terminal: whole, with the token at its "
     "end, or by the QR code below it. Beside the machine that it runs on, no other name than the printed "
     "one "
     "is answered, and no page of another site."},
    {404, "There is no such page here",
     "The flight deck is at <a href=\"/\">/</a>. One screen alone is at <code>/screen/NAME</code>, NAME one "
     "of "
     "capt_outb capt_inb fo_inb fo_outb lower hud stby efb_l efb_r debug; one unit for a phone or tablet at "
     "<a href=\"/cdu/l\">/cdu/l</a>, <a href=\"/cdu/r\">/cdu/r</a>, <a href=\"/tablet/l\">/tablet/l</a> and "
     "<a href=\"/tablet/r\">/tablet/r</a>."},
    {405, "This flight deck takes nothing in here",
     "It shows pages, and stores flight plans. The flight deck is at <a href=\"/\">/</a>."},
    {500, "The flight plan could not be stored",
     "Look whether there is room, and whether the folder may be written."},
    {503, "The flight deck is full",
     "As many pages are open as it can serve. Close one that nobody needs, wait some seconds, and load this "
     "page again."},
};

}  // namespace

SiteAnswer Refusal(int status) {
    const auto* row = std::find_if(std::begin(kRefusals), std::end(kRefusals) - 1,
                                   [&](const RefusalRow& candidate) { return candidate.status == status; });
    std::string page =
        "<!doctype html><html lang=\"en\"><meta charset=\"utf-8\"><meta name=\"viewport\" "
        "content=\"width=device-width\"><title>";
    page.append(row->title).append("</title><h1>").append(row->title).append("</h1><p>");
    page.append(row->what_to_do).append("</p></html>\n");
    return {row->status, kPageType, std::move(page)};
}

bool IsPage(const SiteAnswer& answer) {
    return answer.status == 200 && answer.type == kPageType;
}

bool MayConnect(const DeckSettings& settings, const SiteRequest& request) {
    if (!request.origin.empty() && request.origin != "http://" + std::string(request.host)) return false;
    const std::string_view name = HostName(request.host);
    if (settings.token.empty())
        return name == "localhost" || name == "127.0.0.1" || name == "[::1]" || name == settings.address;
    return SameToken(QueryValue(request.target, "token"), settings.token) ||
           SameToken(CookieValue(request.cookies, "token"), settings.token);
}

std::string TokenCookie(const DeckSettings& settings, std::string_view target) {
    const std::string token = QueryValue(target, "token");
    if (token.empty() || token != settings.token) return {};
    return "token=" + token + "; HttpOnly; SameSite=Strict; Path=/";
}

SiteAnswer AnswerFor(const DeckSettings& settings, std::string_view path) {
    if (path.starts_with("/font/")) return Font(settings, path.substr(6));
    if (path.starts_with("/image/")) return Image(settings, path.substr(7));
    if (path == "/files") return ListStoredFiles(settings.root);
    if (path.starts_with("/route/") || path.starts_with("/panel/")) return StoredFile(settings.root, path);
    return PageFile(settings, path);
}

}  // namespace host
