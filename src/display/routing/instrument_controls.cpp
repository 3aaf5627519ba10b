#include "display/routing/instrument_controls.h"

#include <algorithm>

#include "frame/key_events.h"
#include "platform/host.h"
#include "state/instruments.h"
#include "state/time_base.h"

namespace {

void Toggle(int& setting, int on = 1) {
    setting = setting == 0 ? on : 0;
}

PfdSide& PfdOf(int side) {
    return instruments.pfd[static_cast<std::size_t>(side - 1)];
}

}  // namespace

void TurnMinimums(int steps) {
    constexpr int kMost = 15000, kStep = 10;  // ft
    int& value = instruments.minimums_value;
    value = std::clamp(std::clamp(value, 0, kMost) + steps * kStep, 0, kMost);
}

void ResetMinimums() {
    Toggle(instruments.minimums_mode, 2);
}

void TurnBaro(int step) {
    SendKeyEvent(step > 0 ? kKeyBaroUp : kKeyBaroDown, 0);
}

void SetStandardBaro() {
    SendKeyEvent(kKeyBaroStandard, 0);
}

void ToggleFlightPathVector(int side) {
    Toggle(PfdOf(side).fpv_on);
}

void ToggleMetres(int side) {
    Toggle(PfdOf(side).mtrs_on);
}

void ToggleHudDeclutter() {
    Toggle(instruments.hud_declutter);
}

void ChangeStandbyBrightness(int steps) {
    constexpr double kStep = 0.1;
    instruments.stby_brightness = std::clamp(instruments.stby_brightness + steps * kStep, 0.0, 1.0);
}

void ToggleStandbyApproach() {
    Toggle(instruments.stby_app_mode, 2);
}

void ToggleStandbyBaroUnit() {
    instruments.stby_baro_in = instruments.stby_baro_in == 1 ? 0 : 1;
}

void PressElapsedTimeClock() {
    int& mode = time_base.capt_mcp_clock_mode;
    mode = mode == 2 ? 0 : mode + 1;
    time_base.et_clock_running = mode == 1 ? 1 : 0;
    if (mode == 0) time_base.et_seconds = time_base.et_minutes = 0;
}
