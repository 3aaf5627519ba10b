#include "host/aircraft/ground_services.h"

#include <algorithm>
#include <string>

#include "host/aircraft/aircraft.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr GroundRow kGroundRows[] = {
    {"door_1l", "Entry 1L", "(A:EXIT OPEN:0,bool)", ""},
    {"door_2l", "Entry 2L", "(A:EXIT OPEN:1,bool)", ""},
    {"door_3l", "Entry 3L", "(L:DoorL3, bool)", "DoorL3"},
    {"door_4l", "Entry 4L", "(L:DoorL4, bool)", "DoorL4"},
    {"door_1r", "Entry 1R", "(A:EXIT OPEN:2,bool)", ""},
    {"door_2r", "Entry 2R", "(L:DoorR2, bool)", "DoorR2"},
    {"door_3r", "Entry 3R", "(L:DoorR3, bool)", "DoorR3"},
    {"door_4r", "Entry 4R", "(L:DoorR4, bool)", "DoorR4"},
    {"cargo_fwd", "Cargo fwd", "(A:EXIT OPEN:3, bool)", ""},
    {"cargo_aft", "Cargo aft", "(L:TZ_CargoDoor_aft, bool)", "TZ_CargoDoor_aft"},
    {"cargo_bulk", "Cargo bulk", "(L:TZ_CargoDoor_bulk, bool)", "TZ_CargoDoor_bulk"},
    {"chocks", "Chocks", "", ""},
    {"power", "Ground power", "", "ext_power_avail"},
};

struct FailingDoor {
    Failure failure;
    std::string_view name;
};
constexpr FailingDoor kFailingDoors[] = {
    {kDoorForwardCargo, "cargo_fwd"}, {kDoorAftCargo, "cargo_aft"}, {kDoorEntry, "door_1l"}};

void MoveDoor(const GroundRow& row, bool open) {
    SetCalc(row.expression, open ? 1 : 0);
    if (!row.variable.empty()) SetNamedValue(row.variable, open ? 1 : 0);
}

}  // namespace

std::span<const GroundRow> GroundRows() {
    return kGroundRows;
}

const GroundRow* FindGroundService(std::string_view name) {
    const auto row = std::ranges::find(kGroundRows, name, &GroundRow::name);
    return row == std::end(kGroundRows) ? nullptr : &*row;
}

bool IsSet(const Aircraft& aircraft, const GroundRow& row) {
    if (!row.expression.empty()) return CalcOf(row.expression) != 0;
    return row.variable.empty() ? aircraft.chocks : NamedValue(row.variable) != 0;
}

bool SetGroundService(Aircraft& aircraft, const GroundRow& row, bool on) {
    constexpr double kStands = 1;  // kt
    if (on && (!aircraft.on_ground || aircraft.ground_speed > kStands)) return false;
    if (!row.expression.empty())
        MoveDoor(row, on);
    else if (!row.variable.empty())
        SetNamedValue(row.variable, on ? 1 : 0);
    else
        aircraft.chocks = on;
    return true;
}

void FillDoors(const Aircraft& aircraft) {
    for (const GroundRow& row : kGroundRows)
        if (!row.expression.empty() && !row.variable.empty())
            SetCalc(row.expression, NamedValue(row.variable));
    for (const FailingDoor& door : kFailingDoors)
        if (aircraft.fails[door.failure]) MoveDoor(*FindGroundService(door.name), true);
}

bool IsADoorOpen() {
    return std::ranges::any_of(kGroundRows, [](const GroundRow& row) {
        return !row.expression.empty() && CalcOf(row.expression) != 0;
    });
}

}  // namespace host
