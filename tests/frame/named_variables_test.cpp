#include "frame/named_variables.h"

#include <gtest/gtest.h>

#include <set>

#include "frame/lamps.h"
#include "support/fake_host.h"

namespace {

TEST(NamedVariables, CatalogueHasEachNameOnceAnd337OfItsOwn) {
    std::set<std::string_view> names;
    int own = 0;
    for (const NamedVariable& variable : kNamedVariables) {
        names.insert(variable.name);
        own += variable.owner == NamedVariable::kModule ? 1 : 0;
    }
    EXPECT_EQ(names.size(), kNamedVariables.size());
    EXPECT_EQ(own, 337);
}

TEST(NamedVariables, RegisterOnceAndForgetAtUnregister) {
    FakeHost host;
    RegisterNamedVars();
    RegisterNamedVars();
    EXPECT_EQ(host.registered_names.size(), 337u);
    WriteNamedVar(NamedVar("lnav_hdg"), 271);
    EXPECT_EQ(host.NamedVar("lnav_hdg"), 271);
    UnregisterNamedVars();
    EXPECT_EQ(host.unregistered_names, host.registered_names);
    EXPECT_FALSE(host.NamedVarExists("lnav_hdg"));
    EXPECT_EQ(ReadNamedVar(NamedVar("lnav_hdg")), 0);
    RegisterNamedVars();
    EXPECT_EQ(ReadNamedVar(NamedVar("lnav_hdg")), 0);
    WriteNamedVar(NamedVar("lnav_hdg"), 90);
    EXPECT_EQ(host.NamedVar("lnav_hdg"), 90);
}

TEST(NamedVariables, AMissingNameReadsZeroUntilTheModelBringsIt) {
    FakeHost host;
    EXPECT_EQ(ReadNamedVar(NamedVar("gearleverpos")), 0);
    WriteNamedVar(NamedVar("gearleverpos"), 1);
    EXPECT_FALSE(host.NamedVarExists("gearleverpos"));
    host.NamedVar("gearleverpos") = 1;
    EXPECT_EQ(ReadNamedVar(NamedVar("gearleverpos")), 1);
    host.calls.clear();
    ReadNamedVar(NamedVar("gearleverpos"));
    EXPECT_EQ(host.calls["find_named_var"], 0);  // its id is kept
}

TEST(NamedVariables, ALampIsToldOnceAndAtFirstWhenTheModelBringsIt) {
    FakeHost host;
    constexpr NamedVarRef kLamp = NamedVar("TZ_OH_Annun_LPAC_OFF");
    ShowLamp(kLamp, true);
    host.NamedVar("TZ_OH_Annun_LPAC_OFF") = 0;
    ShowLamp(kLamp, true);
    EXPECT_EQ(host.NamedVar("TZ_OH_Annun_LPAC_OFF"), 1);
    host.calls.clear();
    ShowLamp(kLamp, true);
    EXPECT_EQ(host.calls["set_named_var"], 0);
}

}  // namespace
