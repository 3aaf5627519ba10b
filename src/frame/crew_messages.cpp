#include "frame/crew_messages.h"

#include <algorithm>
#include <string>

#include "state/cdu.h"
#include "state/cfg.h"
#include "state/pos_init.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

// Texts stand as the crew knows them, slips included.

struct FixedMessage {
    std::string_view title;
    std::string_view body;
};

// A title that stands twice is posted with its first row.
constexpr FixedMessage kFixedMessages[] = {
    {"RESET MCP ALT", "MCP ALTITUDE IS SET TO\nCRUISE ALT\n SET LOWER ALTITUDE TO\nENABLE VNAV DESCENT"},
    {"NO ACTIVE GPS RTE", "NO ACTIVE FLIGHTPLAN\nIN FS PLANNER"},
    {"NO ACTIVE FLIGHT PLAN", "A FLIGHT PLAN MUST BE ACTIVE\nIN ORDER TO BE SAVED"},
    {"INVALID ENTRY", "INVALID ENTRY"},
    {"NOT IN DATABASE", "NOT IN DATABASE"},
    {"INVALID DELETE", "SELECTED LINE CAN NOT\nBE DELETED"},
    {"VERIFY RNP ENTRY", "ENTERED VALUE\nGREATER THAN DEFAULT\nRNP OR LESS THAN ANP\nCONFIRM RNP"},
    {"RESET MCP ALT", "MCP ALTITUDE IS SET TO\nCRUISE ALT SET LOWER\nALTITUDE TO ENABLE\nVNAV DESCENT"},
};

struct HelpText {
    int id;
    std::string_view title;  // empty = the caller's text
    std::string_view body;
    enum Use {
        kPlain,
        kGivenThenBody,         // the caller's text, then the body
        kOtherForKgs,           // `other` with the weight unit KGS
        kOtherForFirstOfficer,  // `other` goes to the first officer's list
        kRefAirport,            // body, the reference airport, `other`
    } use = kPlain;
    std::string_view other = {};
};

