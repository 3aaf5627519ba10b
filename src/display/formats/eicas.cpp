#include "display/formats/eicas.h"

#include "display/eicas/cabin.h"
#include "display/eicas/dials.h"
#include "display/eicas/fuel_block.h"
#include "display/eicas/gear_and_flaps.h"
#include "display/eicas/messages.h"
#include "display/eicas/secondary.h"
#include "display/eicas/top_line.h"
#include "display/eicas/trims.h"
#include "state/displays.h"

namespace {

// Draws a piece in a frame whose origin is told for the right half of a unit.
template <class Piece>
void InFrame(Graphics& graphics, const ContentPlace& place, int x, int y, Piece piece) {
    const TransformBlock block(graphics);
    GdipTranslateWorldTransform(graphics, place.half == 2 ? x : x - kHalf, y);
    piece();
}

void DrawEngines(Graphics& graphics, const ContentPlace& place) {
    constexpr int kDialX = -13, kLeftX = 277, kRightX = 374, kSecondaryY = 220;
    const EngineView left{eicas.engine_l, false}, right{eicas.engine_r, true};
    const bool secondary = displays.eicas_eng_button == 1;
    InFrame(graphics, place, kDialX, 0, [&] { DrawTopLine(graphics); });
    if (secondary) InFrame(graphics, place, kLeftX, kSecondaryY, [&] { DrawSecondary(graphics, left); });
    InFrame(graphics, place, kDialX, 0, [&] {
        for (const EngineView& engine : {left, right}) {
            DrawDials(graphics, engine);
            DrawEngineState(graphics, engine);
            if (secondary) DrawFuelFlow(graphics, engine);
        }
        DrawDialNames(graphics);
        if (secondary) DrawSecondaryNames(graphics);
    });
    if (secondary) InFrame(graphics, place, kRightX, kSecondaryY, [&] { DrawSecondary(graphics, right); });
}

}  // namespace

void DrawEicas(Graphics& graphics, const ContentPlace& place) {
    constexpr int kLowerX = 387, kLowerY = 205, kMessageX = 450;
    DrawEngines(graphics, place);
    InFrame(graphics, place, kLowerX, kLowerY, [&] {
        DrawCabin(graphics);
        DrawFuelBlock(graphics);
        DrawGear(graphics);
        DrawFlaps(graphics);
        DrawTrims(graphics);
    });
    InFrame(graphics, place, kMessageX, 0, [&] { DrawMessages(graphics); });
}
