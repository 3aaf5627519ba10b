#include "display/hud/hud_speed.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "display/hud/hud_view.h"
#include "display/pfd/drum.h"
#include "display/pfd/speed_marks.h"
#include "display/pfd/speed_tape.h"
#include "state/flight_log.h"
#include "state/instruments.h"
#include "state/sim.h"
#include "state/takeoff_approach.h"

namespace {

constexpr float kMarkSize = 9;

double OffsetOf(double speed) {
    return (ShownSpeed() - speed) * kUnitsPerKnot;
}

void DrawSpeedScale(Graphics& graphics) {
    constexpr int kTick = 10, kNumbered = 20, kSlowest = 30;
    constexpr float kSize = 11;
    const double speed = ShownSpeed();
    const int first = static_cast<int>(std::ceil((speed - kSeenKnots) / kTick)) * kTick;
    for (int value = std::max(first, kSlowest); value <= speed + kSeenKnots; value += kTick) {
        const double y = OffsetOf(value);
        HudLine(graphics, -191, y, -196, y);
        if (value % kNumbered == 0) HudTextAbout(graphics, -208, y, kSize, Format("%d", value));
    }
}

// Squares from a limit outwards, `up` -1 or 1.
void DrawSquares(Graphics& graphics, double x, double limit, int up, double count, double height) {
    constexpr double kStep = 8, kWidth = 5;
    for (int i = 0; i < count; ++i) {
        const double y = limit + up * i * kStep;
        if (up * y > kHudReach) break;
        if (std::fabs(y) <= kHudReach) HudBox(graphics, x, up > 0 ? y : y - height, kWidth, height);
    }
}

void DrawLimits(Graphics& graphics) {
    constexpr double kLowSquares = 40, kFar = 2 * kHudReach;
    const SpeedLimits limits = LimitsOfSpeed();
    if (limits.high_seen) DrawSquares(graphics, -190, OffsetOf(limits.high), -1, limits.dashes, 3);
    if (limits.low_seen) DrawSquares(graphics, -189, OffsetOf(sim.v_s_kt), 1, kLowSquares, 5);
    const double manoeuvre = Bounded(OffsetOf(sim.v_a_kt), -kFar, kFar);
    const double stall = Bounded(OffsetOf(sim.v_s_kt), -kFar, kFar);
    if (!IsOffGround() || manoeuvre >= stall) return;
    HudLine(graphics, -187, manoeuvre, -187, stall);
    HudLine(graphics, -187, manoeuvre, -190, manoeuvre);
}

void DrawSpeedBug(Graphics& graphics) {
    const double b = SpeedOffset(sim.ap_spdbug);
    DrawOutline(graphics, HudPen(),
                {At(-195, b), At(-190, b - 5), At(-180, b - 5), At(-180, b + 5), At(-190, b + 5)});
}

void Mark(Graphics& graphics, double speed, std::string_view text, double label_x, double tick_to) {
    const double y = OffsetOf(speed);
    if (!(std::fabs(y) <= kHudReach + static_cast<double>(kMarkSize))) return;
    HudLine(graphics, -183, y, tick_to, y);
    HudTextFrom(graphics, label_x, y, kMarkSize, text);
}

void MarkTakeoffSpeed(Graphics& graphics, double speed, std::string_view text) {
    Mark(graphics, speed, text, -177, -190);
}

void DrawTakeoffSpeeds(Graphics& graphics) {
    constexpr double kClimbedOut = 800;
    constexpr int kWarningY = -47, kStep = 8;
    const TakeoffApproachState& speeds = takeoff_approach;
    const bool rolling = sim.radio_alt_ft < kRotationDone;
    if (speeds.vr < 1) {
        if (!rolling) return;
        int y = kWarningY;
        for (const std::string_view letter : {"NO", "V", "S", "P", "D"}) {
            HudText(graphics, -177, y, kMarkSize - 1, letter);
            y += kStep;
        }
        return;
    }
    if (rolling && AreTakeoffSpeedsClose()) {
        HudTextFrom(graphics, -177, OffsetOf(speeds.vr), kMarkSize, "R");
    } else if (rolling) {
        MarkTakeoffSpeed(graphics, ShownV1(), "V1");
        MarkTakeoffSpeed(graphics, speeds.vr, "VR");
    }
    if (sim.radio_alt_ft < kClimbedOut && speeds.v2 > 0) MarkTakeoffSpeed(graphics, speeds.v2, "V2");
}

constexpr FlapMark kHudFlapMarks[] = {
    {"UP", &FlapSpeedRow::up, 0, 1},        {"1", &FlapSpeedRow::flaps1, 0, 5},
    {"5", &FlapSpeedRow::flaps5, 4, 15},    {"15", &FlapSpeedRow::flaps15, 14, 20},
    {"20", &FlapSpeedRow::flaps20, 99, 25}, {"25", &FlapSpeedRow::flaps25, 99, 30},
    {"30", &FlapSpeedRow::flaps30, 99, 31},
};

void DrawFlapSpeeds(Graphics& graphics) {
    const FlapSpeedRow* row = FlapSpeedsShown();
    if (row == nullptr) return;
    for (const FlapMark& mark : kHudFlapMarks)
        if (IsMarked(mark)) Mark(graphics, row->*mark.speed, mark.label, -178, -188);
}

void DrawReferenceSpeed(Graphics& graphics) {
    if (!IsReferenceSpeedShown()) return;
    Mark(graphics, takeoff_approach.vref, "REF", -178, -188);
    HudTextFrom(graphics, -178, 93, kMarkSize, ReferenceSpeedText());
}

void DrawSpeedTrend(Graphics& graphics) {
    constexpr double kX = -195, kHead = 5, kHalfHead = 4;
    if (!(sim.ias_kt >= kSlowestShown)) return;
    const double t = TrendOffset();
    HudLine(graphics, kX, 0, kX, t);
    if (!IsTrendMarked()) return;
    const double base = t - std::copysign(kHead, t);
    DrawOutline(graphics, HudPen(), {At(kX, t), At(kX - kHalfHead, base), At(kX + kHalfHead, base)});
}

void DrawSpeedPointer(Graphics& graphics) {
    constexpr double kLow = 100;
    constexpr int kApproachPhase = 8;
    constexpr double kUnitsPitch = 12;
    if (sim.ias_kt >= sim.v_a_kt || sim.radio_alt_ft <= kLow || flight_log.fplog_mode < kApproachPhase)
        DrawOutline(graphics, HudPen(),
                    {At(-195, 0), At(-200, -5), At(-200, -15), At(-230, -15), At(-230, 15), At(-200, 15),
                     At(-200, 5)});
    const ClipBlock clip(graphics, -230, -15, 30, 30);
    const double speed = ShownSpeed(), whole = std::floor(speed);
    HudDrum(graphics, -225, speed, 100, 1);
    HudDrum(graphics, -216, speed, 10, 1);
    for (int i = -2; i <= 2; ++i) {
        const char digit = static_cast<char>('0' + (static_cast<int>(std::fmod(whole, 10)) + i + 10) % 10);
        HudTextAbout(graphics, -207, (speed - whole - i) * kUnitsPitch, 12, {&digit, 1});
    }
}

}  // namespace

