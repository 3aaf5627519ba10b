#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>
#include <string>
#include <string_view>

#include "state/state_groups.h"
#include "tidy/source_lines.h"

// The rules of state: every field can be inspected, and a group is written by those that its row names.

namespace {

// --- fields and rows

// Types that nobody inspects: addresses, files in memory, indexes over them, bytes.
bool IsHidden(const std::string& type) {
    return type.find('*') != std::string::npos || type == "FileBytes" || type == "IdentIndex" ||
           type.starts_with("std::vector") || type.find("std::uint8_t") != std::string::npos;
}

std::string TextOf(const fs::path& file) {
    std::string text;
    for (const Line& line : LinesOf(file)) text += CodeOf(line.text) + " ";
    return text;
}

TEST(TidyState, EveryFieldHasARow) {
    const std::regex instance(R"(extern (?:std::array<(\w+), 2>|(\w+)) (\w+);)");
    for (const fs::path& header : SourceFiles("src/state")) {
        if (header.extension() != ".h") continue;
        const std::string text = TextOf(header);
        for (std::sregex_iterator at(text.begin(), text.end(), instance), end; at != end; ++at) {
            const std::string type = (*at)[1].matched ? (*at)[1] : (*at)[2];
            const std::size_t begin = text.find("struct " + type + " {");
            if (begin == std::string::npos) continue;
            const std::size_t close = text.find("}; ", begin);
            std::string body = text.substr(begin, close - begin);
            body = std::regex_replace(body.substr(body.find('{') + 1),
                                      std::regex(R"(= ?(\{[^}]*\}|"[^"]*"))"), "");
            const std::string rows = TextOf(fs::path(header).replace_extension(".cpp"));
            const std::regex declaration(R"(\s*((?:const )?[\w:]+(?:<[^;]*>)?(?: ?\*)?) ([^;(]+);)");
            for (std::sregex_iterator field(body.begin(), body.end(), declaration); field != end; ++field) {
                if (IsHidden((*field)[1])) continue;
                for (const std::string& name : Split((*field)[2], ',')) {
                    const std::string word = name.substr(0, name.find_first_of(" ="));
                    EXPECT_TRUE(std::regex_search(rows, std::regex("[.:&]" + word + "\\b")))
                        << NameInSource(header) << ": " << word
                        << " has no row: add one in the .cpp beside it";
                }
            }
        }
    }
}

// --- who writes what

bool IsWordChar(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

// Functions that hand out a record of a group to be changed.
const std::map<std::string_view, std::string_view> kAccessors = {{"CduOf", "cdu"},
                                                                 {"NdOf", "nd"},
                                                                 {"EfbOf", "efb"},
                                                                 {"DisplayModeOf", "displays"},
                                                                 {"SystemPageOf", "displays"}};
const std::set<std::string_view> kChangingCalls = {"clear",   "push_back", "erase",        "resize",
                                                   "reserve", "pop_back",  "emplace_back", "assign",
                                                   "append",  "insert",    "fill",         "swap"};

// Behind a path such as ".legs[i].ident" or ".rows.clear()", and its last name.
std::size_t BehindPath(const std::string& code, std::size_t at, std::string& last) {
    while (at < code.size()) {
        if (code[at] == '(' || code[at] == '[') {
            for (int depth = 0; at < code.size(); ++at) {
                depth += code[at] == '(' || code[at] == '[';
                depth -= code[at] == ')' || code[at] == ']';
                if (depth == 0) break;
            }
            ++at;
            continue;
        }
        if (code[at] != '.') break;
        ++at;
        if (at < code.size() && code[at] == '*') ++at;
        const std::size_t begin = at;
        while (at < code.size() && IsWordChar(code[at])) ++at;
        last = code.substr(begin, at - begin);
    }
    return std::min(at, code.size());
}

bool IsWrite(const std::string& code, std::size_t begin, std::size_t end, const std::string& last) {
    static const std::regex assigns(R"(^\s*(=(?!=)|[-+*/|&^%]=|\+\+|--))");
    static const std::regex binds(R"((^|[(\s])(?!const\b)[\w:<>]+& \w+ [=:]$)");
    static const std::regex takes(R"((\+\+|--|std::exchange\(|std::move\(|(^|[^\w)&\s]|[,{=(] ?)&)$)");
    const std::string behind = code.substr(end);
    std::string before = code.substr(0, begin);
    before.erase(before.find_last_not_of(' ') + 1);
    if (std::regex_search(behind, assigns)) return true;
    if (kChangingCalls.contains(last) && end > 0 && code[end - 1] == ')') return true;
    if (std::regex_search(before, takes)) return true;
    return before.find("const ") == std::string::npos && std::regex_search(before, binds);
}

// Calls visit(group, position) for each write of a group in a line.
template <class Visit>
void ForEachWrite(const std::string& code, const std::set<std::string_view>& groups, Visit visit) {
    for (std::size_t at = 0; at < code.size();) {
        if (!IsWordChar(code[at])) {
            ++at;
            continue;
        }
        const std::size_t begin = at;
        while (at < code.size() && IsWordChar(code[at])) ++at;
        const std::string word = code.substr(begin, at - begin);
        const bool is_member =
            begin > 0 && (code[begin - 1] == '.' || code[begin - 1] == ':' || code[begin - 1] == '>');
        const auto accessor = kAccessors.find(word);
        const bool is_group = groups.contains(word) || accessor != kAccessors.end();
        if (is_member || !is_group) continue;
        std::string last;
        const std::size_t end = BehindPath(code, at, last);
        if (IsWrite(code, begin, end, last))
            visit(accessor != kAccessors.end() ? accessor->second : *groups.find(word));
    }
}

TEST(TidyState, AGroupIsWrittenByThoseThatItsRowNames) {
    std::set<std::string_view> groups;
    for (const StateGroup& group : StateGroups()) groups.insert(group.name);
    std::map<std::string, std::set<std::string>> found;  // by group: the writers that its row names
    for (const fs::path& file : SourceFiles("src")) {
        const std::string name = NameInSource(file);
        if (name.starts_with("state/")) continue;
        for (const Line& line : LinesOf(file))
            ForEachWrite(CodeOf(line.text), groups, [&](std::string_view written) {
                const auto group = std::find_if(StateGroups().begin(), StateGroups().end(),
                                                [&](const StateGroup& row) { return row.name == written; });
                bool known = false;
                for (const std::string& writer : Split(std::string(group->writers), ' ')) {
                    if (!name.starts_with(writer)) continue;
                    known = true;
                    found[std::string(written)].insert(writer);
                }
                EXPECT_TRUE(known) << line.where << ": " << written
                                   << " isn't this file's to write (state_groups.cpp): " << line.text;
            });
    }
    for (const StateGroup& group : StateGroups())
        for (const std::string& writer : Split(std::string(group.writers), ' '))
            EXPECT_TRUE(found[std::string(group.name)].contains(writer))
                << "state_groups.cpp: " << writer << " doesn't write " << group.name << " any more";
}

}  // namespace
