#pragma once

/// Chooses the speed target of the flight phase, `vnav_ias` or `vnav_mach`, and marks it as standing. Only
/// with VNAV engaged and an active plan.
void VnavSpeedStep();
