#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
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

// Each room of src/ may include what stands before it in this order, and state/; base/ knows no state.
const std::vector<std::string> kOrder = {"base",
                                         "platform",
                                         "state",
                                         "paint",
                                         "frame",
                                         "navdata",
                                         "surveillance",
                                         "fmc/legs",
                                         "fmc/performance",
                                         "fmc/procedures",
                                         "fmc/route",
                                         "fmc/files",
                                         "guidance",
                                         "panels",
                                         "systems",
                                         "sound",
                                         "cdu/words",
                                         "cdu/pages",
                                         "cdu/unit",
                                         "checklist",
                                         "comm",
                                         "efb",
                                         "display/routing",
                                         "display/formats",
                                         "display/pictures",
                                         "module/controls",
                                         "module/gauges",
                                         "module"};

// The room of a name such as "fmc/legs/path.h"; the whole folder where it stands in none.
std::string RoomOf(const std::string& name) {
    const std::string folder = name.substr(0, name.find_last_of('/'));
    const bool is_room = std::find(kOrder.begin(), kOrder.end(), folder) != kOrder.end();
    return is_room ? folder : name.substr(0, name.find('/'));
}

std::string IncludedName(const std::string& line) {
    if (!line.starts_with("#include \"")) return {};
    return line.substr(10, line.find('"', 10) - 10);
}

TEST(Tidy, IncludesPointForward) {
    const auto place = [](const std::string& room) {
        return std::find(kOrder.begin(), kOrder.end(), room) - kOrder.begin();
    };
    for (const fs::path& file : SourceFiles("src")) {
        const std::string room = RoomOf(fs::relative(file, fs::path(SourceDir()) / "src").string());
        EXPECT_LT(place(room), static_cast<long>(kOrder.size())) << room << ": a room that the order lacks";
        for (const Line& line : LinesOf(file)) {
            const std::string name = IncludedName(line.text);
            if (name.empty()) continue;
            const std::string other = RoomOf(name);
            if (other == room || (other == "state" && room != "base")) continue;
            EXPECT_LT(place(other), place(room)) << line.where << ": " << room << "/ may not include "
                                                 << other << "/: leave a request in state/";
        }
    }
}

// "fmc/legs/path" of a header or source of that pair.
std::string PairOf(const std::string& name) {
    return name.substr(0, name.find_last_of('.'));
}

TEST(Tidy, NoCircleOfIncludesInsideARoom) {
    std::map<std::string, std::set<std::string>> includes;
    for (const fs::path& file : SourceFiles("src")) {
        const std::string name = fs::relative(file, fs::path(SourceDir()) / "src").string();
        for (const Line& line : LinesOf(file)) {
            const std::string other = IncludedName(line.text);
            if (!other.empty() && PairOf(other) != PairOf(name)) includes[PairOf(name)].insert(PairOf(other));
        }
    }
    // What includes nothing that is left can't stand in a circle, and is taken out in turn.
    for (bool taken = true; taken;) {
        taken = false;
        for (auto at = includes.begin(); at != includes.end();) {
            const bool is_leaf =
                std::none_of(at->second.begin(), at->second.end(),
                             [&](const std::string& other) { return includes.contains(other); });
            taken |= is_leaf;
            at = is_leaf ? includes.erase(at) : std::next(at);
        }
    }
    for (const auto& [pair, others] : includes)
        ADD_FAILURE() << "src/" << pair
                      << ": stands in a circle of includes, or before one: split what both need";
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
