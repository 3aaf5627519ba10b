#pragma once

#include "state/variable.h"

/// The wind at one altitude.
struct WindLevel {
    int alt = 0;     // ft, 0 = empty
    double dir = 0;  // degrees true, where it comes from
    double spd = 0;  // kt
};

template <>
struct Describe<WindLevel> {
    static constexpr Field fields[] = {FieldRow<&WindLevel::alt>("alt"), FieldRow<&WindLevel::dir>("dir"),
                                       FieldRow<&WindLevel::spd>("spd")};
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};
