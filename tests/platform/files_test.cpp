#include "platform/files.h"

#include <gtest/gtest.h>

#include "support/fake_host.h"
#include "support/file_text.h"

namespace {

TEST(Files, NamesResolveInAnyCaseAndNeverLeaveTheFolder) {
    FakeHost host;
    host.PutFile("Velarion/TZ900/Navdata/navs.txt", "line\r\nlast");
    for (const char* name : {"\\Velarion\\TZ900\\Navdata\\navs.txt", "velarion/tz900/NAVDATA/NAVS.TXT",
                             "\\\\VELARION\\.\\tz900\\navdata\\Navs.Txt"}) {
        const auto file = ReadFile(name);
        ASSERT_TRUE(file) << name;
        EXPECT_EQ(file->Text(), "line\r\nlast");
    }
    host.PutFile("../outside.txt", "secret");
    for (const char* name : {"..\\outside.txt", "Velarion\\..\\..\\outside.txt", "C:\\outside.txt",
                             "Velarion", "Velarion\\missing.txt", ""})
        EXPECT_FALSE(ReadFile(name)) << name;
    EXPECT_FALSE(ReadFile(std::string_view("Velarion\0x", 10)));
    EXPECT_FALSE(ReadFile("Velarion/TZ900/Navdata/navs.txt", FileRoot::kSimulator, 9));
    EXPECT_TRUE(FolderExists("\\velarion\\tz900"));
    host.failing.insert("root_folder");
    EXPECT_FALSE(ReadFile("\\Velarion\\TZ900\\Navdata\\navs.txt"));
}

TEST(Files, AWriteIsCompleteOrNotThere) {
    FakeHost host;
    host.PutFile("Velarion/TZ900.CFG", "old");
    EXPECT_TRUE(WriteFile("\\velarion\\tz900.cfg", "new"));
    EXPECT_EQ(FileText(host.root / "Velarion/TZ900.CFG"), "new");
    EXPECT_TRUE(WriteFile("\\Velarion\\deep\\er\\a.txt", "x", FileRoot::kAppData));
    EXPECT_EQ(FileText(host.app_data / "Velarion/deep/er/a.txt"), "x");
    EXPECT_FALSE(WriteFile("\\..\\evil.txt", "x"));
    EXPECT_FALSE(WriteFile("\\Velarion", "a folder stands there"));
    const auto entries = ListFolder("\\Velarion");
    ASSERT_EQ(entries.size(), 1u);  // nothing half-written is left behind
    EXPECT_EQ(entries[0].name, "TZ900.CFG");
    EXPECT_FALSE(entries[0].is_folder);
    EXPECT_TRUE(ListFolder("\\nowhere").empty());
}

TEST(Files, LinesEndWithLfOrCrLf) {
    std::string_view rest = "a\r\n\nb\rc\nlast";
    std::vector<std::string_view> lines;
    while (const auto line = NextLine(rest)) lines.push_back(*line);
    EXPECT_EQ(lines, (std::vector<std::string_view>{"a", "", "b\rc", "last"}));
}

}  // namespace
