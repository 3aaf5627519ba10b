#include "display/formats/hud.h"

#include "display/hud/hud_altitude.h"
#include "display/hud/hud_attitude.h"
#include "display/hud/hud_deviations.h"
#include "display/hud/hud_flight_path.h"
#include "display/hud/hud_rose.h"
#include "display/hud/hud_speed.h"
#include "display/hud/hud_view.h"
#include "display/hud/hud_words.h"

namespace {

// What stands about a point of the picture.
struct Group {
    int x, y;
    void (*pieces[8])(Graphics& graphics);  // to the first null
};
constexpr Group kGroups[] = {
    {kHudX,
     kAttitudeY,
     {DrawHudLadder, DrawHudAircraft, DrawHudFlightPath, DrawHudRadioAltitude, DrawHudBankScale}},
    {kHudX,
     kHudY,
     {DrawHudSpeed, DrawHudSpeedReadouts, DrawHudAltitude, DrawHudAltitudeReadouts, DrawHudModes,
      DrawHudApproachSource, DrawHudDeviations}},
    {kHudX, kRoseY, {DrawHudRose, DrawHudFootLine}},
    {0, 0, {DrawHudWind}},
};

}  // namespace

void DrawHud(Graphics& graphics) {
    for (const Group& group : kGroups) {
        const TransformBlock block(graphics);
        GdipTranslateWorldTransform(graphics, group.x, group.y);
        for (const auto draw : group.pieces)
            if (draw != nullptr) draw(graphics);
    }
}
