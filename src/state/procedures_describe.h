#pragma once

#include "state/procedures.h"
#include "state/variable.h"

// The fields of procedures, for the two groups that hold some.

template <>
struct Describe<ProcedureLeg> {
    using L = ProcedureLeg;
    static constexpr Field fields[] = {
        FieldRow<&L::segment>("segment"),
        FieldRow<&L::ident>("ident"),
        FieldRow<&L::text>("text"),
        FieldRow<&L::alt_token>("alt_token"),
        FieldRow<&L::applies_to>("applies_to"),
        FieldRow<&L::lat>("lat"),
        FieldRow<&L::lon>("lon"),
        FieldRow<&L::marker>("marker"),
        FieldRow<&L::flyover>("flyover"),
        FieldRow<&L::turn>("turn"),
        FieldRow<&L::start_lat>("start_lat"),
        FieldRow<&L::start_lon>("start_lon"),
        FieldRow<&L::code>("code"),
        FieldRow<&L::code_alt>("code_alt"),
        FieldRow<&L::code_course>("code_course"),
        FieldRow<&L::file_lat>("file_lat"),
        FieldRow<&L::file_lon>("file_lon"),
        FieldRow<&L::speed>("speed"),
        FieldRow<&L::alt2>("alt2"),
    };
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

template <>
struct Describe<ProcedureRecord> {
    using R = ProcedureRecord;
    static constexpr Field fields[] = {
        FieldRow<&R::name>("name"),       FieldRow<&R::base_name>("base_name"), FieldRow<&R::kind>("kind"),
        FieldRow<&R::runways>("runways"), FieldRow<&R::leg_cnt>("leg_cnt"),     FieldRow<&R::legs>("legs"),
    };
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};
