#include "host/aircraft/fire_bottles.h"

#include <algorithm>

#include "host/aircraft/aircraft.h"

namespace host {
namespace {

constexpr std::size_t kApu = 2;
constexpr int kFirstBottle = 2, kSecondBottle = 3;  // positions of a handle
constexpr Failure kFires[] = {kFireLeft, kFireRight, kFireApu};

}  // namespace

void StepFires(Aircraft& aircraft, double dt) {
    constexpr double kSmothers = 5;  // s
    FireBottles& bottles = aircraft.bottles;
    for (std::size_t place = 0; place < std::size(kFires); ++place) {
        const int handle = aircraft.switches.fire_handles[place];
        if (handle == kFirstBottle || handle == kSecondBottle) {
            const std::size_t bottle = place == kApu ? kApu : static_cast<std::size_t>(handle - kFirstBottle);
            if (!bottles.spent[bottle]) bottles.smothering[place] = kSmothers;
            bottles.spent[bottle] = true;
        }
        double& left = bottles.smothering[place];
        if (left <= 0) continue;
        left = std::max(left - dt, 0.0);
        if (left == 0) aircraft.fails[kFires[place]] = false;
    }
}

}  // namespace host
