#pragma once

// Fuel put into the host's tanks, in pounds. The quantities wait in `weights` until the simulator client has
// answered; without a weight per gallon of the host nothing happens.

void LoadFuel(double left_lb, double right_lb, double centre_lb);

/// Fills the main tanks evenly, then the centre tank with what they don't hold.
void LoadTotalFuel(double total_lb);
