#pragma once

#include <span>

#include "state/variable.h"

/// What the engine display shows of an engine.
struct EngineReadings {
    double n1_pct = 0, n2_pct = 0, n3_pct = 0;
    double tpr = 0;        // percent, of an engine that shows a thrust ratio
    double egt_c = 0;      // degrees C
    double fuel_flow = 0;  // lb/h
    double oil_press = 0;  // psi
    double oil_temp = 15;  // degrees C
    double oil_qty = 20;
    double vib = 0;
    double n1_cmd = 0, tpr_cmd = 0;  // what the levers ask for; 0 = not known
    double reverser = 0;             // 0 stowed to 1 deployed
};
template <>
struct Describe<EngineReadings> {
    static constexpr Field fields[] = {
        FieldRow<&EngineReadings::n1_pct>("n1_pct"),       FieldRow<&EngineReadings::n2_pct>("n2_pct"),
        FieldRow<&EngineReadings::n3_pct>("n3_pct"),       FieldRow<&EngineReadings::tpr>("tpr"),
        FieldRow<&EngineReadings::egt_c>("egt_c"),         FieldRow<&EngineReadings::fuel_flow>("fuel_flow"),
        FieldRow<&EngineReadings::oil_press>("oil_press"), FieldRow<&EngineReadings::oil_temp>("oil_temp"),
        FieldRow<&EngineReadings::oil_qty>("oil_qty"),     FieldRow<&EngineReadings::vib>("vib"),
        FieldRow<&EngineReadings::n1_cmd>("n1_cmd"),       FieldRow<&EngineReadings::tpr_cmd>("tpr_cmd"),
        FieldRow<&EngineReadings::reverser>("reverser")};
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

/// What the engine display has read, and what it remembers. Stepped by display/eicas.
struct EicasState {
    EngineReadings engine_l, engine_r;
    double fuel_temp = 15;   // degrees C, of the tanks
    int load_relief = 0;     // the flaps have been taken in for the speed
    int ldg_alt_manual = 0;  // the crew has set the landing altitude
};

extern EicasState eicas;
extern const std::span<const Variable> kEicasVariables;
