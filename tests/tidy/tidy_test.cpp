#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>
#include <string>

#include "tidy/source_lines.h"

// The house rules, each with its remedy in the message.

namespace {

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
                                         "systems/alerting",
                                         "sound",
                                         "cdu/words",
                                         "cdu/pages",
                                         "cdu/unit",
                                         "checklist",
                                         "comm",
                                         "efb/words",
                                         "efb/performance",
                                         "efb/pages",
                                         "efb",
                                         "display/routing",
                                         "display/nd",
                                         "display/pfd",
                                         "display/hud",
                                         "display/eicas",
                                         "display/synoptics",
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
        const std::string room = RoomOf(NameInSource(file));
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
        const std::string name = NameInSource(file);
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

TEST(Tidy, NoObjectOfANamespaceChangesOutsideState) {
    // Resources that guard themselves, not state of the aircraft.
    const std::set<std::string> kResources = {"state_mutex",  // the state lock itself
                                              "host_in_force", "bridge", "living", "store", "raster_fonts"};
    const std::regex object(
        R"(^(?!using|const|extern|return|namespace|static_assert|inline const|template|typedef|enum)"
        R"(|#|friend|struct \w+;|class \w+;)[A-Za-z_][\w:<>, ]*[ *&]+([a-z_]\w*)( = [^;(]*|\{[^;]*\})?;)");
    for (const fs::path& file : SourceFiles("src")) {
        if (NameInSource(file).starts_with("state/")) continue;
        for (const Line& line : LinesOf(file)) {
            std::smatch found;
            const bool is_object = std::regex_search(line.text, found, object) &&
                                   line.text.find("constexpr") == std::string::npos;
            if (!is_object || kResources.contains(found[1])) continue;
            ADD_FAILURE() << line.where << ": " << found[1] << " can change: put it into a group in state/";
        }
    }
}

// What a line at the left edge of an unnamed namespace names; a function with its parameters.
std::vector<std::string> NamesGivenBy(const std::string& code) {
    static const std::regex kConstant(R"(\b(k[A-Z]\w*)(?:\[[^\]]*\])?(?: = |\{))");
    static const std::regex kOther(
        R"(^(?:(?:struct|enum class|class|enum) |[A-Za-z_][\w:<>,*& ]*[ *&])(\w+(?:\([^)]*\)?)?)[ ;={\[:])");
    static const std::regex kNoName(R"(^(?:namespace|using|extern|template)\b)");
    if (code.empty() || code[0] == ' ' || std::regex_search(code, kNoName)) return {};
    std::vector<std::string> names;
    if (code.starts_with("constexpr"))
        for (auto at = std::sregex_iterator(code.begin(), code.end(), kConstant);
             at != std::sregex_iterator(); ++at)
            names.push_back(at->str(1));
    std::smatch found;
    if (names.empty() && std::regex_search(code, found, kOther)) names.push_back(found[1]);
    return names;
}

TEST(Tidy, AFolderHasEachNameOnce) {
    std::map<std::string, std::string> places;
    for (const char* top : {"src", "host", "tests"})
        for (const fs::path& file : SourceFiles(top)) {
            const std::string folder = fs::relative(file.parent_path(), SourceDir()).string();
            if (file.extension() != ".cpp" || folder == "src/cdu/pages") continue;
            bool unnamed = false;
            for (const Line& line : LinesOf(file)) {
                if (line.text == "namespace {") unnamed = true;
                if (line.text == "}  // namespace") unnamed = false;
                if (!unnamed) continue;
                for (const std::string& name : NamesGivenBy(CodeOf(line.text))) {
                    const auto [place, is_new] = places.emplace(folder + " " + name, line.where);
                    const std::string file_name = line.where.substr(0, line.where.find(':'));
                    EXPECT_TRUE(is_new || place->second.starts_with(file_name + ":"))
                        << line.where << ": " << name << " stands at " << place->second
                        << " too: share it, or tell the two apart (sanitizer builds join the files of a "
                           "folder)";
                }
            }
        }
}

TEST(Tidy, WordsThatDoNotBelong) {
    // Spelled apart, so that this file passes its own test.
    const std::regex words(std::string("\\b(TO") + "DO|FIX" + "ME|HA" + "CK|specifi" + "cation|spec\\" +
                           ".md|Part [0-9]{1,2}\\.[0-9]{1,2})\\b");
    std::vector<fs::path> files;
    for (const char* top : {"src", "host", "tests", "bench", "tools", "docs"})
        for (const fs::path& file : AllFiles(top)) files.push_back(file);
    for (const char* name : {"README.md", "CMakeLists.txt", "CMakePresets.json", "dev", ".ci/run"})
        files.push_back(fs::path(SourceDir()) / name);
    for (const fs::path& file : files)
        for (const Line& line : LinesOf(file)) {
            EXPECT_FALSE(std::regex_search(line.text, words))
                << line.where << ": say it in the code's own words";
            EXPECT_TRUE(std::all_of(line.text.begin(), line.text.end(),
                                    [](char c) { return static_cast<unsigned char>(c) < 0x80; }))
                << line.where << ": text of the system is ASCII";
        }
}

}  // namespace
