#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "support/paths.h"

// The sources as the house rules read them.

namespace fs = std::filesystem;

struct Line {
    std::string where;  // "src/fmc/route.cpp:12"
    std::string text;
};

/// The files of a folder of the tree whose names end so, in order.
inline std::vector<fs::path> FilesOf(const std::string& top, const std::vector<std::string>& endings) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(fs::path(SourceDir()) / top)) {
        if (entry.path().string().find("node_modules") != std::string::npos) continue;
        const std::string ending = entry.path().extension();
        if (std::find(endings.begin(), endings.end(), ending) != endings.end()) files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}
inline std::vector<fs::path> SourceFiles(const std::string& top) {
    return FilesOf(top, {".cpp", ".h", ".js", ".mjs"});
}
/// Everything that somebody writes and reads.
inline std::vector<fs::path> AllFiles(const std::string& top) {
    return FilesOf(top,
                   {".cpp", ".h", ".js", ".mjs", ".html", ".css", ".scn", ".md", ".py", ".txt", ".cmake"});
}

inline std::vector<Line> LinesOf(const fs::path& file) {
    std::vector<Line> lines;
    std::ifstream in(file);
    const std::string name = fs::relative(file, SourceDir()).string();
    int number = 0;
    for (std::string text; std::getline(in, text);)
        lines.push_back({name + ":" + std::to_string(++number), text});
    return lines;
}

/// A line without its comment.
inline std::string CodeOf(const std::string& line) {
    return line.substr(0, line.find("//"));
}

/// "fmc/legs/path.h" of a file below src/.
inline std::string NameInSource(const fs::path& file) {
    return fs::relative(file, fs::path(SourceDir()) / "src").string();
}

/// The parts of a text between its separators, without the blanks around them.
inline std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream rest(text);
    for (std::string part; std::getline(rest, part, separator);) {
        const std::size_t first = part.find_first_not_of(' ');
        if (first != std::string::npos)
            parts.push_back(part.substr(first, part.find_last_not_of(' ') - first + 1));
    }
    return parts;
}
