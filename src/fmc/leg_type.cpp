#include "fmc/leg_type.h"

#include "navdata/geodesy.h"
#include "navdata/ident_index.h"
#include "state/nav_tables.h"

void LookUpLegType(FlightPlanLeg& leg) {
    constexpr double kSamePlace = 1;  // nm; the files of one cycle round their positions alike
    if (leg.type.empty()) leg.type = "INT";
    VisitIdent(nav_tables.nav_index, leg.ident, [&leg](int number) {
        const NavaidRow& row = nav_tables.NavaidTable[number];
        if (row.ident != leg.ident || GreatCircle(row.lat, row.lon, leg.lat, leg.lon).dist >= kSamePlace)
            return true;
        leg.type = row.type == "V" ? "VOR" : "NDB";
        leg.freq = row.freq;
        return false;
    });
}
