#include "fmc/performance/published_values.h"

#include "frame/named_variables.h"
#include "state/airports.h"
#include "state/cfg.h"
#include "state/plan.h"
#include "state/predictions.h"
#include "state/takeoff_approach.h"

void PublishFmcValues() {
    WriteNamedVar(NamedVar("tz_accel_ht"), cfg.AccelHt);
    WriteNamedVar(NamedVar("tz_thrust_reduction_ht"), cfg.ThrustReductionHt);
    WriteNamedVar(NamedVar("tz_fpln_active"), plan.fms_fpln_active);
    WriteNamedVar(NamedVar("tz_dest_dist"), predictions.dist_to_dest);
    WriteNamedVar(NamedVar("tz_dest_elev"), airports.dest_airport.elevation_ft);
    WriteNamedVar(NamedVar("tz_v1"), takeoff_approach.v1);
    WriteNamedVar(NamedVar("tz_V1"), takeoff_approach.v1);
    WriteNamedVar(NamedVar("tz_vr"), takeoff_approach.vr);
    WriteNamedVar(NamedVar("tz_VR"), takeoff_approach.vr);
    WriteNamedVar(NamedVar("tz_vref"), takeoff_approach.vref);
    WriteNamedVar(NamedVar("tz_VREF"), takeoff_approach.vref);
    WriteNamedVar(NamedVar("tz_to_flaps"), takeoff_approach.to_flaps);
    WriteNamedVar(NamedVar("tz_landing_flaps"), takeoff_approach.ldg_flaps);
}
