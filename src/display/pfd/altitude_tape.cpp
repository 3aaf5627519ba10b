#include "display/pfd/altitude_tape.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "base/text.h"
#include "base/units.h"
#include "display/pfd/drum.h"
#include "navdata/from_aircraft.h"
#include "state/airports.h"
#include "state/instruments.h"
#include "state/plan.h"
#include "state/sim.h"

namespace {

constexpr int kTapeX = 90, kReadoutY = -119;

double OffsetOf(double altitude) {
    return (ShownAltitude() - altitude) * kUnitsPerFoot;
}

void DrawTapeNumber(Graphics& graphics, int altitude, double y) {
    constexpr float kLarge = 12, kSmall = 9;
    constexpr double kFrom = 99, kSplit = 115;
    if (altitude < 1000)
        return TextUpTo(graphics, kSplit + 13, y, altitude < 0 ? kSmall : kLarge, kWhite,
                        Format("%03d", altitude));
    const std::string thousands = std::to_string(altitude / 1000);
    const char hundreds[] = {static_cast<char>('0' + altitude / 100 % 10), '0', '0'};
    TextFrom(graphics, kFrom, y, kLarge, kWhite, thousands.size() < 2 ? ' ' + thousands : thousands);
    TextFrom(graphics, kSplit, y + 1, kSmall - 1, kWhite, {hundreds, sizeof hundreds});
}

void DrawAltitudeScale(Graphics& graphics) {
    constexpr int kTick = 100, kNumbered = 200, kThousand = 1000;
    const double altitude = ShownAltitude();
    const Pen pen = PenOf(kWhite);
    for (int value = static_cast<int>(std::ceil((altitude - kSeenFeet) / kTick)) * kTick;
         value <= altitude + kSeenFeet; value += kTick) {
        const double y = OffsetOf(value);
        GdipDrawLine(graphics, pen, kTapeX, y, 97, y);
        if (value % kNumbered == 0) DrawTapeNumber(graphics, value, y);
        if (value % kThousand != 0) continue;
        GdipDrawLine(graphics, pen, 97, y - 8, 130, y - 8);
        GdipDrawLine(graphics, pen, 97, y + 6, 130, y + 6);
        GdipDrawLine(graphics, pen, 87, y, 97, y);
    }
}

// What an airport puts on the tape.
struct LandingMarks {
    double field, above;  // offsets of the field, and of 500 ft above it
    double minimums;
    bool Seen() const { return std::min({field, above, minimums}) <= kTapeReach; }
};

LandingMarks MarksOf(const AirportData& airport) {
    constexpr double kApproachFeet = 500;
    const double elevation = airport.elevation_ft, minimums = instruments.minimums_value;
    return {OffsetOf(elevation), OffsetOf(elevation + kApproachFeet),
            OffsetOf(instruments.minimums_baro == 1 ? minimums : elevation + minimums)};
}

// The airport whose field is landed on: the destination, or the origin as long as that is nearer. Null also
// when neither could be seen on the tape.
const AirportData* LandingAirport() {
    constexpr double kFar = 400;  // nm
    const AirportData &origin = airports.origin_airport, &dest = airports.dest_airport;
    if (plan.active.ends.dest == kNotSelected || dest.ident.empty()) return nullptr;
    if (!MarksOf(dest).Seen() && !MarksOf(origin).Seen()) return nullptr;
    const double to_dest = FromAircraft(dest.lat, dest.lon).dist;
    if (!origin.ident.empty() && FromAircraft(origin.lat, origin.lon).dist < to_dest) return &origin;
    return to_dest < kFar ? &dest : nullptr;
}

void DrawLandingAltitude(Graphics& graphics) {
    const AirportData* airport = LandingAirport();
    if (airport == nullptr) return;
    constexpr int kBandWidth = 50;
    const LandingMarks marks = MarksOf(*airport);
    const double top = Bounded(marks.field, -kTapeReach, kTapeReach);
    const Pen amber = PenOf(kAmber, 1.5f), green = PenOf(kGreen);
    GdipDrawLine(graphics, amber, kTapeX, marks.above, kTapeX, marks.field);
    const Brush hatch = GdipCreateHatchBrush(HatchStyle::kForwardDiagonal, Scaled(kAmber), TapeFill().colour);
    if (top < kTapeReach) FilledRectangle(graphics, hatch, kTapeX, top, kBandWidth, kTapeReach - top);
    GdipDrawLine(graphics, amber, kTapeX, marks.field, 130, marks.field);
    if (instruments.minimums_mode > kMinimumsAlert) return;
    const double y = marks.minimums;
    GdipDrawLine(graphics, green, kTapeX, y, 130, y);
    DrawOutline(graphics, green, {At(90, y), At(85, y - 5), At(85, y + 5)});
}

void DrawAltitudeBug(Graphics& graphics) {
    const double b = AltitudeOffset(sim.apalt);
    DrawOutline(graphics, PenOf(kPfdMagenta, 1.5f),
                {At(90, b), At(85, b - 5), At(85, b - 15), At(105, b - 15), At(105, b + 15), At(85, b + 15),
                 At(85, b + 5)});
}

void DrawAltitudeTrend(Graphics& graphics) {
    constexpr double kLeastRate = 50, kLeastTrend = 10, kX = 97, kHead = 5, kHalfHead = 4;
    if (!(std::fabs(sim.vs_fpm) > kLeastRate)) return;
    const double change = AltitudeTrend();
    const double t = Bounded(-change * kUnitsPerFoot, -kTapeReach, kTapeReach);
    GdipDrawLine(graphics, PenOf(kGreen, 1.5f), kX, 0, kX, t);
    if (std::fabs(change) <= kLeastTrend) return;
    const double base = t - std::copysign(kHead, t);
    FillOutline(graphics, BrushOf(kGreen), {At(kX, t), At(kX - kHalfHead, base), At(kX + kHalfHead, base)});
}

void DrawTwenties(const DrumFace& face, double x, double altitude) {
    const TwentyDrum drum = TwentyOnDrum(altitude);
    for (int i = -2; i <= 2; ++i)
        TextAbout(face.graphics, x, drum.offset + i * drum.pitch, face.size, face.colour,
                  TwentyText(drum.step + i));
}

}  // namespace