constexpr HelpText kHelpTexts[] = {
    {1, "FLIGHT PLAN SAVED", "\nSaved", HelpText::kGivenThenBody},
    {2, "", "FUEL RESERVES\nRANGE: 0.0 TO 210\nFORMAT:\n 5.321  10.45  123.5", HelpText::kOtherForKgs,
     "FUEL RESERVES\nRANGE: 0.0 TO 95\nFORMAT:\n 5.321  10.45  123.5"},
    {4, "",
     "COST INDEX\nRANGE -1 AND 999\nENTER COST INDEX BEFORE\nBEING WITHIN 10 MILES\nOF THE TOP OF DESCENT"},
    {5, "", "REFERENCE AIPORT\nFORMAT:4 CHARACTERS\nEGLL   VHHH\nRJAA   KJFK"},
    {6, "", "AIRPORT CODE NOT FOUND\nIN DATABASE"},
    {7, "", "COMPANY ROUTE NOT FOUND\nIN DATABASE"},
    {8, "", "ENTRY NOT ALLOWED\nON SELECTED LINE"},
    {9, "", "ROUTE NOT FOUND\nIN DATABASE"},
    {10, "",
     "ENTER FIX Radial / Range\nRANGE: 0.0 To 1250.0\nFORMAT:Radial (optional)/Distance\n/20.0\n210/20.0"},
    {11, "", "CG\nRANGE: 8 TO 39"},
    {12, "", "CURRENT DATE NOT IN\nDATA BASE RANGE"},
    {13, "", "REQUIRED NAV PERFORMANCE\nRANGE: 0.01 TO 99.90\nFORMAT: 0.1\n  0.12  99.0",
     HelpText::kOtherForFirstOfficer, "RNP\nRANGE: 0.01 TO 99.90\nFORMAT: 0.50  0.75  1.50  4.00"},
    {14, "", "LAT LONG\nFORMAT: N3337.7W11120.0"},
    {15, "", "ALTN INHIBIT AIRPORT\nFORMAT: APT1  APT1/APT2  /APT2"},
    {16, "", "ENTER FLIGHT NUMBER\nMAX 10 CHARACTERS"},
    {17, "", "FLEX TEMP\nRANGE: 0 TO 99\nFORMAT: 0 55  99"},
    {18, "", "TOGW\nRANGE: 100.0 TO 600.0"},
    {19, "", "REF GATE NOT FOUND\nFOR AIRPORT '", HelpText::kRefAirport, "'"},
    {20, "", "CRUISE ALTITUDE\nRANGE: 1000 To FL431\nFORMAT: 280  FL280\nFORMAT: 15000  9000  0800  0050"},
    {21, "INVALID ILS ENTRY",
     "ILS FREQ\nRANGE: 108.10 TO 111.95\nFORMAT: .10 .15 .30 .95\nCRS\nRANGE: 000  TO  359\nFORMAT: "
     "108.10/258   111.95/325"},
    {22, "", "TRANSITION LVL\nRANGE: 1000 To FL431\nFORMAT: 280  FL280\nFORMAT: 15000  9000  0800  0050"},
    {23, "", "INERTIAL/ORIGIN DISAGREE"},
    {24, "", "COMPUTED TOP OF DESCENT\nIS BEFORE TOP OF CLIMB"},
    {25, "", "UNABLE TO MAINTAIN VNAV\nDESCENT SPEED\nEXTEND SPEEDBRAKES AS\nREQUIRED"},
    {26, "PANEL STATE SAVED", "\nOK", HelpText::kGivenThenBody},
    {28, "LOAD PANEL STATE", "\nOK", HelpText::kGivenThenBody},
    {29, "PANEL STATE LOAD FAIL", "", HelpText::kGivenThenBody},
    {30, "PANEL STATE LOAD FAIL", "AIRCAFT MODEL DOES NOT MATCH\nPANEL SAVE"},
    {31, "PANEL STATE LOAD FAIL", "AIRCAFT NOT WITHIN\n2 NM OF PANEL SAVE POSITION"},
    {32, "PANEL STATE LOAD FAIL", "AIRCAFT ALTITUDE NOT WITHIN 200 FT OF\nPANEL SAVE"},
    {33, "PANEL STATE LOAD FAIL", "AIRCAFT HEADING NOT WITHIN\n12 DEGREES OF PANEL SAVE"},
    {34, "", "WIND CORR\nRANGE: 0 To 20"},
    {35, "", "ENTER CRZ CG\nBETWEEN 6.0 AND 39.5"},
    {36, "", "ENTER ACCEL HT\nBETWEEN 400 AND 9999"},
    {37, "", "ENTER THRUST REDUCTION ALT\nBETWEEN 400 AND 9999"},
    {38, "", "SET INERTIAL POSITION\nFORMAT:\nLAT/LON- N4722.5W12208.3"},
    {39, "",
     "FUEL WEIGHT\nRANGE: 0.0 TO 235.0\nOR ENTRY EXCEEDS\nMAX GWT OF 595.0\nFORMAT: 67   54.1\n120   215.6",
     HelpText::kOtherForKgs,
     "FUEL WEIGHT\nRANGE: 0.0 TO 106.5\nOR ENTRY EXCEEDS\nMAX GWT OF 270.0\nFORMAT: 67   54.1\n120   215.6"},
    {40, "",
     "ZERO FUEL WEIGHT\nZFW RANGE: 242.0 TO 420.0\nOR ENTRY EXCEEDS\nMAX GWT OF 595.0\nFORMAT: 245   394.8",
     HelpText::kOtherForKgs,
     "ZERO FUEL WEIGHT\nZFW RANGE: 110.0 TO 190.0\nOR ENTRY EXCEEDS\nMAX GWT OF 269.0\nFORMAT: 145   174.8"},
    {41, "", "ORIGIN AIPORT\nFORMAT:4 CHARACTERS\nEGLL   VHHH\nRJAA   KJFK"},
    {42, "", "DESTINATION AIRPORT\nFORMAT:4 CHARACTERS\nEGLL   VHHH\nRJAA   KJFK"},
    {43, "", "SPEED\nCAS RANGE: 100 TO 400\nMACH RANGE:  .100 TO .990\nFORMAT\n280  280/.80 .810"},
    {44, "", "STEP SIZE\nRANGE: 0 TO 9000 FT:\n1000 FT INCREMENTS"},
    {45, "SAVE CONFIG", "\nOK", HelpText::kGivenThenBody},
    {46, "", "ENTER ARM\nTO ENABLE ENTRY\nRANGE: -9.9 To +9.9\nFORMAT:\n-1.2/+5.1\n/-4.7  -6.2  +8.5"},
    {47, "", "STEP ALT Cannot Exceed MAX ALT"},
    {48, "", "WIND ALTITUDE\nRANGE: 1000 To FL431\nFORMAT: 280  FL280\nFORMAT: 15000  9000  0800  0050"},
    {50, "", "ACTIVESKY WEATHER DATA NOT FOUND\n\nwx_station_list.txt\n\ncurrent_wx_snapshot.txt"},
    {51, "", "TAI/ON ALTITUDE\nRANGE: 1000 To FL431\nFORMAT: 280  FL280\nFORMAT: 15000  9000  0800  0050"},
    {52, "", "VREF\nRANGE: 100 To 240 Kts\nFORMAT: 155  139", HelpText::kOtherForFirstOfficer,
     "VREF\nRANGE: 100 To 240\nFORMAT: 155  139"},
    {53, "", "Wind Direction/Speed\nFORMAT: 210/15"},
    {54, "", "Max Four Wind Altiude Items\nDelete Item to enter new item"},
    {55, "",
     "WIND ALT/OAT\nRANGE: 1000 To FL431/-99 to 60\nFORMAT: 280/210  FL280/-21\nFORMAT: 15000  9000  0800  "
     "0050\n-99 -15 5"},
    {56, "WIND DATA UPLINK COMPLETED", "", HelpText::kGivenThenBody},
    {57, "WIND DATA UPLINK READY", "LOAD ON\nRTE DATA PAGE"},
};

