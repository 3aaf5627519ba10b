#include "display/eicas/engine_readings.h"

#include <algorithm>
#include <cmath>

#include "frame/named_variables.h"
#include "state/eicas.h"
#include "state/sim.h"
#include "state/time_base.h"

namespace {

struct EngineSource {
    EngineReadings EicasState::*readings;
    double SimSnapshot::*n1;
    double SimSnapshot::*n2;
    double SimSnapshot::*egt;
    double SimSnapshot::*lever;
    NamedVarRef tpr, n1_calc, fuel_flow;
};
constexpr EngineSource kEngines[] = {
    {&EicasState::engine_l, &SimSnapshot::n1_l, &SimSnapshot::n2_l, &SimSnapshot::egt_l,
     &SimSnapshot::thrust_lever_1, NamedVar("TZ_Eng1_TPR"), NamedVar("TZ_Eng1_N1_calc"),
     NamedVar("tz_eng1_fuel_flow")},
    {&EicasState::engine_r, &SimSnapshot::n1_r, &SimSnapshot::n2_r, &SimSnapshot::egt_r,
     &SimSnapshot::thrust_lever_2, NamedVar("TZ_Eng2_TPR"), NamedVar("TZ_Eng2_N1_calc"),
     NamedVar("tz_eng2_fuel_flow")},
};

double Finite(double value) {
    return std::isfinite(value) ? value : 0;
}

void Approach(double& value, double wanted, double share) {
    value += (wanted - value) * share;
}

// In cold air the same N1 gives more than the rated thrust; the dial shows only a part of what is above it.
double HeldToRating(double tpr) {
    constexpr double kRated = 100;
    if (tpr <= kRated) return tpr;
    return kRated + (tpr - kRated) * std::clamp((300 - sim.oat_c) / 200, 0.0, 1.0);
}

void StepThrustRatio(EngineReadings& engine, double from_model) {
    constexpr double kOldShare = 0.3;
    const double now = HeldToRating(from_model > 0 ? from_model : std::max(EicasTpr(engine.n1_pct), 0.0));
    engine.tpr = engine.tpr * kOldShare + now * (1 - kOldShare);
}

void StepReverser(EngineReadings& engine, double lever) {
    constexpr double kTravelSeconds = 2;
    const double step = 1 / (kTravelSeconds * kTicksPerSecond);
    engine.reverser = std::clamp(engine.reverser + (lever < 0 ? step : -step), 0.0, 1.0);
}

// The host has no oil system: pressure and use of oil go by the speed of the core, the temperature follows it
// slowly, and the fan's speed shakes.
void StepOil(EngineReadings& engine) {
    constexpr double kFullSpeed = 100, kFullPressure = 90, kInTank = 20, kInEngine = 4;
    constexpr double kHeating = 110, kShareASecond = 0.01, kLeastShaking = 0.1, kShaking = 0.008;
    const double speed = std::clamp(engine.n2_pct / kFullSpeed, 0.0, 1.2);
    engine.oil_press = kFullPressure * std::sqrt(speed);
    engine.oil_qty = kInTank - kInEngine * std::min(speed, 1.0);
    Approach(engine.oil_temp, Finite(sim.oat_c) + kHeating * speed, kShareASecond);
    engine.vib = engine.n1_pct > 1 ? kLeastShaking + kShaking * engine.n1_pct : 0;
}

void StepTick(const EngineSource& source, EngineReadings& engine) {
    engine.n1_pct = Finite(sim.*source.n1);
    engine.n2_pct = engine.n3_pct = Finite(sim.*source.n2);
    engine.egt_c = Finite(sim.*source.egt);
    engine.fuel_flow = Finite(ReadNamedVar(source.fuel_flow));
    engine.n1_cmd = Finite(ReadNamedVar(source.n1_calc));
    engine.tpr_cmd = engine.n1_cmd > 0 ? EicasTpr(engine.n1_cmd) : 0;
    StepThrustRatio(engine, Finite(ReadNamedVar(source.tpr)));
    StepReverser(engine, sim.*source.lever);
}

void StepSecond() {
    constexpr double kTankShare = 0.0005;  // a second: large tanks take half an hour
    Approach(eicas.fuel_temp, Finite(sim.tat_c), kTankShare);
    eicas.load_relief = ReadNamedVar(NamedVar("TZ_Flaps_load_relief")) == 1 ? 1 : 0;
    eicas.ldg_alt_manual = ReadNamedVar(NamedVar("tz_oh_ldg_alt_mode")) == 1 ? 1 : 0;
    for (const EngineSource& source : kEngines) StepOil(eicas.*source.readings);
}

}  // namespace

double EicasTpr(double n1) {
    return 1.1 * n1 - 0.0023 * n1 * n1 - 0.3019;
}

void StepEicasReadings() {
    for (const EngineSource& source : kEngines) StepTick(source, eicas.*source.readings);
    if (time_base.tick_phase == 0) StepSecond();
}