double ShownAltitude() {
    return Bounded(sim.ind_alt_ft, -9999, 99999);
}

double AltitudeTrend() {
    constexpr double kSeconds = 6;
    return Bounded(sim.vs_fpm / 60 * kSeconds, -kSeenFeet, kSeenFeet);
}

// Below zero it turns the other way.
TwentyDrum TwentyOnDrum(double altitude) {
    constexpr double kStep = 20;
    const double size = std::fabs(altitude), units = std::fmod(size, kStep);
    const int step = static_cast<int>(std::fmod(size, 100) / kStep);
    if (altitude >= 0) return {step, units / kStep * 8 - 2, -8};
    return {step, -units / kStep * 10, 10};
}

std::string_view TwentyText(int step) {
    constexpr std::string_view kSteps[] = {"00", "20", "40", "60", "80"};
    return kSteps[(step % 5 + 5) % 5];
}

double AltitudeOffset(double altitude) {
    return Bounded(OffsetOf(altitude), -kTapeReach, kTapeReach);
}

void DrawAltitudeTape(const PfdView& view) {
    if (!IsPfdLit()) return;
    Graphics& graphics = view.graphics;
    const ClipBlock clip(graphics, 80, -100, 50, 200);
    GdipFillRectangleI(graphics, TapeFill(), kTapeX, -100, 38, 200);
    GdipDrawRectangleI(graphics, TapeFrame(), kTapeX, -100, 38, 200);
    DrawLandingAltitude(graphics);
    DrawAltitudeScale(graphics);
    DrawAltitudeBug(graphics);
    DrawAltitudeTrend(graphics);
}

void DrawAltitudePointer(const PfdView& view) {
    if (!IsPfdLit()) return;
    Graphics& graphics = view.graphics;
    const auto outline = {At(95, 0),   At(100, -3), At(100, -10), At(137, -10),
                          At(137, 10), At(100, 10), At(100, 3)};
    FillOutline(graphics, BrushOf(kBlack), outline);
    DrawOutline(graphics, PenOf(instruments.altitude_alert > 0 ? kAmber : kWhite), outline);
    const ClipBlock clip(graphics, 102, -8, 40, 16);
    constexpr float kSize = 12, kSmall = 10;
    constexpr double kTenThousandsRoll = 9980, kTwenty = 20;
    const DrumFace face{graphics, kSize, kWhite};
    const double altitude = ShownAltitude(), size = std::fabs(altitude);
    if (size < kTenThousandsRoll)
        GdipFillRectangleI(graphics,
                           GdipCreateHatchBrush(HatchStyle::kForwardDiagonal, Scaled(kGreen), Scaled(kBlack)),
                           103, -6, 6, 12);
    else
        DrawDrum(face, 106, size, 10000, kTwenty, size < 10000);
    if (altitude < 0)
        TextAbout(graphics, 113, 0, kSize, kWhite, "-");
    else
        DrawDrum(face, 113, size, 1000, kTwenty, size < 100);
    DrawDrum(face, 120.5, size, 100, kTwenty, size < 100);
    DrawTwenties({graphics, kSmall, kWhite}, 130.5, altitude);
}

void DrawMetres(const PfdView& view) {
    constexpr float kSize = 10, kLetterSize = 9;
    if (instruments.pfd[static_cast<std::size_t>(view.side - 1)].mtrs_on != 1) return;
    Graphics& graphics = view.graphics;
    const auto readout = [&](int x, int y, int width, int height, Rgb colour, double metres) {
        FilledBox(graphics, x, y, width, height, kBlack);
        const double middle = y + height / 2.0;
        TextUpTo(graphics, x + width - 8, middle, kSize, colour, Format("%5.0f", metres));
        TextUpTo(graphics, x + width - 1, middle, kLetterSize, kCyan, "M");
    };
    constexpr double kMetresPerFoot = 0.3048;
    readout(103, -28, 38, 12, kWhite, ShownAltitude() * kMetresPerFoot);
    BoxOutline(graphics, 103, -28, 38, 12, kWhite);
    const double selected = Bounded(sim.apalt, 0, 99999) * kMetresPerFoot;
    readout(90, -128, 40, 11, kPfdMagenta, std::round(selected / 10) * 10);
}

void DrawSelectedAltitude(const PfdView& view) {
    constexpr float kLarge = 14, kSmall = 11;
    Graphics& graphics = view.graphics;
    FilledBox(graphics, kTapeX, kReadoutY, 40, 15, kBlack);
    const std::string digits = Format("%05.0f", Bounded(sim.apalt, 0, 99999));
    std::string large = digits.substr(0, 2);
    if (large[0] == '0') large[0] = ' ';
    TextFrom(graphics, kTapeX, kReadoutY + 7.5, kLarge, kPfdMagenta, large);
    TextFrom(graphics, kTapeX + 18, kReadoutY + 8.5, kSmall, kPfdMagenta, digits.substr(2));
}
