#include "display/synoptics/efis_dsp_page.h"

#include "display/routing/instrument_controls.h"
#include "display/routing/nd_controls.h"
#include "display/routing/routing.h"
#include "state/instruments.h"
#include "state/nd.h"
#include "state/side.h"
#include "systems/alerting/message_lists.h"

namespace {

const PfdSide& PfdOf(int side) {
    return instruments.pfd[side == kFirstOfficer ? 1 : 0];
}

struct PanelKey {
    std::string_view text;
    SoftKeyBox box;
    void (*press)(int side);
    bool (*is_on)(int side) = nullptr;  // null: nothing stays
};
constexpr int kPanelWidth = 56, kPanelHeight = 24, kKeyColumn1 = 296, kKeyColumn2 = 362, kKeyColumn3 = 428,
              kKeyColumn4 = 494;
constexpr PanelKey kPanelKeys[] = {
    {"RADIO",
     {kKeyColumn1, 130, kPanelWidth, kPanelHeight},
     [](int) { instruments.minimums_baro = 0; },
     [](int) { return instruments.minimums_baro == 0; }},
    {"BARO",
     {kKeyColumn2, 130, kPanelWidth, kPanelHeight},
     [](int) { instruments.minimums_baro = 1; },
     [](int) { return instruments.minimums_baro == 1; }},
    {"MTRS",
     {kKeyColumn3, 130, kPanelWidth, kPanelHeight},
     ToggleMetres,
     [](int side) { return PfdOf(side).mtrs_on == 1; }},
    {"TERR",
     {kKeyColumn4, 130, kPanelWidth, kPanelHeight},
     PressTerrainButton,
     [](int side) { return NdOf(side).nd_terr != 0; }},
    {"INFO",
     {kKeyColumn1, 250, kPanelWidth, kPanelHeight},
     [](int side) { PressInboardFormat(side, Content::kInfo); }},
    {"CHKL",
     {kKeyColumn2, 250, kPanelWidth, kPanelHeight},
     [](int side) { PressInboardFormat(side, Content::kChkl); }},
    {"COMM",
     {kKeyColumn3, 250, kPanelWidth, kPanelHeight},
     [](int side) { PressInboardFormat(side, Content::kComm); }},
    {"EICAS", {kKeyColumn4, 250, kPanelWidth, kPanelHeight}, [](int) { PressEicas(); }},
    {"CANC/RCL", {kKeyColumn1, 290, kPanelWidth, kPanelHeight}, [](int) { CancelRecall(); }},
};

}  // namespace

void DrawEfisDspPage(const SysPage& page) {
    DrawSysTitle(page, kPageMiddle, 76, "EFIS CTRL BACKUP");
    DrawSysValue(page, kPageMiddle, 94, page.side == kFirstOfficer ? "F/O" : "CAPT", kMagenta);
    DrawSysBox(page, 290, 108, 266, 100, FlowState::kDead);
    DrawSysLabel(page, 355, 118, "MINS");
    DrawSysLabel(page, kPageMiddle, 172, "BARO SET");
    DrawSysValue(page, kPageMiddle, 186, "29.29 UL");
    DrawSysLabel(page, kPageMiddle, 198, "IN HG");
    DrawSysBox(page, 290, 222, 266, 104, FlowState::kDead);
    DrawSysLabel(page, kPageMiddle, 234, "DSP");
    for (const PanelKey& key : kPanelKeys)
        DrawSoftKey(page.graphics, key.box, key.text,
                    {.active = key.is_on != nullptr && key.is_on(page.side)});
}

void TouchEfisDspPage(const FormatTouch& at) {
    for (const PanelKey& key : kPanelKeys)
        if (IsOnKey(key.box, at)) return key.press(at.side);
}