std::string BodyOf(const HelpText& help, std::string_view given, int side) {
    const bool other = (help.use == HelpText::kOtherForKgs && cfg.WeightUnit == "KGS") ||
                       (help.use == HelpText::kOtherForFirstOfficer && side == kFirstOfficer);
    if (other) return std::string(help.other);
    std::string body(help.body);
    if (help.use == HelpText::kGivenThenBody) body.insert(0, given);
    if (help.use == HelpText::kRefAirport) body.append(pos_init.RefAirport).append(help.other);
    return body;
}

void Push(int list_side, CduMessage message) {
    CduState& unit = CduOf(list_side);
    unit.CduMessages[++unit.CduMessageCount] = std::move(message);
}

// Place of the first message with that title in a side's list, 0 = none.
int FindByTitle(CduState& unit, std::string_view title) {
    for (int i = 1; i <= unit.CduMessageCount; ++i)
        if (unit.CduMessages[i].title == title) return i;
    return 0;
}

// Those above close the gap; 0 removes nothing.
void RemoveAt(CduState& unit, int place) {
    if (place == 0) return;
    for (int i = place; i < unit.CduMessageCount; ++i) unit.CduMessages[i] = unit.CduMessages[i + 1];
    unit.CduMessages[unit.CduMessageCount--] = {};
}

}  // namespace

void PostCduMessage(std::string_view title, int kind, int help_id, int side) {
    const auto* fixed = std::ranges::find(kFixedMessages, title, &FixedMessage::title);
    const auto* help = std::ranges::find(kHelpTexts, help_id, &HelpText::id);
    const bool of_fixed_list = help_id == kHelpFixedList;
    if (of_fixed_list ? fixed == std::end(kFixedMessages) : help == std::end(kHelpTexts)) return;
    const std::string_view shown_title = of_fixed_list || help->title.empty() ? title : help->title;
    if (kind == kAdvisory && IsCduMessagePosted(shown_title)) return;
    for (const int addressed : {kCaptain, kFirstOfficer}) {
        if ((side & addressed) == 0) continue;
        Push(addressed,
             {std::string(shown_title),
              of_fixed_list ? std::string(fixed->body) : BodyOf(*help, title, addressed), kind, side});
    }
}

bool IsCduMessagePosted(std::string_view title) {
    return FindByTitle(CduOf(kCaptain), title) > 0;
}

void RemoveCduMessageByTitle(std::string_view title) {
    for (CduState& unit : cdu) RemoveAt(unit, FindByTitle(unit, title));
}

void ClearCduMessage(int side) {
    CduState& unit = CduOf(side);
    if (unit.CduMessageCount == 0) return;
    const CduMessage cleared = unit.CduMessages[unit.CduMessageCount];
    if (cleared.title == kDragRequired) {
        RemoveCduMessageByTitle(kDragRequired);
        vnav.drag_msg_changed_at = sim.abs_time;
        return;
    }
    RemoveAt(unit, unit.CduMessageCount);
    CduState& other = CduOf(side == kCaptain ? kFirstOfficer : kCaptain);
    for (int i = other.CduMessageCount; i >= 1; --i) {
        const CduMessage& message = other.CduMessages[i];
        if (message.title != cleared.title || message.body != cleared.body || message.kind != cleared.kind)
            continue;
        RemoveAt(other, i);
        return;
    }
}
