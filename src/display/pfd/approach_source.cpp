#include "display/pfd/approach_source.h"

#include "base/text.h"
#include "fmc/performance/predictions.h"
#include "navdata/from_aircraft.h"
#include "state/airports.h"
#include "state/autoflight.h"
#include "state/leg_words.h"
#include "state/nav.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

bool IsLandingSystemReceived() {
    return sim.nav1_is_loc > 0 && sim.nav1_signal != 0;
}

// On its way down to an approach without a landing system, or flying one.
bool IsFinalApproach() {
    const bool selected = autoflight.fac_approach == 1 && vnav.tod == 1;
    return selected || autoflight.ap_lat_mode == kLatFac || autoflight.ap_lat_mode_armed == kLatFac;
}

std::string CourseLine(const std::string& name, double course) {
    return name + Format("/%03.0f%c", Bounded(course, 0, 360), kDegreeSign);
}

std::array<std::string, 3> LandingSystemLines() {
    const RunwayData* runway = DestinationRunway();
    const bool by_hand = nav.ilsfreq >= 1;
    std::string ident = sim.nav1_ident;
    if (by_hand && !nav.appr_navaid_ident.empty())
        ident = nav.appr_navaid_ident;
    else if (by_hand && runway != nullptr && !runway->ils_ident.empty())
        ident = runway->ils_ident;
    const bool runway_course = runway != nullptr && plan.active.stpos != kNoPlan;
    return {CourseLine(ident, runway_course ? runway->course : sim.nav1_course),
            sim.nav1_dme > 0 ? Format("DME %3.1f", Bounded(sim.nav1_dme, 0, 9999)) : "DME ---",
            by_hand ? "ILS" : "FMC"};
}

std::array<std::string, 3> FinalApproachLines(const RunwayData& runway) {
    const std::string prefix = plan.mod.procedures.appr_type;
    const std::string distance =
        plan.map_ident.empty()
            ? Format("RW%s %3.1f", runway.ident.c_str(), FromAircraft(runway.lat, runway.lon).dist)
            : Format("%s %3.1f", plan.map_ident.c_str(),
                     FromAircraft(plan.map_fix_lat, plan.map_fix_lon).dist);
    return {CourseLine(prefix + runway.ident, plan.final_appr_crs), distance, "FMC"};
}

struct Beacon {
    std::string_view name;
    Rgb colour;
};
constexpr Beacon kBeacons[] = {{"OM", kCyan}, {"MM", kAmber}, {"IM", kWhite}};

}  // namespace

DeviationSource SourceOfDeviation() {
    if (IsLandingSystemReceived()) return DeviationSource::kLandingSystem;
    if (IsFinalApproach()) return DeviationSource::kFinalApproach;
    return plan.active.stpos != kNoPlan ? DeviationSource::kRoute : DeviationSource::kNone;
}

std::array<std::string, 3> ApproachSourceLines() {
    if (IsLandingSystemReceived()) return LandingSystemLines();
    const RunwayData* runway = DestinationRunway();
    if (runway != nullptr && IsFinalApproach()) return FinalApproachLines(*runway);
    return {"FMC", "", ""};
}

std::string_view BeaconName() {
    const int beacon = sim.marker_state;
    return beacon < 1 || beacon > 3 ? "" : kBeacons[beacon - 1].name;
}

void DrawApproachSource(const PfdView& view) {
    constexpr double kX = -70, kStep = 10;
    constexpr float kSize = 8;
    if (!IsPfdLit()) return;
    double y = -90;
    for (const std::string& line : ApproachSourceLines()) {
        if (!line.empty()) Text(view.graphics, kX, y, kSize, kWhite, line);
        y += kStep;
    }
}

void DrawMarkerBeacon(const PfdView& view) {
    constexpr float kSize = 9;
    if (BeaconName().empty() || !IsBlinkOn()) return;
    const Beacon& shown = kBeacons[sim.marker_state - 1];
    GdipFillEllipseI(view.graphics, BrushOf(kBlack), 47, -75, 18, 18);
    GdipDrawEllipseI(view.graphics, PenOf(shown.colour, 1.5f), 47, -75, 18, 18);
    TextAbout(view.graphics, 56, -66, kSize, shown.colour, shown.name);
}
