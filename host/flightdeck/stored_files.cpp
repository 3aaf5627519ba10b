#include "host/flightdeck/stored_files.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <optional>
#include <vector>

#include "host/flightdeck/request_text.h"
#include "host/root_folder.h"

namespace host {
namespace {

namespace fs = std::filesystem;

struct StoredKind {
    std::string_view path;    // before the name, in an address
    std::string_view folder;  // under the root
    std::vector<std::string_view> endings;
};
const StoredKind kRoutes{"/route/", "Velarion/TZ900/flightplans", {".rte", ".pln"}};
const StoredKind kPanels{"/panel/", "Velarion/TZ900/PanelStates", {".pnl"}};

std::string Lower(std::string text) {
    std::ranges::transform(text, text.begin(),
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

// One file of the folder, which every file system takes; the converter's own file is nobody's.
bool IsNameOf(const StoredKind& kind, const std::string& name) {
    constexpr std::size_t kLongest = 100;
    constexpr std::string_view kRefused = "\\/:*?\"<>|";
    if (name.empty() || name.size() > kLongest || name.front() == '.' || name.front() == ' ') return false;
    const bool plain = std::ranges::all_of(
        name, [&](char c) { return c >= ' ' && c <= '~' && kRefused.find(c) == std::string_view::npos; });
    const std::string lower = Lower(name);
    return plain && lower != "temp.rte" && std::ranges::any_of(kind.endings, [&](std::string_view ending) {
               return lower.ends_with(ending);
           });
}

fs::path FolderOf(const std::string& root, const StoredKind& kind) {
    return FindUnderRoot(root, std::string(kind.folder));
}

nlohmann::json NamesOf(const std::string& root, const StoredKind& kind) {
    std::vector<std::string> names;
    std::error_code failed;
    for (const fs::directory_entry& entry : fs::directory_iterator(FolderOf(root, kind), failed))
        if (entry.is_regular_file(failed) && IsNameOf(kind, entry.path().filename().string()))
            names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
}

// The name that an address of a kind tells; nothing for one that can't be.
std::optional<std::string> NameIn(std::string_view path, const StoredKind& kind) {
    if (!path.starts_with(kind.path)) return {};
    const std::optional<std::string> name = DecodePercent(path.substr(kind.path.size()));
    if (!name || !IsNameOf(kind, *name)) return {};
    return name;
}

bool IsText(std::string_view bytes) {
    return bytes.find('\0') == std::string_view::npos;
}

}  // namespace

SiteAnswer ListStoredFiles(const std::string& root) {
    const nlohmann::json names = {{"routes", NamesOf(root, kRoutes)}, {"panels", NamesOf(root, kPanels)}};
    return {200, "application/json", names.dump()};
}

SiteAnswer StoredFile(const std::string& root, std::string_view path) {
    for (const StoredKind* kind : {&kRoutes, &kPanels}) {
        const std::optional<std::string> name = NameIn(path, *kind);
        const fs::path folder = FolderOf(root, *kind);
        if (!name || folder.empty()) continue;
        const fs::path file = FindInFolder(folder, *name);
        std::error_code failed;
        if (file.empty() || !fs::is_regular_file(fs::symlink_status(file, failed))) return Refusal(404);
        std::ifstream in(file, std::ios::binary);
        return {200, "text/plain; charset=utf-8", {std::istreambuf_iterator<char>(in), {}}};
    }
    return Refusal(404);
}

SiteAnswer StoreFile(const std::string& root, std::string_view path, std::string_view bytes) {
    const std::optional<std::string> name = NameIn(path, kRoutes);
    if (!name || bytes.size() > kMostStoredBytes || !IsText(bytes)) return Refusal(400);
    fs::path folder = FolderOf(root, kRoutes);
    std::error_code failed;
    if (folder.empty()) {
        folder = fs::path(root) / kRoutes.folder;
        fs::create_directories(folder, failed);
    }
    const fs::path there = FindInFolder(folder, *name);
    const fs::path file = there.empty() ? folder / *name : there;
    const fs::path beside = file.string() + ".new";
    {
        std::ofstream out(beside, std::ios::binary | std::ios::trunc);
        out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (!out.flush()) failed = std::make_error_code(std::errc::io_error);
    }
    if (!failed) fs::rename(beside, file, failed);
    if (failed) {
        std::error_code ignored;
        fs::remove(beside, ignored);
        return Refusal(500);
    }
    return {201, "application/json", nlohmann::json{{"name", *name}}.dump()};
}

}  // namespace host
