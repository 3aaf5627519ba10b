#include "frame/crew_messages.h"

#include <gtest/gtest.h>

#include "state/cdu.h"
#include "state/cfg.h"
#include "state/pos_init.h"
#include "state/state_groups.h"

namespace {

std::string Newest(int side) {
    CduState& unit = CduOf(side);
    if (unit.CduMessageCount == 0) return "none";
    const CduMessage& message = unit.CduMessages[unit.CduMessageCount];
    return std::to_string(message.kind) + "|" + message.title + "|" + message.body;
}

std::string Posted(std::string_view title, int kind, int help_id, int side, int list) {
    PostCduMessage(title, kind, help_id, side);
    return Newest(list);
}

TEST(CrewMessages, BodiesComeFromTheFixedListOrTheCatalogue) {
    ResetSystemState();
    EXPECT_EQ(Posted("INVALID DELETE", 2, 0, kCaptain, kCaptain),
              "2|INVALID DELETE|SELECTED LINE CAN NOT\nBE DELETED");
    EXPECT_EQ(
        Posted("RESET MCP ALT", 4, 0, kCaptain, kCaptain),
        "4|RESET MCP ALT|MCP ALTITUDE IS SET TO\nCRUISE ALT\n SET LOWER ALTITUDE TO\nENABLE VNAV DESCENT");
    EXPECT_EQ(Posted("EGLLKJFK1", 3, 1, kFirstOfficer, kFirstOfficer),
              "3|FLIGHT PLAN SAVED|EGLLKJFK1\nSaved");
    EXPECT_EQ(Posted("INVALID ENTRY", 4, 5, kCaptain, kCaptain),
              "4|INVALID ENTRY|REFERENCE AIPORT\nFORMAT:4 CHARACTERS\nEGLL   VHHH\nRJAA   KJFK");
    pos_init.RefAirport = "KSEA";
    EXPECT_EQ(Posted("NOT IN DATABASE", 4, 19, kCaptain, kCaptain),
              "4|NOT IN DATABASE|REF GATE NOT FOUND\nFOR AIRPORT 'KSEA'");
    PostCduMessage("INVALID ENTRY", 4, 52, kBothSides);
    EXPECT_EQ(Newest(kCaptain), "4|INVALID ENTRY|VREF\nRANGE: 100 To 240 Kts\nFORMAT: 155  139");
    EXPECT_EQ(Newest(kFirstOfficer), "4|INVALID ENTRY|VREF\nRANGE: 100 To 240\nFORMAT: 155  139");
    EXPECT_EQ(Posted("INVALID ENTRY", 4, 2, kCaptain, kCaptain),
              "4|INVALID ENTRY|FUEL RESERVES\nRANGE: 0.0 TO 210\nFORMAT:\n 5.321  10.45  123.5");
    cfg.WeightUnit = "KGS";
    EXPECT_EQ(Posted("INVALID ENTRY", 4, 2, kCaptain, kCaptain),
              "4|INVALID ENTRY|FUEL RESERVES\nRANGE: 0.0 TO 95\nFORMAT:\n 5.321  10.45  123.5");
}

TEST(CrewMessages, WhatHasNoTextIsNotPostedAndAnAdvisoryStandsOnce) {
    ResetSystemState();
    for (const int help_id : {3, 27, 49, 58, -1}) PostCduMessage("INVALID ENTRY", 4, help_id, kBothSides);
    PostCduMessage("NO SUCH TITLE", 2, 0, kBothSides);
    EXPECT_EQ(cdu[0].CduMessageCount + cdu[1].CduMessageCount, 0);
    PostCduMessage("DRAG REQUIRED", kAdvisory, kHelpDragRequired, kBothSides);
    PostCduMessage("DRAG REQUIRED", kAdvisory, kHelpDragRequired, kBothSides);
    EXPECT_EQ(cdu[0].CduMessageCount, 1);
    EXPECT_EQ(cdu[1].CduMessageCount, 1);
    EXPECT_EQ(cdu[1].CduMessages[1].side, kBothSides);
}

TEST(CrewMessages, RemovalClosesTheGap) {
    ResetSystemState();
    for (const char* title : {"A", "B", "C", "B"}) PostCduMessage(title, 2, 8, kCaptain);
    RemoveCduMessageByTitle("B");
    ASSERT_EQ(cdu[0].CduMessageCount, 3);
    EXPECT_EQ(cdu[0].CduMessages[2].title, "C");
    EXPECT_EQ(cdu[0].CduMessages[3].title, "B");
    EXPECT_EQ(cdu[0].CduMessages[4].title, "");
    RemoveCduMessageByTitle("NONE");
    EXPECT_EQ(cdu[0].CduMessageCount, 3);
}

}  // namespace
