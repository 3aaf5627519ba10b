#pragma once

#include <array>

namespace host {

/// What the cockpit's panels ask of the aircraft's own systems; left before right.
struct Switches {
    std::array<bool, 2> forward_pumps = {}, aft_pumps = {}, centre_pumps = {};  // of the fuel
    bool crossfeed = false, balance = false;
    std::array<bool, 2> packs = {};
    std::array<bool, 2> outflow_auto = {true, true};  // forward, aft
    // Left engine, right engine, APU: 0 in, 1 pulled, 2 and 3 turned to the first and the second bottle.
    std::array<int, 3> fire_handles = {};
    bool other_power = false;  // alternating current that no engine makes: the APU's or the ground's
    bool hydraulics = true;    // a system has pressure enough to move the surfaces
};

/// The panels as their variables tell them. An aircraft without the module's variables has its pressure.
Switches ReadSwitches();

}  // namespace host
