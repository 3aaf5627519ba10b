#include "fmc/performance/published_values.h"

#include "base/angles.h"
#include "fmc/performance/predictions.h"
#include "fmc/performance/takeoff_reference.h"
#include "frame/named_variables.h"
#include "navdata/from_aircraft.h"
#include "state/airports.h"
#include "state/cfg.h"
#include "state/plan.h"
#include "state/predictions.h"
#include "state/sim.h"
#include "state/takeoff_approach.h"

namespace {

// The system flies the final itself where no localizer leads to the runway: by the approach that is chosen,
// else by what the runway has.
bool IsFlownByRoute(const ProcedureSelections& chosen, const RunwayData& runway) {
    if (chosen.appr_type == "-") return runway.ils_freq.empty();
    return chosen.appr_type != "ILS" && chosen.appr_type != "LOC";
}

}  // namespace

void PublishApproachValues() {
    const RunwayData* runway = DestinationRunway();
    DistBearing to_runway = {0, 0};
    double final_course = 0;
    if (runway != nullptr) {
        const bool has_final = plan.mod.procedures.appr_type != "-" && !plan.map_ident.empty();
        to_runway = FromAircraft(runway->lat, runway->lon);
        to_runway.bearing = FoldBearing(to_runway.bearing - sim.mgvar);
        final_course = has_final ? plan.final_appr_crs : runway->course;
    }
    WriteNamedVar(NamedVar("tz_dest_rwy_fac"), final_course);
    WriteNamedVar(NamedVar("tz_dest_rwy_trk"), to_runway.bearing);
    WriteNamedVar(NamedVar("tz_dest_rwy_nm"), to_runway.dist);
    WriteNamedVar(NamedVar("tz_fmc_ian_appr"),
                  runway != nullptr && IsFlownByRoute(plan.mod.procedures, *runway) ? 1 : 0);
}

void PublishFmcValues() {
    WriteNamedVar(NamedVar("tz_accel_ht"), cfg.AccelHt);
    WriteNamedVar(NamedVar("tz_thrust_reduction_ht"), cfg.ThrustReductionHt);
    WriteNamedVar(NamedVar("tz_fpln_active"), plan.fms_fpln_active);
    WriteNamedVar(NamedVar("tz_dest_dist"), predictions.dist_to_dest);
    WriteNamedVar(NamedVar("tz_dest_elev"), airports.dest_airport.elevation_ft);
    WriteNamedVar(NamedVar("tz_cdu_preflt_compl"), IsPreflightComplete() ? 1 : 0);
    WriteNamedVar(NamedVar("tz_v1"), takeoff_approach.v1);
    WriteNamedVar(NamedVar("tz_V1"), takeoff_approach.v1);
    WriteNamedVar(NamedVar("tz_vr"), takeoff_approach.vr);
    WriteNamedVar(NamedVar("tz_VR"), takeoff_approach.vr);
    WriteNamedVar(NamedVar("tz_vref"), takeoff_approach.vref);
    WriteNamedVar(NamedVar("tz_VREF"), takeoff_approach.vref);
    WriteNamedVar(NamedVar("tz_to_flaps"), takeoff_approach.to_flaps);
    WriteNamedVar(NamedVar("tz_landing_flaps"), takeoff_approach.ldg_flaps);
}
