#include "frame/model_values.h"

#include "base/numbers.h"
#include "frame/controls.h"
#include "frame/named_variables.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/engines.h"
#include "state/identity.h"
#include "state/instruments.h"
#include "state/sim.h"

namespace {

struct ModelValue {
    NamedVarRef variable;
    double SimSnapshot::*value;
};
constexpr ModelValue kModelValues[] = {
    {NamedVar("TZ_V_S"), &SimSnapshot::v_s_kt},
    {NamedVar("TZ_V_A"), &SimSnapshot::v_a_kt},
    {NamedVar("TZ_V_MO"), &SimSnapshot::v_mo_kt},
    {NamedVar("vnav_spd"), &SimSnapshot::vnav_spd_readback},
    {NamedVar("tz_cabin_alt"), &SimSnapshot::cabin_alt},
    {NamedVar("tz_cabin_dp"), &SimSnapshot::cabin_dp},
    {NamedVar("tz_cabin_rate"), &SimSnapshot::cabin_rate},
    {NamedVar("tz_cabin_fwd_ofv"), &SimSnapshot::cabin_fwd_ofv},
    {NamedVar("tz_cabin_aft_ofv"), &SimSnapshot::cabin_aft_ofv},
};

struct EngineValue {
    NamedVarRef variable;
    double EngineState::*value;
};
constexpr EngineValue kEngineValues[] = {
    {NamedVar("TZ_Eng1_TPR"), &EngineState::Eng1_TPR},
    {NamedVar("TZ_Eng2_TPR"), &EngineState::Eng2_TPR},
    {NamedVar("TZ_Eng1_N1_calc"), &EngineState::Eng1_N1_calc},
    {NamedVar("TZ_Eng2_N1_calc"), &EngineState::Eng2_N1_calc},
};

constexpr double kBarberPolePerKnot = 128;

}  // namespace

void PublishModelSettings() {
    WriteNamedVar(NamedVar("dynamic_lighting"), cfg.dynamic_lighting);
    WriteNamedVar(NamedVar("daytime_lightsplashes"), cfg.daytime_lightsplashes);
    WriteNamedVar(NamedVar("TZ_ENG_TYPE_RR"), identity.engine_model == "TRENT 1000" ? 1 : 0);
}

void ReadModelValues() {
    for (const ModelValue& row : kModelValues) sim.*row.value = ReadNamedVar(row.variable);
    for (const EngineValue& row : kEngineValues) engines.*row.value = ReadNamedVar(row.variable);
    if (cfg.RealismMode == 1) sim.v_mo_kt = sim.barber_pole / kBarberPolePerKnot;
    instruments.altitude_alert = WholeNumber(ReadNamedVar(NamedVar("tz_altitude_alert")));
    sim.low_speed_limit = (sim.v_a_kt - sim.v_s_kt) * 0.7 + sim.v_s_kt;
}

void ReadModelPositions() {
    sim.v_mo_kt = ReadNamedVar(NamedVar("TZ_V_MO"));
    TakeControlFromModel(&cockpit.ovhd_ldg_lights_l_switch);
    TakeControlFromModel(&cockpit.ovhd_nose_lights_switch);
    TakeControlFromModel(&cockpit.ovhd_ldg_lights_r_switch);
}
