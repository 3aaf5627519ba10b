#include "efb/performance/copy_fmc_data.h"

#include "base/text.h"
#include "efb/performance/chosen_runway.h"
#include "fmc/performance/predictions.h"
#include "platform/host.h"
#include "state/plan.h"
#include "state/tablet_performance.h"
#include "state/takeoff_approach.h"

void CopyFmcData(int, int) {
    const RouteEnds& ends = plan.active.ends;
    if (ChooseTakeoffAirport(ends.origin)) ChooseTakeoffRunway(ends.dep_runway);
    if (ChooseLandingAirport(ends.dest)) ChooseLandingRunway(plan.mod.procedures.arr_appr_rwy);
    TabletTakeoff& takeoff = tablet_performance.takeoff;
    TabletLanding& landing = tablet_performance.landing;
    if (takeoff_approach.to_flaps > 0) takeoff.EfbTakeoffFlaps = Format("%d", takeoff_approach.to_flaps);
    takeoff.EfbTakeoffWeight = GrossWeight();
    takeoff.EfbCg = takeoff_approach.TakeoffTrimCg > 0 ? takeoff_approach.TakeoffTrimCg
                                                       : EvalCalc("(A:CG PERCENT,percent)");
    landing.EfbLandingWeight =
        takeoff_approach.ApproachWeightEntry > 0 ? takeoff_approach.ApproachWeightEntry : GrossWeight();
    takeoff.EfbTakeoffDone = landing.EfbLandingDone = 0;
}