void DrawHudSpeed(Graphics& graphics) {
    constexpr float kSize = 12, kLabelSize = 10;
    if (IsDecluttered()) {
        if (sim.ias_kt > kSlowestShown)
            HudText(graphics, -100, 0, kSize, Format("%.0f", Bounded(sim.ias_kt, 0, kFastestShown)));
        return HudText(graphics, -220, -140, kLabelSize, "AS");
    }
    HudLine(graphics, -230, -100, -190, -100);
    HudLine(graphics, -190, -100, -190, 99);
    HudLine(graphics, -190, 99, -230, 99);
    ClipAround(graphics, {-230, -100, 75, 200}, {-230, -15, 30, 30});
    for (const auto draw : {DrawSpeedScale, DrawLimits, DrawSpeedBug, DrawTakeoffSpeeds, DrawFlapSpeeds,
                            DrawReferenceSpeed, DrawSpeedTrend})
        draw(graphics);
    GdipResetClip(graphics);
    DrawSpeedPointer(graphics);
}

void DrawHudSpeedReadouts(Graphics& graphics) {
    constexpr float kSize = 12, kLabelSize = 9;
    const SelectedSpeed selected = SelectedSpeedShown();
    HudText(graphics, -235, -118, kSize, Format("%*s", selected.is_mach ? 4 : 5, selected.text.c_str()));
    if (sim.mach < kLowestMachShown) {
        HudText(graphics, -230, 103, kLabelSize, "GS");
        HudText(graphics, -210, 101, kSize, Format("%3.0f", Bounded(sim.ground_speed_kt, 0, 9999)));
    } else {
        const double mach = Bounded(sim.mach, 0, 99);
        HudText(graphics, -230, 101, kSize,
                mach < 0.9995 ? Format(".%3.0f", mach * 1000) : Format("%.3f", mach));
    }
    if (instruments.mach_box_timer > 0) HudBox(graphics, -235, 100, 42, 15);
}
