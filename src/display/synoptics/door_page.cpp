#include "display/synoptics/door_page.h"

#include "state/sim.h"

namespace {

struct DoorRow {
    std::string_view name;
    int x, y;
    int SimSnapshot::*open = nullptr;  // null: a hatch of which nothing is known but that it is shut
};
constexpr int kLeftDoors = 296, kMiddleHatch = 393, kRightDoors = 490, kDoorWidth = 64, kDoorHeight = 28;
constexpr DoorRow kDoors[] = {
    {"FWD ACCESS", kMiddleHatch, 66},
    {"FD OVHD", kRightDoors, 66},
    {"ENTRY 1L", kLeftDoors, 112, &SimSnapshot::door_1l},
    {"ENTRY 1R", kRightDoors, 112, &SimSnapshot::door_1r},
    {"FWD CARGO", kRightDoors, 146, &SimSnapshot::door_fwd_cargo},
    {"ENTRY 2L", kLeftDoors, 182, &SimSnapshot::door_2l},
    {"ENTRY 2R", kRightDoors, 182, &SimSnapshot::door_2r},
    {"REFUEL", kLeftDoors, 222},
    {"ENTRY 3L", kLeftDoors, 262, &SimSnapshot::door_3l},
    {"ENTRY 3R", kRightDoors, 262, &SimSnapshot::door_3r},
    {"AFT CARGO", kRightDoors, 300, &SimSnapshot::door_aft_cargo},
    {"BULK CARGO", kLeftDoors, 336, &SimSnapshot::door_bulk_cargo},
    {"ENTRY 4L", kLeftDoors, 374, &SimSnapshot::door_4l},
    {"ENTRY 4R", kRightDoors, 374, &SimSnapshot::door_4r},
};

void DrawFuselage(const SysPage& page) {
    constexpr int kLeft = 388, kRight = 458, kNoseY = 100, kTailY = 396;
    const Pen pen = PenOf(kBlueGrey);
    GdipDrawArcI(page.graphics, pen, kLeft, kNoseY, kRight - kLeft, 70, 180, 180);
    GdipDrawLineI(page.graphics, pen, kLeft, kNoseY + 35, kLeft, kTailY);
    GdipDrawLineI(page.graphics, pen, kRight, kNoseY + 35, kRight, kTailY);
    GdipDrawLineI(page.graphics, pen, kLeft, kTailY, kPageMiddle - 8, kTailY + 20);
    GdipDrawLineI(page.graphics, pen, kRight, kTailY, kPageMiddle + 8, kTailY + 20);
}

void DrawDoor(const SysPage& page, const DoorRow& door) {
    constexpr int kFuselageLeft = 388, kFuselageRight = 458;
    const bool open = door.open != nullptr && sim.*door.open != 0;
    DrawSysBox(page, door.x, door.y, kDoorWidth, kDoorHeight, open ? FlowState::kWarning : FlowState::kLive);
    DrawSysLabel(page, door.x + kDoorWidth / 2.0, door.y + 8, door.name);
    TextAbout(page.graphics, door.x + kDoorWidth / 2.0, door.y + 19, 9, open ? kAmber : kGreen,
              open ? "OPEN" : "CLOSED");
    const int y = door.y + kDoorHeight / 2;
    const FlowState line = open ? FlowState::kWarning : FlowState::kDead;
    if (door.x == kLeftDoors) DrawFlow(page, {{door.x + kDoorWidth, y}, {kFuselageLeft, y}}, line);
    if (door.x == kRightDoors && door.open != nullptr)
        DrawFlow(page, {{kFuselageRight, y}, {door.x, y}}, line);
}

}  // namespace

void DrawDoorPage(const SysPage& page) {
    DrawUser(page, kLeftDoors, 66, kDoorWidth, kDoorHeight, FlowState::kDead, {"LAV VACANT"});
    DrawFuselage(page);
    for (const DoorRow& door : kDoors) DrawDoor(page, door);
}
