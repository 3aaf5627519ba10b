#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <string>
#include <vector>

#include "support/paths.h"

// The house rules, each with its remedy in the message.

namespace {

namespace fs = std::filesystem;

struct Line {
    std::string where;  // "src/fmc/route.cpp:12"
    std::string text;
};

std::vector<fs::path> SourceFiles(const std::string& top) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(fs::path(SourceDir()) / top)) {
        const std::string extension = entry.path().extension();
        if (entry.path().string().find("node_modules") != std::string::npos) continue;
        if (extension == ".cpp" || extension == ".h" || extension == ".js" || extension == ".mjs")
            files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::vector<Line> LinesOf(const fs::path& file) {
    std::vector<Line> lines;
    std::ifstream in(file);
    const std::string name = fs::relative(file, SourceDir()).string();
    int number = 0;
    for (std::string text; std::getline(in, text);)
        lines.push_back({name + ":" + std::to_string(++number), text});
    return lines;
}

// The folder of a name such as "fmc/route.h".
std::string FolderOf(const std::string& name) {
    return name.substr(0, name.find('/'));
}

std::string IncludedName(const std::string& line) {
    if (!line.starts_with("#include \"")) return {};
    return line.substr(10, line.find('"', 10) - 10);
}

// Each folder of src/ may include what stands before it in this order, and state/.
const std::vector<std::string> kOrder = {"base",      "platform", "state",  "paint",   "frame", "navdata",
                                         "fmc",       "guidance", "panels", "systems", "sound", "cdu",
                                         "checklist", "comm",     "efb",    "display", "module"};

TEST(Tidy, IncludesPointForward) {
    const auto place = [](const std::string& folder) {
        return std::find(kOrder.begin(), kOrder.end(), folder) - kOrder.begin();
    };
    for (const fs::path& file : SourceFiles("src")) {
        const std::string folder = FolderOf(fs::relative(file, fs::path(SourceDir()) / "src").string());
        EXPECT_LT(place(folder), static_cast<long>(kOrder.size()))
            << folder << ": a folder that the order lacks";
        for (const Line& line : LinesOf(file)) {
            const std::string other = FolderOf(IncludedName(line.text));
            if (other.empty() || other == folder || other == "state") continue;
            EXPECT_LT(place(other), place(folder)) << line.where << ": " << folder << " may not include "
                                                   << other << "/: leave a request in state/";
        }
    }
}

TEST(Tidy, HostSeesTheModuleThroughItsBoundary) {
    for (const fs::path& file : SourceFiles("host"))
        for (const Line& line : LinesOf(file)) {
            const std::string name = IncludedName(line.text);
            if (name.empty() || name.starts_with("host/")) continue;
            EXPECT_TRUE(name == "platform/host_operations.h" || name == "module/linkage.h")
                << line.where << ": host may not include " << name << ": go through the exports";
        }
}

TEST(Tidy, StateStandsInStateGroups) {
    // A function's own static is state that neither reset nor inspector finds.
    const std::regex mutable_static(
        R"(^\s{2,}static\s+(?!const\b|constexpr\b|void\b|.*\)\s*(const\s*)?[{;]).*[=;{])");
    for (const char* top : {"src"})
        for (const fs::path& file : SourceFiles(top))
            for (const Line& line : LinesOf(file))
                EXPECT_FALSE(std::regex_search(line.text, mutable_static))
                    << line.where << ": a static that changes belongs into a group in state/: " << line.text;
}

TEST(Tidy, OnlyPlatformTouchesTheOperatingSystem) {
    const std::regex system_header(
        R"(^#include <(sys/|unistd|fcntl|dlfcn|pthread|netinet|arpa|fstream|filesystem))");
    for (const fs::path& file : SourceFiles("src")) {
        const std::string name = fs::relative(file, SourceDir()).string();
        if (name.starts_with("src/platform/")) continue;
        for (const Line& line : LinesOf(file))
            EXPECT_FALSE(std::regex_search(line.text, system_header))
                << line.where << ": only src/platform/ touches the world outside: go through its functions";
    }
}

TEST(Tidy, WordsThatDoNotBelong) {
    // Spelled apart, so that this file passes its own test.
    const std::regex words(std::string("\\b(TO") + "DO|FIX" + "ME|HA" + "CK|specifi" + "cation|spec\\" +
                           ".md|Part [0-9]{1,2}\\.[0-9]{1,2})\\b");
    for (const char* top : {"src", "host", "tests", "bench"})
        for (const fs::path& file : SourceFiles(top))
            for (const Line& line : LinesOf(file)) {
                EXPECT_FALSE(std::regex_search(line.text, words))
                    << line.where << ": say it in the code's own words";
                EXPECT_TRUE(std::all_of(line.text.begin(), line.text.end(),
                                        [](char c) { return static_cast<unsigned char>(c) < 0x80; }))
                    << line.where << ": text of the system is ASCII";
            }
}

}  // namespace
