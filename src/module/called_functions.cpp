#include "module/called_functions.h"

#include "base/angles.h"
#include "checklist/checklist.h"
#include "display/eicas/engine_readings.h"
#include "fmc/legs/edit_legs.h"
#include "fmc/legs/holds.h"
#include "fmc/legs/insert_fix.h"
#include "fmc/legs/path.h"
#include "fmc/legs/route_airway.h"
#include "fmc/legs/route_rows.h"
#include "fmc/legs/route_state.h"
#include "fmc/performance/flight_log.h"
#include "fmc/performance/predictions.h"
#include "fmc/performance/profile.h"
#include "fmc/performance/step_point.h"
#include "fmc/performance/takeoff_speeds.h"
#include "fmc/performance/winds.h"
#include "fmc/route/delete_restrictions.h"
#include "fmc/route/execute_route.h"
#include "fmc/route/modification.h"
#include "guidance/approach_tuning.h"
#include "guidance/vnav_speed.h"
#include "module/bound_function.h"
#include "navdata/airways.h"
#include "navdata/geodesy.h"
#include "navdata/magnetic_model.h"
#include "panels/load_panel.h"
#include "panels/panel_folder.h"
#include "panels/save_panel.h"
#include "systems/alerting/alerts_update.h"
#include "systems/alerting/master_caution.h"
#include "systems/alerting/message_lists.h"

namespace {

// Where a function's own results don't fit a row, what stands between.

struct Crossing {
    int result = 0;
    double lat = 0, lon = 0;
};
Crossing Intersect(double lat1, double lon1, double brg1, double lat2, double lon2, double brg2) {
    Crossing at;
    at.result = IntersectBearings(lat1, lon1, brg1, lat2, lon2, brg2, at.lat, at.lon);
    return at;
}

struct LatLonText {
    std::string lat_text, lon_text;
};
LatLonText FormatLatLon(double lat, double lon) {
    return {FormatLatitude(lat), FormatLongitude(lon)};
}

// With the flag 0 what acts on the distances follows, as in a guidance pass.
void MeasureDistances(int flag) {
    ComputeDistances();
    if (flag != 0) return;
    WatchStepPoint();
    TuneApproach();
}

}  // namespace

