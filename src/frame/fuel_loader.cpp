#include "frame/fuel_loader.h"

#include <algorithm>

#include "frame/sim_client.h"
#include "frame/tokens.h"
#include "platform/host.h"
#include "state/weights.h"

namespace {

// The host takes a tank below these for empty.
constexpr double kMinMainTankGal = 15;
constexpr double kMinCentreTankGal = 2;

// Capacity tokens stand behind the level tokens of the centre, left and right tanks.
constexpr int kCentreCapacity = kTokenFuelTankFirst + 1;
constexpr int kLeftCapacity = kCentreCapacity + 2;
constexpr int kRightCapacity = kLeftCapacity + 6;

}  // namespace

void LoadFuel(double left_lb, double right_lb, double centre_lb) {
    const double lb_per_gal = ReadToken(kTokenFuelWeightPerGallon);
    if (!(lb_per_gal > 0)) return;
    weights.fuel_load_left = std::max(left_lb / lb_per_gal, kMinMainTankGal);
    weights.fuel_load_right = std::max(right_lb / lb_per_gal, kMinMainTankGal);
    weights.fuel_load_centre = std::max(centre_lb / lb_per_gal, kMinCentreTankGal);
    Host().send_client_event(kClientEventFuel);
}

void LoadTotalFuel(double total_lb) {
    const double lb_per_gal = ReadToken(kTokenFuelWeightPerGallon);
    const double left = std::min(total_lb / 2, ReadToken(kLeftCapacity) * lb_per_gal);
    const double right = std::min(total_lb / 2, ReadToken(kRightCapacity) * lb_per_gal);
    const double centre = std::min(total_lb - left - right, ReadToken(kCentreCapacity) * lb_per_gal);
    LoadFuel(left, right, centre);
}
