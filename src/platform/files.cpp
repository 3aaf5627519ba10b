#include "platform/files.h"

#include <fcntl.h>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "platform/host.h"

namespace fs = std::filesystem;

namespace {

bool SameName(std::string_view a, std::string_view b) {
    return a.size() == b.size() && strncasecmp(a.data(), b.data(), a.size()) == 0;
}

// The parts of a name; nothing when one of them would leave the folder.
std::optional<std::vector<std::string>> SplitName(std::string_view name) {
    std::vector<std::string> parts;
    while (!name.empty()) {
        const std::size_t end = name.find_first_of("\\/");
        const std::string_view part = name.substr(0, end);
        name.remove_prefix(end == std::string_view::npos ? name.size() : end + 1);
        if (part.empty() || part == ".") continue;
        if (part == ".." || part.find_first_of(std::string_view(":\0", 2)) != std::string_view::npos)
            return {};
        parts.emplace_back(part);
    }
    return parts;
}

constexpr std::string_view kNavdataParts[] = {"Velarion", "TZ900", "Navdata"};

bool IsBelowNavdata(const std::vector<std::string>& parts) {
    return parts.size() >= std::size(kNavdataParts) &&
           std::equal(std::begin(kNavdataParts), std::end(kNavdataParts), parts.begin(), SameName);
}

// The entry of a folder that bears this name in any case; the name as it stands when there is none.
fs::path FindEntry(const fs::path& folder, const std::string& part) {
    std::error_code error;
    fs::path exact = folder / part;
    if (fs::exists(exact, error)) return exact;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
        if (SameName(entry->path().filename().native(), part)) return entry->path();
    return exact;
}

struct Descriptor {
    explicit Descriptor(int file) : number(file) {}
    ~Descriptor() {
        if (number >= 0) close(number);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int number;
};

bool WriteAll(int file, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = write(file, text.data(), text.size());
        if (written <= 0) return false;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

// Devices of some hosts' file systems, whatever stands behind the point.
bool IsDeviceName(std::string_view name) {
    constexpr std::string_view kDevices[] = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
    std::string_view stem = name.substr(0, name.find('.'));
    while (stem.ends_with(' ')) stem.remove_suffix(1);
    for (const std::string_view device : kDevices)
        if (SameName(stem, device)) return true;
    const bool numbered = stem.size() == 4 && stem[3] >= '0' && stem[3] <= '9';
    return numbered && (SameName(stem.substr(0, 3), "COM") || SameName(stem.substr(0, 3), "LPT"));
}

}  // namespace

bool IsPlainFileName(std::string_view name) {
    constexpr std::size_t kMostCharacters = 128;
    if (name.empty() || name.size() > kMostCharacters || name.starts_with(' ')) return false;
    if (name.ends_with('.') || name.ends_with(' ') || IsDeviceName(name)) return false;
    return std::all_of(name.begin(), name.end(), [](char c) {
        constexpr std::string_view kRefused = "\\/:*?\"<>|\x7f";
        return static_cast<unsigned char>(c) >= ' ' && kRefused.find(c) == std::string_view::npos;
    });
}

std::optional<std::string> ResolvePath(std::string_view name, FileRoot root) {
    const std::string folder = root == FileRoot::kSimulator ? RootFolder()
                               : root == FileRoot::kAppData ? AppDataFolder()
                                                            : "/";
    const auto parts = SplitName(name);
    if (folder.empty() || !parts) return {};
    fs::path path = folder;
    std::size_t first = 0;
    if (root == FileRoot::kSimulator && IsBelowNavdata(*parts)) {
        const std::string elsewhere = NavdataFolder();
        if (!elsewhere.empty()) {
            path = elsewhere;
            first = std::size(kNavdataParts);
        }
    }
    for (std::size_t i = first; i < parts->size(); ++i) path = FindEntry(path, (*parts)[i]);
    return path.string();
}

std::optional<FileBytes> ReadFile(std::string_view name, FileRoot root, std::size_t limit) {
    const auto path = ResolvePath(name, root);
    if (!path) return {};
    // Non-blocking, so that a pipe that stands in for a file can't hold the host up.
    const Descriptor file(open(path->c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status;
    if (file.number < 0 || fstat(file.number, &status) != 0 || !S_ISREG(status.st_mode)) return {};
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size > limit) return {};
    FileBytes bytes{std::make_unique_for_overwrite<char[]>(size), 0};
    while (bytes.size < size) {
        const ssize_t count = read(file.number, bytes.data.get() + bytes.size, size - bytes.size);
        if (count < 0) return {};
        if (count == 0) break;  // the file has shrunk since
        bytes.size += static_cast<std::size_t>(count);
    }
    return bytes;
}

bool WriteFile(std::string_view name, std::string_view text, FileRoot root) {
    const auto path = ResolvePath(name, root);
    if (!path) return false;
    std::error_code error;
    fs::create_directories(fs::path(*path).parent_path(), error);
    const std::string beside = *path + ".new";
    bool written = false;
    {
        const Descriptor file(open(beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644));
        written = file.number >= 0 && WriteAll(file.number, text) && fsync(file.number) == 0;
    }
    if (written && rename(beside.c_str(), path->c_str()) == 0) return true;
    unlink(beside.c_str());
    return false;
}

bool AppendToFile(std::string_view name, std::string_view text, FileRoot root) {
    const auto path = ResolvePath(name, root);
    if (!path) return false;
    const Descriptor file(open(path->c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NONBLOCK, 0644));
    return file.number >= 0 && WriteAll(file.number, text);
}

std::vector<FolderEntry> ListFolder(std::string_view name, FileRoot root) {
    std::vector<FolderEntry> entries;
    const auto path = ResolvePath(name, root);
    if (!path) return entries;
    std::error_code error;
    for (fs::directory_iterator entry(*path, error), end; !error && entry != end; entry.increment(error)) {
        std::error_code unknown;
        entries.push_back({entry->path().filename().string(), entry->is_directory(unknown)});
    }
    std::sort(entries.begin(), entries.end(), [](const FolderEntry& a, const FolderEntry& b) {
        const int order = strcasecmp(a.name.c_str(), b.name.c_str());
        return order != 0 ? order < 0 : a.name < b.name;
    });
    return entries;
}

bool FolderExists(std::string_view name, FileRoot root) {
    const auto path = ResolvePath(name, root);
    std::error_code error;
    return path && fs::is_directory(*path, error);
}

ConfiguredFolder FindConfiguredFolder(std::string_view name) {
    const bool of_machine = !FolderExists(name) && FolderExists(name, FileRoot::kMachine);
    return {std::string(name), of_machine ? FileRoot::kMachine : FileRoot::kSimulator};
}

std::optional<std::int64_t> LastWriteTime(std::string_view name, FileRoot root) {
    const auto path = ResolvePath(name, root);
    struct stat status;
    if (!path || stat(path->c_str(), &status) != 0) return {};
    return status.st_mtime;
}

std::optional<std::string_view> NextLine(std::string_view& rest) {
    if (rest.empty()) return {};
    const std::size_t end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}
