#pragma once

/// The speeds that the flight is planned with: knots and Mach.
struct PlannedSpeeds {
    double climb_ias = 0, climb_mach = 0;
    double cruise_ias = 0, cruise_mach = 0;
    double descent_ias = 0, descent_mach = 0;
};

/// Which of them the crew has selected in place of economy, so that a cost index leaves them: 1 each.
struct SpeedSelections {
    int climb_ias = 0, climb_mach = 0;
    int cruise_ias = 0, cruise_mach = 0;
    int descent_ias = 0, descent_mach = 0;
};

/// Each of the six with the mark of its selection.
struct PlannedSpeed {
    double PlannedSpeeds::*speed;
    int SpeedSelections::*selected;
};
constexpr PlannedSpeed kPlannedSpeeds[] = {
    {&PlannedSpeeds::climb_ias, &SpeedSelections::climb_ias},
    {&PlannedSpeeds::climb_mach, &SpeedSelections::climb_mach},
    {&PlannedSpeeds::cruise_ias, &SpeedSelections::cruise_ias},
    {&PlannedSpeeds::cruise_mach, &SpeedSelections::cruise_mach},
    {&PlannedSpeeds::descent_ias, &SpeedSelections::descent_ias},
    {&PlannedSpeeds::descent_mach, &SpeedSelections::descent_mach},
};
