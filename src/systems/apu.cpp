#include "systems/apu.h"

#include <algorithm>
#include <cmath>

#include "frame/controls.h"
#include "frame/lamps.h"
#include "frame/named_variables.h"
#include "state/cockpit.h"
#include "state/electrical.h"
#include "state/power_words.h"
#include "state/sim.h"

namespace {

constexpr int kOff = 0, kOn = 1, kStart = 2;
constexpr int kStartDelayTicks = 9, kFaultTicks = 40;
constexpr int kEnoughGenerators = 3;

// Percent, and percent a tick.
constexpr double kReadyRpm = 102, kRpmStep = 0.09462962962962963;
constexpr double kCooldownFrom = 81, kCooldownTo = 80;
constexpr double kStopStep = 0.15, kCooldownStep = 0.001851851851851852;
constexpr double kLostRpm = 30, kStoppedRpm = 1;
constexpr double kFullOil = 9;

struct Gauge {
    double ElectricalState::*value;
    double step;   // a tick of the start
    double floor;  // where the stop leaves it
};
constexpr Gauge kGauges[] = {
    {&ElectricalState::apu_oil_press, 0.06666666666666667, 15},
    {&ElectricalState::apu_oil_temp, 0.014814814814814815, 29},
    {&ElectricalState::apu_oil_qty, -0.002777777777777778, 6},
    {&ElectricalState::apu_egt, 0.26666666666666666, 50},
};

void ShowFault() {
    if (cockpit.apu_switch == kOff) electrical.apu_fault_timer = 0;
    ShowLamp(NamedVar("TZ_OH_Annun_FAULT_APU"), electrical.apu_fault_timer > 0 && IsBatteryBusAlive());
    if (electrical.apu_fault_timer > 0) --electrical.apu_fault_timer;
}

void BeginStart() {
    // The oil has run back into its tank since the last stop.
    if (electrical.apu_rpm == 0) electrical.apu_oil_qty = kFullOil;
    electrical.apu_starting = 1;
}

void TakeSelector() {
    if (electrical.apu_start_delay > 0) --electrical.apu_start_delay;
    if (cockpit.apu_switch != kStart || electrical.apu_start_delay > 0) return;
    SetControl(&cockpit.apu_switch, kOn);
    if (cockpit.TZ_OH_APU_FIRE_HNDL == 0 && electrical.apu_stopping == 0) BeginStart();
}

void RampUp() {
    if (electrical.apu_starting == 0) return;
    electrical.apu_rpm += kRpmStep;
    for (const Gauge& gauge : kGauges) electrical.*gauge.value += gauge.step;
    if (electrical.apu_rpm <= kReadyRpm) return;
    electrical.apu_pwr_avail = 1;
    electrical.apu_starting = 0;
}

// It also ends a start from the cooldown: the two ramps together would never get out of its band.
void BeginStop() {
    electrical.apu_stopping = 1;
    electrical.apu_starting = 0;
}

// All gauges fall, the oil quantity too.
void LowerGauges() {
    for (const Gauge& gauge : kGauges) {
        double& value = electrical.*gauge.value;
        if (value > gauge.floor) value = std::max(value - std::fabs(gauge.step), gauge.floor);
    }
}

void RestartFromCooldown() {
    electrical.apu_starting = 1;
    electrical.apu_oil_qty = kFullOil;
    electrical.apu_cooldown = 0;
    electrical.apu_stopping = 0;
}

void RampDown() {
    ElectricalState& e = electrical;
    if (e.apu_pwr_avail == 1 && cockpit.apu_switch == kOff && e.running_gens >= kEnoughGenerators)
        BeginStop();
    if (e.apu_stopping == 0) return;
    const bool cooling = e.apu_rpm > kCooldownTo && e.apu_rpm <= kCooldownFrom;
    e.apu_cooldown = cooling ? 1 : 0;
    if (cooling && cockpit.apu_switch == kStart) return RestartFromCooldown();
    e.apu_rpm -= cooling ? kCooldownStep : kStopStep;
    LowerGauges();
    if (e.apu_rpm < kLostRpm) e.apu_pwr_avail = 0;
    if (e.apu_rpm >= kStoppedRpm) return;
    e.apu_rpm = 0;
    e.apu_stopping = 0;
}

void TakeFireHandle() {
    if (cockpit.TZ_OH_APU_FIRE_HNDL <= 0) return;
    SetControl(&cockpit.apu_switch, kOff);
    if (electrical.apu_pwr_avail == 1) BeginStop();
    electrical.apu_fault_timer = kFaultTicks;
}

}  // namespace

void StepApu() {
    ShowFault();
    TakeSelector();
    RampUp();
    RampDown();
    TakeFireHandle();
}

void FollowApuSelector(int before) {
    const int now = cockpit.apu_switch;
    if (before == kOff && now == kOn && electrical.batt_pwr == 1) electrical.apu_fault_timer = kFaultTicks;
    if (before == kOn && now == kStart) electrical.apu_start_delay = kStartDelayTicks;
    if (before == kOn && now == kOff) {
        electrical.apu_fault_timer = kFaultTicks;
        if (electrical.apu_pwr_avail == 1) BeginStop();
    }
}

void StartApuInFlight() {
    const ElectricalState& e = electrical;
    if (sim.on_ground == 0 && e.running_gens < kEnoughGenerators && e.apu_pwr_avail == 0 &&
        e.apu_starting == 0 && cockpit.TZ_OH_APU_FIRE_HNDL == 0 && e.apu_stopping == 0)
        BeginStart();
}

void PublishApu() {
    WriteNamedVar(NamedVar("tz_apu_rpm"), electrical.apu_rpm);
}
