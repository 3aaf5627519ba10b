#include "host/root_folder.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string_view>

#include "host/process.h"

namespace host {
namespace {

namespace fs = std::filesystem;

bool SameName(const std::string& a, const std::string& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](unsigned char x, unsigned char y) { return std::tolower(x) == std::tolower(y); });
}

// "key=value" of a line, key in any case, blanks around either dropped; false for any other key.
bool TakeValue(const std::string& line, const std::string& key, std::string& value) {
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos) return false;
    const auto trim = [](std::string text) {
        const char* blanks = " \t\r";
        text.erase(0, text.find_first_not_of(blanks));
        text.erase(text.find_last_not_of(blanks) + 1);
        return text;
    };
    if (!SameName(trim(line.substr(0, equals)), key)) return false;
    value = trim(line.substr(equals + 1));
    return true;
}

constexpr std::string_view kPrivateRootPrefix = "tz900-root-";  // the process id follows, and a hyphen

void RemoveRootsOfTheDead(const fs::path& temporary) {
    std::error_code failed, ignored;
    for (fs::directory_iterator entry(temporary, failed), end; !failed && entry != end;
         entry.increment(failed)) {
        const std::string name = entry->path().filename();
        int process = 0;
        if (name.starts_with(kPrivateRootPrefix) &&
            std::sscanf(name.c_str() + kPrivateRootPrefix.size(), "%d-", &process) == 1 &&
            IsProcessGone(process))
            fs::remove_all(entry->path(), ignored);
    }
}

}  // namespace

fs::path FindInFolder(const fs::path& folder, const std::string& name) {
    std::error_code failed;
    if (fs::exists(folder / name, failed)) return folder / name;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed))
        if (SameName(entry->path().filename().string(), name)) return entry->path();
    return {};
}

fs::path FindUnderRoot(const std::string& root, const std::string& path) {
    fs::path at = root;
    for (const fs::path& part : fs::path(path)) {
        if (part == ".." || part == "/" || part == ".") return {};
        at = FindInFolder(at, part.string());
        if (at.empty()) return {};
    }
    return at;
}

fs::path FindNavdata(const fs::path& velarion) {
    const fs::path product = FindInFolder(velarion, "TZ900");
    const fs::path navdata = product.empty() ? fs::path{} : FindInFolder(product, "Navdata");
    return navdata.empty() ? velarion / "TZ900" / "Navdata" : navdata;
}

bool MakePrivateRoot(const std::string& demo_root, std::string& root, std::string& error) {
    std::error_code failed;
    if (!fs::is_directory(demo_root, failed)) {
        error = "the demonstration root " + demo_root + " is missing; name another with `root`";
        return false;
    }
    const fs::path temporary = fs::temp_directory_path(failed);
    RemoveRootsOfTheDead(temporary);
    std::string name = temporary / (std::string(kPrivateRootPrefix) + std::to_string(getpid()) + "-XXXXXX");
    if (failed || mkdtemp(name.data()) == nullptr) {
        error = "no temporary folder can be made";
        return false;
    }
    fs::copy(demo_root, name, fs::copy_options::recursive, failed);
    if (failed) {
        error = "the demonstration root can't be copied: " + failed.message();
        fs::remove_all(name, failed);
        return false;
    }
    root = name;
    return true;
}

std::vector<AirframeTitle> AirframeTitles(const std::string& root) {
    std::vector<fs::path> folders;
    std::error_code failed;
    const fs::path airplanes = FindUnderRoot(root, "SimObjects/Airplanes");
    if (airplanes.empty()) return {};
    for (fs::directory_iterator entry(airplanes, failed), end; !failed && entry != end;
         entry.increment(failed))
        folders.push_back(entry->path());
    std::sort(folders.begin(), folders.end());
    std::vector<AirframeTitle> titles;
    for (const fs::path& folder : folders) {
        std::ifstream file(FindInFolder(folder, "Aircraft.cfg"));
        std::string line, value;
        bool in_title = false;
        while (std::getline(file, line)) {
            if (line.starts_with("[")) in_title = false;
            if (TakeValue(line, "title", value)) {
                titles.push_back({value, {}, {}, {}, false});
                in_title = true;
            } else if (in_title && TakeValue(line, "atc_id", value)) {
                titles.back().atc_id = value;
            } else if (in_title && TakeValue(line, "sim", value)) {
                titles.back().sim = value;
            } else if (in_title && TakeValue(line, "model", value)) {
                titles.back().model = value;
            } else if (in_title && TakeValue(line, "panel", value)) {
                titles.back().hires_panel = SameName(value, "hires");
            }
        }
    }
    return titles;
}

}  // namespace host
