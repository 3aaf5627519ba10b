#include "display/formats/pfd.h"

#include "display/pfd/altitude_tape.h"
#include "display/pfd/approach_source.h"
#include "display/pfd/attitude.h"
#include "display/pfd/baro.h"
#include "display/pfd/compass.h"
#include "display/pfd/data_strip.h"
#include "display/pfd/deviations.h"
#include "display/pfd/flight_director.h"
#include "display/pfd/fma.h"
#include "display/pfd/radio_altitude.h"
#include "display/pfd/speed_marks.h"
#include "display/pfd/speed_tape.h"
#include "display/pfd/vertical_speed.h"

namespace {

// The pieces in their order, what comes later over what came before.
constexpr void (*kPieces[])(const PfdView& view) = {
    DrawSphere,
    DrawPitchLimit,
    DrawAircraftSymbol,
    DrawBankScale,
    DrawFlightDirector,
    DrawAdvisoryPitch,
    DrawFlightPathVector,
    DrawStartupFlags,
    DrawPullUp,
    DrawRadioAltitude,
    DrawSpeedTape,
    DrawSpeedMarks,
    DrawSpeedBugs,
    DrawSpeedPointer,
    DrawAltitudeTape,
    DrawAltitudePointer,
    DrawSelectedSpeed,
    DrawSelectedAltitude,
    DrawMach,
    DrawVerticalSpeed,
    DrawMetres,
    DrawFma,
    DrawAutoflightStatus,
    DrawBaro,
    DrawApproachSource,
    DrawMinimums,
    DrawDeviations,
    DrawMarkerBeacon,
    DrawPfdCompass,
    DrawPfdDataStrip,
};

}  // namespace

void DrawPfd(Graphics& graphics, const ContentPlace& place) {
    constexpr int kNarrowCentre = 121, kCentre = 191, kCentreOnRight = 373, kCentreY = 128;
    constexpr int kNarrowLeft = -121, kLeft = -130;
    const bool right = place.half == 2;
    const TransformBlock block(graphics);
    const int centre = place.narrow ? kNarrowCentre + (right ? kHalf : 0) : right ? kCentreOnRight : kCentre;
    GdipTranslateWorldTransform(graphics, centre, kCentreY);
    const PfdView view{graphics, place.side, place.narrow, place.narrow ? kNarrowLeft : kLeft};
    for (const auto draw : kPieces) draw(view);
}