template <>
struct Describe<DistBearing> {
    static constexpr Field fields[] = {FieldRow<&DistBearing::dist>("dist"),
                                       FieldRow<&DistBearing::bearing>("bearing")};
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};
template <>
struct Describe<LatLon> {
    static constexpr Field fields[] = {FieldRow<&LatLon::lat>("lat"), FieldRow<&LatLon::lon>("lon")};
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};
template <>
struct Describe<Crossing> {
    static constexpr Field fields[] = {FieldRow<&Crossing::result>("result"), FieldRow<&Crossing::lat>("lat"),
                                       FieldRow<&Crossing::lon>("lon")};
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};
template <>
struct Describe<LatLonText> {
    static constexpr Field fields[] = {FieldRow<&LatLonText::lat_text>("lat_text"),
                                       FieldRow<&LatLonText::lon_text>("lon_text")};
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};
template <>
struct Describe<WindParts> {
    static constexpr Field fields[] = {FieldRow<&WindParts::crosswind>("crosswind"),
                                       FieldRow<&WindParts::headwind>("headwind")};
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};
template <>
struct Describe<AirwayCrossing> {
    static constexpr Field fields[] = {FieldRow<&AirwayCrossing::index>("result"),
                                       FieldRow<&AirwayCrossing::context>("context")};
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};
template <>
struct Describe<ClimbPerformance> {
    static constexpr Field fields[] = {FieldRow<&ClimbPerformance::rate>("result"),
                                       FieldRow<&ClimbPerformance::fuel_flow>("fuel_flow")};
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

namespace {

constexpr BoundFunction kPureFunctions[] = {
    Bind<GreatCircle>("GreatCircle", "LAT1 LON1 LAT2 LON2"),
    Bind<ProjectPoint>("ProjectPoint", "LAT LON BEARING DIST"),
    Bind<Intersect>("IntersectBearings", "LAT1 LON1 BRG1 LAT2 LON2 BRG2"),
    Bind<WindComponents>("WindComponents", "HEADING DIR SPEED"),
    Bind<FormatLatLon>("FormatLatLon", "LAT LON"),
    Bind<ParseLatLonCompact>("ParseLatLonCompact", "LAT_TEXT LON_TEXT"),
    Bind<ParseLatLonColons>("ParseLatLonColons", "LAT_TEXT LON_TEXT"),
    Bind<MagVarAt>("MagVarAt", "LAT LON"),
    Bind<AngleBetween>("AngleBetween", "A B"),
    Bind<TurnSide>("TurnSide", "FROM TO"),
    Bind<TurnRadiusForSpeedAndAlt>("TurnRadiusForSpeedAndAlt", "SPEED ALT"),
    Bind<WaypointChangeDistance>("WaypointChangeDistance", "ANGLE RADIUS"),
    Bind<FindAirwayCrossing>("FindAirwayCrossing", "AIRWAY1 AIRWAY2 CONTEXT"),
    Bind<ClimbRate>("ClimbRate", "WEIGHT ALT"),
    Bind<IasToMach>("IasToMach", "IAS ALT"),
    Bind<PlanningTas>("PlanningTas", "IAS ALT"),
    Bind<EconClimbSpeed>("EconClimbSpeed", "CI"),
    Bind<EconCruiseMach>("EconCruiseMach", "CI ALT"),
    Bind<EconDescentSpeed>("EconDescentSpeed", "CI"),
    Bind<PerfFactor>("PerfFactor", ""),
    Bind<MaxAltitude>("MaxAltitude", ""),
    Bind<BestAltitude>("BestAltitude", ""),
    Bind<LegWind>("LegWind", "PREV_LEG LEG"),
    Bind<DescentWind>("DescentWind", "LEG"),
    Bind<ComputeV1>("ComputeV1",
                    "KG WET REDUCTION FLAPS WIND_DIR WIND_SPEED RUNWAY_HEADING OAT PRESSURE_ALT"),
    Bind<ComputeVR>("ComputeVR", "KG REDUCTION FLAPS OAT PRESSURE_ALT"),
    Bind<ComputeV2>("ComputeV2", "KG REDUCTION FLAPS OAT PRESSURE_ALT"),
    Bind<EicasTpr>("EicasTpr", "N1"),
};
static_assert(UsagesFit(kPureFunctions));

constexpr BoundFunction kOperations[] = {
    Bind<AdvanceRouteState>("AdvanceRouteState", ""),
    Bind<ExecuteRoute>("ExecuteRoute", ""),
    Bind<EraseModification>("EraseModification", ""),
    Bind<RefreshLegsForModification>("RefreshLegsForModification", ""),
    Bind<RebuildRouteRows>("RebuildRouteRows", ""),
    Bind<NormalizeLegs>("NormalizeLegs", ""),
    Bind<ClearFlightPlan>("ClearFlightPlan", ""),
    Bind<ConnectLegs>("ConnectLegs", "FROM TO [SIDE]"),
    Bind<RemoveViaRow>("RemoveViaRow", "ROW"),
    Bind<RemoveToRow>("RemoveToRow", "ROW"),
    Bind<FindRouteFix>("FindRouteFix", "ROW [WANT_VIA]"),
    Bind<InsertDirectRow>("InsertDirectRow", "CANDIDATE [ROW]"),
    Bind<DeleteLegWithDiscontinuity>("DeleteLegWithDiscontinuity", "LEG [RECONNECT] [SIDE]"),
    Bind<MarkHold>("MarkHold", "LEG ACTIVE PREV_LEG"),
    Bind<RemoveHold>("RemoveHold", "LEG"),
    Bind<static_cast<void (*)(std::string_view, int, int, int)>(LoadAirway)>("LoadAirway",
                                                                             "NAME ROW LEG_FIX [SIDE]"),
    Bind<FindFixOnAirway>("FindFixOnAirway", "IDENT"),
    Bind<InsertAirwaySegment>("InsertAirwaySegment", "AIRWAY_FIX"),
    Bind<InsertAirwayPlaceholder>("InsertAirwayPlaceholder", "INDEX AIRWAY"),
    Bind<InsertFixAt>("InsertFixAt", "POSITION CANDIDATE REPLACE"),
    Bind<DeleteClimbRestrictions>("DeleteClimbRestrictions", "ONLY_NEXT"),
    Bind<DeleteDescentRestrictions>("DeleteDescentRestrictions", "ONLY_NEXT"),
    Bind<ComputeProfile>("ComputeProfile", "CRUISE_ALT [MODE]"),
    Bind<MeasureDistances>("ComputeDistances", "FLAG"),
    Bind<ApplyCostIndexRow>("ApplyCostIndexRow", "ACTIVE INDEX"),
    Bind<ComputeStepPoint>("ComputeStepPoint", ""),
    Bind<FlightLogStep>("FlightLogStep", "AT_WAYPOINT"),
    Bind<VnavSpeedStep>("VnavSpeedStep", ""),
    Bind<RequestRouteWinds>("RequestRouteWinds", ""),
    Bind<ApplyRouteWinds>("ApplyRouteWinds", "SIDE"),
    Bind<RequestDescentWinds>("RequestDescentWinds", ""),
    Bind<OnChecklistClick>("OnChecklistClick", "X Y DU"),
    Bind<SavePanelState>("SavePanelState", "NAME SIDE MODE"),
    Bind<LoadPanelState>("LoadPanelState", "NAME MODE"),
    Bind<ListPanels>("ListPanels", ""),
    Bind<SelectNormalList>("SelectNormalList", ""),
    Bind<AlertsUpdate>("AlertsUpdate", ""),
    Bind<CancelRecall>("CancelRecall", ""),
    Bind<MasterWarningReset>("MasterWarningReset", ""),
};
static_assert(UsagesFit(kOperations));

}  // namespace

int CallPureFunction(std::string_view line, const Results& results) {
    return CallBound(kPureFunctions, line, results);
}

int RunRouteOperation(std::string_view line, const Results& results) {
    return CallBound(kOperations, line, results);
}
