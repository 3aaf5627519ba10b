#include "systems/status_dots.h"

#include <algorithm>

#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/electrical.h"
#include "state/fuel_pumps.h"
#include "state/hydraulics.h"
#include "state/irs.h"
#include "state/power_words.h"
#include "state/sim.h"
#include "state/surfaces.h"
#include "state/synoptics.h"

namespace {

constexpr int kNormalDot = 1, kAmberDot = 8;
constexpr int kWeakFuelPressure = 10;
constexpr int kSurfacesPressure = 2000, kUsersPressure = 3000;  // psi
constexpr double kCoolingFuel = 4800;                           // lb, cools the oil of the pumps of a side

bool IsAnySystemBelow(int psi) {
    return std::min({hydraulics.tz_hyd_press_l, hydraulics.tz_hyd_press_c, hydraulics.tz_hyd_press_r}) < psi;
}

bool IsFuelAmber() {
    const auto weak = [](int button, int pressure) { return button == 1 && pressure < kWeakFuelPressure; };
    return weak(cockpit.fuelpump_l_fwd_button, fuel_pumps.press_fwd_l) ||
           weak(cockpit.fuelpump_l_aft_button, fuel_pumps.press_aft_l) ||
           weak(cockpit.fuelpump_r_fwd_button, fuel_pumps.press_fwd_r) ||
           weak(cockpit.fuelpump_r_aft_button, fuel_pumps.press_aft_r) ||
           weak(cockpit.fuelpump_l_center_button, fuel_pumps.press_ctr_l) ||
           weak(cockpit.fuelpump_r_center_button, fuel_pumps.press_ctr_r);
}

bool IsElectricalAmber() {
    return !AreAllBusesAlive() || cockpit.drive_disc_l1 == 1 || cockpit.drive_disc_l2 == 1 ||
           cockpit.drive_disc_r1 == 1 || cockpit.drive_disc_r2 == 1;
}

bool HasAnySurfaceFailed() {
    const SurfaceState& s = surfaces;
    const double all[] = {s.aileron_left,  s.aileron_right,  s.flaperon_left, s.flaperon_right,
                          s.elevator_left, s.elevator_right, s.spoiler_1,     s.spoiler_2,
                          s.spoiler_3,     s.spoiler_4,      s.spoiler_5,     s.spoiler_6,
                          s.spoiler_7,     s.spoiler_8,      s.spoiler_9,     s.spoiler_10,
                          s.spoiler_11,    s.spoiler_12,     s.spoiler_13,    s.spoiler_14};
    return std::ranges::find(all, kFailedSurface) != std::end(all);
}

bool IsLeftStabiliserCut() {
    return cockpit.TZ_THQ_Stab_Norm_L2 == 1 && cockpit.TZ_THQ_Stab_Norm_R2 != 1;
}

bool AreFlightControlsAmber() {
    return HasAnySurfaceFailed() || IsAnySystemBelow(kSurfacesPressure) || electrical.gen_l2_pwr == 0 ||
           electrical.gen_r2_pwr == 0 || cfg.PfcSwitch == kPfcDisconnected ||
           (irs.irs_left == 0 && irs.irs_right == 0) || IsLeftStabiliserCut();
}

bool IsGearAmber() {
    const SurfaceState& s = surfaces;
    return std::max({s.Brake_Temp1, s.Brake_Temp2, s.Brake_Temp3, s.Brake_Temp4, s.Brake_Temp5, s.Brake_Temp6,
                     s.Brake_Temp7, s.Brake_Temp8}) >= kHotBrake;
}

bool AreHydraulicsAmber() {
    const HydraulicState& h = hydraulics;
    const bool left = h.eng_pump_l == 1 || h.elec_pump_l == 1 || h.elec_pump_c1 == 1;
    const bool right = h.eng_pump_r == 1 || h.elec_pump_r == 1 || h.elec_pump_c2 == 1;
    return IsAnySystemBelow(kUsersPressure) || (left && sim.left_fuel < kCoolingFuel) ||
           (right && sim.right_fuel < kCoolingFuel);
}

int Dot(bool amber) {
    return amber ? kAmberDot : kNormalDot;
}

}  // namespace

void SetStatusDots() {
    synoptics.door_status = Dot(sim.door_count > 0);
    synoptics.fuel_status = Dot(IsFuelAmber());
    synoptics.elec_status = Dot(IsElectricalAmber());
    synoptics.fctl_status = Dot(AreFlightControlsAmber());
    synoptics.gear_status = Dot(IsGearAmber());
    synoptics.hyd_status = Dot(AreHydraulicsAmber());
}
