#include "systems/irs.h"

#include <algorithm>

#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/irs.h"
#include "state/side.h"
#include "state/time_base.h"

namespace {

constexpr int kMostAlignSecs = 24 * 3600;  // the setting may be any number

struct IrsUnit {
    int CockpitState::*knob;
    int IrsState::*timer;
    int IrsState::*aligned;
};
constexpr IrsUnit kUnits[] = {
    {&CockpitState::irs_left_knob, &IrsState::irs_timer_l, &IrsState::irs_left},
    {&CockpitState::irs_right_knob, &IrsState::irs_timer_r, &IrsState::irs_right},
};

}  // namespace

void FollowIrsKnob(int side) {
    const IrsUnit& unit = kUnits[side == kFirstOfficer ? 1 : 0];
    if (cockpit.*unit.knob == 1)
        irs.*unit.timer = std::max(std::clamp(cfg.IrsAlignSecs, 0, kMostAlignSecs) * kTicksPerSecond, 1);
    else
        irs.*unit.aligned = 0;
}

void StepIrs() {
    for (const IrsUnit& unit : kUnits) {
        int& timer = irs.*unit.timer;
        if (timer <= 0) continue;
        if (cockpit.*unit.knob == 0)
            timer = 0;
        else if (--timer == 0)
            irs.*unit.aligned = 1;
    }
}
