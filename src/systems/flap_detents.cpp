#include "systems/flap_detents.h"

#include "state/identity.h"
#include "state/sim.h"

namespace {

constexpr FlapDetentRow kSevenDetents[] = {{0, 0},     {2340, 1},   {4681, 5},  {7021, 15},
                                           {9362, 20}, {11702, 25}, {14043, 30}};
constexpr FlapDetentRow kTenDetents[] = {{0, 0},     {1820, 1},   {3640, 5},   {5461, 10},  {7281, 15},
                                         {9102, 17}, {10922, 18}, {12743, 20}, {14563, 25}, {16384, 30}};

}  // namespace

std::span<const FlapDetentRow> FlapDetents() {
    const bool ten = identity.aircraft_model == "900-9" || identity.aircraft_model == "900-10";
    return ten ? std::span<const FlapDetentRow>(kTenDetents) : kSevenDetents;
}

int FlapDetent() {
    int flaps = 0;
    for (const FlapDetentRow& detent : FlapDetents())
        if (sim.flap_pos >= detent.raw) flaps = detent.flaps;
    return flaps;
}
