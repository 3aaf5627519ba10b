#include "host/flightdeck/messages.h"

#include <gtest/gtest.h>

namespace {

using host::DeckCommand;

// The command as one line, or the reason for which the message is refused.
std::string Read(const std::string& text) {
    nlohmann::json message;
    std::string type;
    EXPECT_EQ(host::ReadMessage(text, message, type), "") << text;
    DeckCommand command{};
    const std::string refused = host::ReadCommand(message, type, command);
    if (!refused.empty()) return refused;
    char line[200];
    std::snprintf(line, sizeof line, "%d '%s' '%s' %g %g %g %d", command.kind, command.name.c_str(),
                  command.text.c_str(), command.value, command.x, command.y, command.right ? 1 : 0);
    return line;
}

TEST(Messages, EachTypeIsACommandOrTellsWhatItLacks) {
    struct Case {
        const char* message;
        std::string read;
    };
    const std::string long_text(201, 'A');
    const std::string too_long = R"({"type":"lvar","name":")" + long_text + R"(","value":1})";
    const Case cases[] = {
        {R"({"type":"lvar","name":"N","value":2.5})", "0 'N' '' 2.5 0 0 0"},
        {R"({"type":"press","name":"N","value":1})", "1 'N' '' 1 0 0 0"},
        {R"({"type":"set","name":"N","text":"T"})", "2 'N' 'T' 0 0 0 0"},
        {R"({"type":"mouse","screen":"lower","x":3,"y":4,"button":"right"})", "3 'lower' '' 0 3 4 1"},
        {R"({"type":"area","gauge":"G","area":"A","button":"left"})", "4 'G' 'A' 0 0 0 0"},
        {R"({"type":"event","event":66241,"value":7})", "5 '' '' 66241 7 0 0"},
        {R"({"type":"lever","name":"gear","value":1})", "6 'gear' '' 1 0 0 0"},
        {R"({"type":"pause","value":1})", "7 '' '' 1 0 0 0"},
        {R"({"type":"rate","value":16})", "8 '' '' 16 0 0 0"},
        {R"({"type":"control","value":1})", "9 '' '' 1 0 0 0"},
        {R"({"type":"fail","name":"leak_l","value":1})", "10 'leak_l' '' 1 0 0 0"},
        {R"({"type":"ground","name":"chocks","value":0})", "11 'chocks' '' 0 0 0 0"},
        {R"({"type":"lvar","name":5,"value":1})", "lvar: name and value"},
        {too_long.c_str(), "lvar: name and value"},
        {R"({"type":"lvar","name":"N","value":1e13})", "lvar: name and value"},
        {R"({"type":"mouse","screen":"lower","x":3,"y":4,"button":"middle"})",
         "mouse: screen, x, y and button"},
        {R"({"type":"event","event":66241,"value":2147483648})", "event: event and value"},
        {R"({"type":"rate","value":"fast"})", "rate: value"},
        {R"({"type":"launch"})", "unknown message type"},
    };
    for (const Case& row : cases) EXPECT_EQ(Read(row.message), row.read) << row.message;
}

TEST(Messages, NamesRefusedLeaveTheOldOnes) {
    std::set<std::string> names{"old"};
    for (const char* refused :
         {R"({})", R"({"names":"a"})", R"({"names":["a","b","c"]})", R"({"names":["a",5]})"}) {
        EXPECT_NE(host::ReadNames(nlohmann::json::parse(refused), 2, names), "") << refused;
        EXPECT_EQ(names, std::set<std::string>{"old"}) << refused;
    }
    EXPECT_EQ(host::ReadNames(nlohmann::json::parse(R"({"names":["b","a"]})"), 2, names), "");
    EXPECT_EQ(names, (std::set<std::string>{"a", "b"}));
}

}  // namespace
