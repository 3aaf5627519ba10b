#include "fmc/legs/leg_type.h"

#include "navdata/geodesy.h"
#include "navdata/ident_index.h"
#include "state/nav_tables.h"

namespace {

// The row of a table that is called so and stands within a mile of the leg (the files of one cycle round
// their positions alike); null when there is none.
template <class Row>
const Row* FindPlace(const IdentIndex& index, const GrowingList<Row>& table, const FlightPlanLeg& leg) {
    constexpr double kSamePlace = 1;  // nm
    const Row* found = nullptr;
    VisitIdent(index, leg.ident, [&](int number) {
        const Row& row = table[number];
        if (row.ident == leg.ident && GreatCircle(row.lat, row.lon, leg.lat, leg.lon).dist < kSamePlace)
            found = &row;
        return found == nullptr;
    });
    return found;
}

}  // namespace

void LookUpLegType(FlightPlanLeg& leg) {
    const NavTables& tables = nav_tables;
    if (const NavaidRow* navaid = FindPlace(tables.nav_index, tables.NavaidTable, leg)) {
        leg.type = navaid->type == "V" ? "VOR" : "NDB";
        leg.freq = navaid->freq;
    } else if (leg.type.empty() || FindPlace(tables.int_index, tables.IntersectionTable, leg) != nullptr) {
        leg.type = "INT";
    }
}
