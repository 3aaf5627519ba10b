#include "host/world/key_event_effects.h"

#include <algorithm>

#include "host/world/world.h"

namespace host {
namespace {

enum class Effect { kToggle, kSet, kStore, kStoreBcd, kAdd };

struct TokenEffect {
    int event;
    Effect effect;
    int token;
    double amount;     // kToggle: the value when on; kSet: the value; kAdd: the step
    double low, high;  // limits of kStore and kAdd
    // kStoreBcd: the last four digits, whatever stands before them
};

constexpr double kFree = 1e9;
constexpr TokenEffect kTokenEffects[] = {
    {0x10018, Effect::kToggle, 11, 1, 0, 0},
    {0x1002c, Effect::kToggle, 106, 1, 0, 0},
    {0x100ac, Effect::kStoreBcd, 24, 0, 0, 0},
    {0x100ad, Effect::kStoreBcd, 27, 0, 0, 0},
    {0x100b4, Effect::kStore, 550, 0, 0, 360},
    {0x100d8, Effect::kToggle, 323, 32767, 0, 0},
    {0x100ee, Effect::kSet, 560, 1, 0, 0},
    {0x100ee, Effect::kSet, 570, 1, 0, 0},
    {0x100ee, Effect::kSet, 563, 1, 0, 0},
    {0x100ee, Effect::kSet, 573, 1, 0, 0},
    {0x100f2, Effect::kSet, 560, 0, 0, 0},
    {0x100f2, Effect::kSet, 570, 0, 0, 0},
    {0x10144, Effect::kToggle, 103, 1, 0, 0},
    {0x10144, Effect::kToggle, 123, 1, 0, 0},
    {0x1015b, Effect::kAdd, 75, 0.3386, 880, 1085},
    {0x1015c, Effect::kAdd, 75, -0.3386, 880, 1085},
    {0x10166, Effect::kAdd, 120, 100, -8000, 6000},
    {0x10167, Effect::kAdd, 120, -100, -8000, 6000},
    {0x101bf, Effect::kSet, 560, 1, 0, 0},
    {0x101c4, Effect::kSet, 570, 1, 0, 0},
    {0x101c3, Effect::kSet, 560, 0, 0, 0},
    {0x101c8, Effect::kSet, 570, 0, 0, 0},
    {0x101f5, Effect::kStore, 116, 0, 0, 500},
    {0x101f8, Effect::kSet, 75, 1013.25, 0, 0},
    {0x101fa, Effect::kStore, 107, 0, 0, 360},
    {0x102c0, Effect::kStore, 369, 0, 0, 1},
    {0x10218, Effect::kToggle, 13, 1, 0, 0},
    {0x10220, Effect::kSet, 331, 1, 0, 0},
    {0x10022, Effect::kToggle, 331, 1, 0, 0},
    {0x102bf, Effect::kToggle, 368, 1, 0, 0},
    {0x102c1, Effect::kToggle, 364, 1, 0, 0},
    {0x102f0, Effect::kToggle, 792, 1, 0, 0},
    {0x102fc, Effect::kToggle, 563, 1, 0, 0},
    {0x102fd, Effect::kToggle, 573, 1, 0, 0},
    {0x10348, Effect::kStore, 620, 0, 0, 1},
    {0x1034a, Effect::kStore, 621, 0, 0, 1},
    {0x1034b, Effect::kStore, 619, 0, 0, 1},
    {0x100a1, Effect::kStore, 128, 0, -4096, 16384},
    {0x100a1, Effect::kStore, 163, 0, -4096, 16384},
    {kKeyLeverLeft, Effect::kStore, 128, 0, -4096, 16384},
    {kKeyLeverRight, Effect::kStore, 163, 0, -4096, 16384},
    {0x100a2, Effect::kStore, 328, 0, 0, 16384},
    {0x10205, Effect::kStore, 325, 0, 0, 16384},
    {0x10214, Effect::kStore, 324, 0, 0, 1},
};

// An effect changes a value set by hand too: the simulator's own controls act on it as on any other.
void Change(int token, double value) {
    world.tokens[static_cast<std::size_t>(token)] = value;
}

void Apply(const TokenEffect& row, int value) {
    switch (row.effect) {
        case Effect::kToggle:
            Change(row.token, TokenOf(row.token) != 0 ? 0 : row.amount);
            break;
        case Effect::kSet:
            Change(row.token, row.amount);
            break;
        case Effect::kStore:
            Change(row.token, std::clamp(static_cast<double>(value), row.low, row.high));
            break;
        case Effect::kStoreBcd:
            Change(row.token, value & 0xffff);
            break;
        case Effect::kAdd:
            Change(row.token, std::clamp(TokenOf(row.token) + row.amount, row.low, row.high));
            break;
    }
}

void ChangeCalc(const char* expression, double value) {
    const bool pinned = world.calc[expression].pinned;
    world.calc[expression].pinned = false;
    SetCalc(expression, value);
    world.calc[expression].pinned = pinned;
}

double ShareOfAxis(int value) {
    constexpr double kFull = 16383;
    return std::clamp(value / kFull, -1.0, 1.0);
}

void MoveStick(double& axis, int value) {
    axis = ShareOfAxis(value);
    world.stick.in_hand = true;
}

// Steps the simulation rate by doubling or halving, 1/4 to 64.
void ScaleRate(double factor) {
    world.sim_rate = std::clamp(world.sim_rate * factor, 0.25, 64.0);
}

}  // namespace

void ApplyKeyEvent(int event, int value) {
    for (const TokenEffect& row : kTokenEffects)
        if (row.event == event) Apply(row, value);
    switch (event) {
        case 0x10019:
            world.paused = !world.paused;
            SendSimMessage(SimMessage::kEvent, 12, world.paused ? 1 : 0, nullptr);
            break;
        case 0x100e2:
            MoveStick(world.stick.pitch, value);
            break;
        case 0x100e3:
            MoveStick(world.stick.roll, value);
            break;
        case 0x100e4:
            MoveStick(world.stick.pedals, value);
            break;
        case kKeyTakeStick:
            world.stick.in_hand = true;
            break;
        case kKeyLetStickGo:
            world.stick = {};
            break;
        case kKeyBrakes:
            world.stick.brakes = std::max(ShareOfAxis(value), 0.0);
            break;
        case kKeyTrim:
            world.stick.trim_clicks += std::clamp(value, -1, 1);
            break;
        case 0x100fd:
            ScaleRate(2);
            break;
        case 0x100fe:
            ScaleRate(0.5);
            break;
        case 0x1021b:
            SetClockHour(std::clamp(value, 0, 23));
            break;
        case 0x10145: {  // the switch of take-off and go-around
            constexpr int kToGaMode = 12;
            SetNamedValue("ap_vert_mode_clicked", kToGaMode);
            break;
        }
        case 0x1024c:
            ChangeCalc("(A:AUTOPILOT ALTITUDE LOCK VAR, feet)", value);
            break;
        case 0x10311:
        case 0x10312: {
            const double step = event == 0x10311 ? 10 : -10;
            const double height = std::max(0.0, CalcOf("(A:DECISION HEIGHT,FEET)") + step);
            ChangeCalc("(A:DECISION HEIGHT,FEET)", height);
            Change(615, height * 0.3048);
            break;
        }
        default:
            break;
    }
}

}  // namespace host
