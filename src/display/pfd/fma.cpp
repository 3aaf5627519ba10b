#include "display/pfd/fma.h"

#include "state/autoflight.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/instruments.h"
#include "state/lnav.h"
#include "state/sim.h"

namespace {

struct ModeText {
    int mode;
    std::string_view text;
};
constexpr ModeText kThrottleModes[] = {
    {kThrottleSpd, "SPD"},   {kThrottleMach, "MACH"}, {kThrottleIdle, "IDLE"}, {kThrottleThrRef, "THR REF"},
    {kThrottleHold, "HOLD"}, {kThrottleThr, "THR"},   {kThrottleThrToo, "THR"}};
constexpr ModeText kRollModes[] = {
    {kLatAtt, "ATT"},        {kLatHdgHold, "HDG HOLD"}, {kLatHdgSel, "HDG SEL"}, {kLatTrkHold, "TRK HOLD"},
    {kLatTrkSel, "TRK SEL"}, {kLatLnav, "LNAV"},        {kLatLoc, "LOC"},        {kLatRollout, "ROLLOUT"},
    {kLatToGa, "TO/GA"},     {kLatFac, "FAC"}};
constexpr ModeText kPitchModes[] = {{kVertAlt, "ALT"},          {kVertVs, "V/S"},
                                    {kVertFpa, "FPA"},          {kVertFlch, "FLCH"},
                                    {kVertVnavSpd, "VNAV SPD"}, {kVertVnavPth, "VNAV PTH"},
                                    {kVertGs, "G/S"},           {kVertFlare, "FLARE"},
                                    {kVertToGa, "TO/GA"},       {kVertGp, "G/P"}};

template <std::size_t N>
std::string_view TextOfMode(const ModeText (&modes)[N], int mode) {
    for (const ModeText& row : modes)
        if (row.mode == mode) return row.text;
    return "";
}

std::string_view ThrottleText(int mode) {
    const bool by_profile =
        autoflight.ap_vert_mode == kVertVnavSpd || autoflight.ap_vert_mode == kVertVnavPth;
    if (mode == kThrottleMach && by_profile) return "SPD";
    return TextOfMode(kThrottleModes, mode);
}

}  // namespace

ModeTexts AutothrottleTexts() {
    const bool left = autoflight.at_armed_left == 1, right = autoflight.at_armed_right == 1;
    const std::string_view active = ThrottleText(autoflight.at_mode);
    const std::string_view one_side = left == right || active.empty() ? "" : left ? "L-" : "R-";
    return {std::string(one_side) + std::string(active), std::string(ThrottleText(autoflight.at_mode_armed))};
}

ModeTexts RollTexts() {
    const bool by_default = cfg.LnavDefAp == 1 && lnav.lnav_engaged == 1;
    return {std::string(TextOfMode(kRollModes, by_default ? kLatLnav : autoflight.ap_lat_mode)),
            std::string(TextOfMode(kRollModes, autoflight.ap_lat_mode_armed))};
}

ModeTexts PitchTexts() {
    const int armed = autoflight.ap_vert_mode_armed;
    return {std::string(TextOfMode(kPitchModes, autoflight.ap_vert_mode)),
            armed == kVertVnavSpd ? "VNAV" : std::string(TextOfMode(kPitchModes, armed))};
}

AutoflightStatus StatusOfAutoflight(bool director) {
    constexpr double kLandingHeight = 1500, kNoAutolandBelow = 100;  // ft
    const int roll = autoflight.ap_lat_mode, pitch = autoflight.ap_vert_mode;
    const bool engaged = IsAutopilotEngaged();
    if (engaged && sim.radio_alt_ft < kLandingHeight && roll == kLatLoc && pitch == kVertGs)
        return {"LAND 3", false, false};
    if (sim.radio_alt_ft < kNoAutolandBelow && roll == kLatFac && pitch == kVertGp)
        return {"NO AUTOLAND", true, false};
    if (engaged) return {"A/P", false, autoflight.ap_status_timer > 0};
    if (director) return {"FLT DIR", false, instruments.fd_status_timer > 0};
    return {"", false, false};
}

void DrawFma(const PfdView& view) {
    constexpr int kX = -83, kY = -125, kWidth = 162, kHeight = 18, kBoxHeight = 9;
    constexpr double kActiveY = -124, kArmedY = -114;  // tops of the rows
    constexpr float kSize = 8;
    Graphics& graphics = view.graphics;
    GdipFillRectangleI(graphics, TapeFill(), kX, kY, kWidth, kHeight);
    GdipDrawRectangleI(graphics, TapeFrame(), kX, kY, kWidth, kHeight);
    for (const int x : {-33, 29}) Line(graphics, x, kY, x, kY + kHeight, kWhite);
    for (const ModeColumn& column : kModeColumns) {
        const ModeTexts texts = column.texts();
        CentredText(graphics, column.middle, kActiveY, kSize, kGreen, texts.active);
        CentredText(graphics, column.middle, kArmedY, kSize, kWhite, texts.armed);
        if (autoflight.*column.timer > 0)
            BoxOutline(graphics, column.box_x, kY, column.box_width, kBoxHeight, kGreen);
    }
    if (autoflight.fd_pitch_bar_off == 1) Line(graphics, 40, -120, 70, -120, kWhite);
}

void DrawAutoflightStatus(const PfdView& view) {
    constexpr double kMiddle = 4, kY = -88;
    constexpr float kSize = 11;
    const int switch_on = IsOnCaptains(view) ? cockpit.capt_fd_switch : cockpit.fo_fd_switch;
    const AutoflightStatus status = StatusOfAutoflight(switch_on == 1 && IsIrsOn());
    CentredText(view.graphics, kMiddle, kY, kSize, status.caution ? kAmber : kGreen, status.text);
    if (status.boxed) BoxOutline(view.graphics, -26, -90, 60, 15, kGreen);
}
