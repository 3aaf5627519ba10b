#pragma once

#include <span>

/// Where the flap lever of the aircraft's variant may stand.
struct FlapDetentRow {
    int raw;    // least position of the lever, of 16384
    int flaps;  // the setting, 0 to 30
};
std::span<const FlapDetentRow> FlapDetents();

/// The setting that the lever stands at.
int FlapDetent();
