#include "fmc/legs/insert_fix.h"

#include <algorithm>
#include <cmath>

#include "base/angles.h"
#include "base/text.h"
#include "fmc/legs/find_leg.h"
#include "fmc/legs/leg_list.h"
#include "fmc/legs/path.h"
#include "fmc/legs/route_rows.h"
#include "navdata/geodesy.h"
#include "navdata/magnetic_model.h"
#include "state/leg_words.h"

namespace {

constexpr std::string_view kLatLonPrefix = "WPT";
constexpr std::size_t kPlacePrefixLength = 3;

// The number of an ident of the form prefix and number of at least two digits, 0 for any other.
int MadeNumber(std::string_view ident, std::string_view prefix) {
    if (!ident.starts_with(prefix)) return 0;
    const std::string_view digits = ident.substr(prefix.size());
    const bool is_form = digits.size() == 2 || (digits.size() == 3 && digits[0] != '0');
    if (!is_form || !std::all_of(digits.begin(), digits.end(), IsDigit)) return 0;
    int number = 0;
    for (const char c : digits) number = number * 10 + (c - '0');
    return number;
}

std::string LegType(std::string_view table_type) {
    if (table_type == "V") return "VOR";
    if (table_type == "N") return "NDB";
    if (table_type == "APT") return "APT";
    return table_type == "I" ? "INT" : "WPT";
}

FlightPlanLeg DirectLeg(std::string ident, double lat, double lon) {
    FlightPlanLeg leg;
    leg.ident = std::move(ident);
    leg.lat = lat;
    leg.lon = lon;
    leg.type = "WPT";
    leg.via = kDirectVia;
    leg.mod_flag = 1;
    return leg;
}

// The place towards which an along-track offset is measured, -1 when there is none.
int NeighbourPlace(int position, bool ahead) {
    if (!ahead) return PlaceBefore(plan.mod.legs, position);
    for (int i = position + 1; i <= plan.mod.leg_cnt; ++i)
        if (IsPlace(plan.mod.legs[i])) return i;
    return -1;
}

FlightPlanLeg AlongTrackLeg(int position, int towards, double offset) {
    const FlightPlanLeg& reference = plan.mod.legs[position];
    const FlightPlanLeg& neighbour = plan.mod.legs[towards];
    const double bearing = GreatCircle(reference.lat, reference.lon, neighbour.lat, neighbour.lon).bearing;
    const LatLon point = ProjectPoint(reference.lat, reference.lon, bearing, std::fabs(offset));
    return DirectLeg(MadeName(reference.ident), point.lat, point.lon);
}

const NavRecord* Candidate(int number) {
    number = std::max(number, 1);
    return number <= nav.entry_cnt ? &nav.EntryCandidates[number] : nullptr;
}

void PlaceLeg(int position, FlightPlanLeg leg) {
    OpenModLeg(position) = std::move(leg);
}

}  // namespace

std::string MadeName(std::string_view prefix) {
    int highest = 0;
    for (int i = 0; i <= plan.mod.leg_cnt; ++i)
        highest = std::max(highest, MadeNumber(plan.mod.legs[i].ident, prefix));
    return std::string(prefix).append(Format("%02d", highest + 1));
}

FlightPlanLeg LegFromEntry(const NavRecord& entry) {
    const bool from_entry_text = entry.airway.empty();
    if (from_entry_text && nav.entry_distance > 0) {
        const double bearing = FoldBearing(nav.entry_bearing + MagVarAt(entry.lat, entry.lon));
        const LatLon point = ProjectPoint(entry.lat, entry.lon, bearing, nav.entry_distance);
        return DirectLeg(MadeName(std::string_view(entry.ident).substr(0, kPlacePrefixLength)), point.lat,
                         point.lon);
    }
    const bool is_crossing = from_entry_text && (nav.entry_bearing != 0 || nav.entry_bearing2 != 0);
    if (is_crossing)
        return DirectLeg(MadeName(std::string_view(entry.ident).substr(0, kPlacePrefixLength)), entry.lat,
                         entry.lon);
    // The parser numbers such a position by itself, but the route may have changed since.
    if (MadeNumber(entry.ident, kLatLonPrefix) > 0 && entry.type == "I" && nav.entry_cnt == 1)
        return DirectLeg(MadeName(kLatLonPrefix), entry.lat, entry.lon);
    FlightPlanLeg leg = DirectLeg(entry.ident, entry.lat, entry.lon);
    leg.type = LegType(entry.type);
    leg.freq = entry.freq;
    return leg;
}

void InsertFixAt(int position, int candidate, bool replace) {
    if (plan.along_track_nm == 0 && Candidate(candidate) == nullptr) return;
    EnsureEnds();
    position = std::clamp(position, 1, plan.mod.leg_cnt);
    if (plan.along_track_nm != 0) {
        const double offset = plan.along_track_nm;
        plan.along_track_nm = 0;
        const int towards = NeighbourPlace(position, offset > 0);
        if (!IsPlace(plan.mod.legs[position]) || towards < 0) return;
        FlightPlanLeg leg = AlongTrackLeg(position, towards, offset);
        if (offset > 0) ++position;
        PlaceLeg(position, std::move(leg));
    } else {
        PlaceLeg(position, LegFromEntry(*Candidate(candidate)));
    }
    if (!replace) OpenDisco(position + 1);
    RebuildRouteRows();
}

void InsertDirectRow(int candidate, int row) {
    const NavRecord* entry = Candidate(candidate);
    if (entry == nullptr) return;
    EnsureEnds();
    const RowLegs legs = row > 0 ? FindRowLegs(row) : RowLegs{};
    PlaceLeg(legs.last > 0 ? legs.last : plan.mod.leg_cnt, LegFromEntry(*entry));
    RebuildRouteRows();
}
