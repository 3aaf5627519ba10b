#pragma once

/// The speeds that the flight is planned with: knots and Mach.
struct PlannedSpeeds {
    double climb_ias = 0, climb_mach = 0;
    double cruise_ias = 0, cruise_mach = 0;
    double descent_ias = 0, descent_mach = 0;
};

/// Which of them the crew has selected in place of economy, so that a cost index leaves them: 1 each.
struct SpeedSelections {
    int ClimbSelected = 0, climb_mach_manual = 0;
    int CruiseSelected = 0, CruiseMachSelected = 0;
    int DescentSelected = 0, descent_mach_manual = 0;
    int LrcSelected = 0;  // long-range cruise, in place of the cost index's
};

/// Each of the six with the mark of its selection.
struct PlannedSpeed {
    double PlannedSpeeds::*speed;
    int SpeedSelections::*selected;
};
constexpr PlannedSpeed kPlannedSpeeds[] = {
    {&PlannedSpeeds::climb_ias, &SpeedSelections::ClimbSelected},
    {&PlannedSpeeds::climb_mach, &SpeedSelections::climb_mach_manual},
    {&PlannedSpeeds::cruise_ias, &SpeedSelections::CruiseSelected},
    {&PlannedSpeeds::cruise_mach, &SpeedSelections::CruiseMachSelected},
    {&PlannedSpeeds::descent_ias, &SpeedSelections::DescentSelected},
    {&PlannedSpeeds::descent_mach, &SpeedSelections::descent_mach_manual},
};
