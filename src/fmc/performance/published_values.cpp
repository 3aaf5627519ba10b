#include "fmc/performance/published_values.h"

#include "frame/named_variables.h"
#include "state/airports.h"
#include "state/cfg.h"
#include "state/perf.h"
#include "state/plan.h"

void PublishFmcValues() {
    WriteNamedVar(NamedVar("tz_accel_ht"), cfg.AccelHt);
    WriteNamedVar(NamedVar("tz_thrust_reduction_ht"), cfg.ThrustReductionHt);
    WriteNamedVar(NamedVar("tz_fpln_active"), plan.fms_fpln_active);
    WriteNamedVar(NamedVar("tz_dest_dist"), perf.dist_to_dest);
    WriteNamedVar(NamedVar("tz_dest_elev"), airports.dest_airport.elevation_ft);
    WriteNamedVar(NamedVar("tz_v1"), perf.v1);
    WriteNamedVar(NamedVar("tz_V1"), perf.v1);
    WriteNamedVar(NamedVar("tz_vr"), perf.vr);
    WriteNamedVar(NamedVar("tz_VR"), perf.vr);
    WriteNamedVar(NamedVar("tz_vref"), perf.vref);
    WriteNamedVar(NamedVar("tz_VREF"), perf.vref);
    WriteNamedVar(NamedVar("tz_to_flaps"), perf.to_flaps);
    WriteNamedVar(NamedVar("tz_landing_flaps"), perf.ldg_flaps);
}
