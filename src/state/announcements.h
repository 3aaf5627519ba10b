#pragma once

#include <span>

#include "state/variable.h"

/// How far the voices of the flight deck and of the cabin have come. Panel states keep them.
struct AnnouncementState {
    int cockpit_callout_mode = 0;
    int annuncement_mode = 0;
    int ldg_checklist_mode = 0;                       // 0 idle, 1 requested, 2 called, 10 finished
    int crew_spacing_secs = 0, pax_spacing_secs = 0;  // until the next may speak
    int get_pax_flag = 0;
    int cargo_doors_anun = 0;
};

extern AnnouncementState announcements;
extern const std::span<const Variable> kAnnouncementVariables;
