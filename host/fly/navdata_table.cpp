#include "host/fly/navdata_table.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "host/inspection.h"

namespace host {
namespace {

struct FileRead {
    std::string name;
    bool is_empty = false;
    int rows = 0, skipped = 0, first_skipped = 0;
    std::string why;
};

void PrintFile(const Session& session, const FileRead& file) {
    if (file.is_empty) {
        const bool is_there = !NavdataFile(session.settings, file.name).empty();
        std::printf("  %-24s %s\n", file.name.c_str(), is_there ? "empty" : "missing");
        return;
    }
    std::printf("  %-24s %7d rows", file.name.c_str(), file.rows);
    if (file.skipped > 0)
        std::printf(", %d skipped, the first is line %d: %s", file.skipped, file.first_skipped,
                    file.why.c_str());
    std::printf("\n");
}

// A file that is read when something of it is asked for.
FileRead LookAt(const Session& session, const char* name) {
    FileRead file;
    file.name = name;
    std::ifstream lines(NavdataFile(session.settings, name));
    for (std::string line; std::getline(lines, line);)
        file.rows += line.find_first_not_of(" \t\r") != std::string::npos && line[0] != ';';
    file.is_empty = file.rows == 0;
    return file;
}

}  // namespace

void PrintNavdata(const Session& session) {
    const auto text = [&](const std::string& path) { return ReadVariable(session, path); };
    const auto number = [&](const std::string& path) { return std::atoi(text(path).c_str()); };
    const std::string cycle = text("airac_cycle_text"), range = text("airac_range_text");
    std::printf("Navigation data, %s%s%s:\n", cycle.empty() ? "of no known cycle" : cycle.c_str(),
                range.empty() ? "" : ", ", range.c_str());
    for (int i = 1; i <= number("navdata_file_cnt"); ++i) {
        const std::string of = "navdata_files[" + std::to_string(i) + "].";
        PrintFile(session, {text(of + "name"), number(of + "size") == 0, number(of + "rows"),
                            number(of + "skipped"), number(of + "first_skipped"), text(of + "why")});
    }
    for (const char* name :
         {"sids.txt", "stars.txt", "apps.txt", "aptcomms.txt", "apt_additional_info.txt", "selcal.txt"})
        PrintFile(session, LookAt(session, name));
    std::printf("\n");
}

}  // namespace host
