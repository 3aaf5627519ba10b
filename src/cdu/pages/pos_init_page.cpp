#include "cdu/pages/pos_init_page.h"

#include "base/text.h"
#include "cdu/words/page.h"
#include "cdu/words/position_text.h"
#include "cdu/words/typed_values.h"
#include "frame/crew_messages.h"
#include "navdata/find_airport.h"
#include "navdata/geodesy.h"
#include "state/airports.h"
#include "state/cfg.h"
#include "state/irs.h"
#include "state/pos_init.h"
#include "state/sim.h"

namespace {

constexpr int kPages = 3;
constexpr std::size_t kPositionLength = 15, kLatitudeLength = 7;

std::string AircraftPosition() {
    return PositionText(sim.plane_lat, sim.plane_lon);
}

void ForgetGate() {
    pos_init.RefGate.clear();
    pos_init.RefGateLat = pos_init.RefGateLon = 0;
}

void SetRefAirport(const AirportRow& airport) {
    pos_init.RefAirport = airport.ident;
    pos_init.RefAirportLat = airport.lat;
    pos_init.RefAirportLon = airport.lon;
    ForgetGate();
}

void OnAirport(PageCall& call) {
    if (IsDelete(call)) {
        pos_init.RefAirport.clear();
        pos_init.RefAirportLat = pos_init.RefAirportLon = 0;
        ForgetGate();
        return ClearEntry(call);
    }
    if (Entry(call).empty()) return;
    if (Entry(call).size() != 4) return Refuse(call, "INVALID ENTRY", kHelpReferenceAirport);
    const AirportRow* airport = FindAirport(Entry(call));
    if (airport == nullptr) return Refuse(call, "NOT IN DATABASE", kHelpAirportCode);
    SetRefAirport(*airport);
    ClearEntry(call);
}

void OnGate(PageCall& call) {
    if (Entry(call).empty() || pos_init.RefAirport.empty()) return;
    const auto gate = FindGatePosition(pos_init.RefAirport, Entry(call));
    if (!gate) return Refuse(call, "NOT IN DATABASE", kHelpGate);
    pos_init.RefGate = Entry(call);
    pos_init.RefGateLat = gate->lat;
    pos_init.RefGateLon = gate->lon;
    ClearEntry(call);
}

// Degrees, minutes and tenths of a minute behind the letter, "47" "22.5".
bool IsAngle(std::string_view text, std::size_t degree_digits, int most) {
    const std::string_view degrees = text.substr(1, degree_digits), minutes = text.substr(1 + degree_digits);
    const auto is_whole = [](std::string_view part) {
        return part.find_first_not_of("0123456789") == std::string_view::npos;
    };
    return is_whole(degrees) && is_whole(minutes.substr(0, 2)) && minutes[2] == '.' && IsDigit(minutes[3]) &&
           LeadingDouble(minutes) < 60 && LeadingInt(degrees) + LeadingDouble(minutes) / 60 <= most;
}

void OnInertialPosition(PageCall& call) {
    if (Entry(call).size() != kPositionLength) return;
    const std::string_view lat = std::string_view(Entry(call)).substr(0, kLatitudeLength);
    const std::string_view lon = std::string_view(Entry(call)).substr(kLatitudeLength);
    const bool has_letters = (lat[0] == 'N' || lat[0] == 'S') && (lon[0] == 'E' || lon[0] == 'W');
    if (!has_letters || !IsAngle(lat, 2, 90) || !IsAngle(lon, 3, 180))
        return Refuse(call, "INVALID ENTRY", kHelpInertialPosition);
    if (irs.irs_timer_l <= 0 && irs.irs_timer_r <= 0) return;
    const LatLon position = ParseLatLonCompact(lat, lon);
    pos_init.InertialEntryLat = lat[0] == 'S' ? -position.lat : position.lat;
    pos_init.InertialEntryLon = lon[0] == 'W' ? -position.lon : position.lon;
    constexpr double kNearOrigin = 6.0;
    const AirportData& origin = airports.origin_airport;
    const double off =
        GreatCircle(pos_init.InertialEntryLat, pos_init.InertialEntryLon, origin.lat, origin.lon).dist;
    if (!origin.ident.empty() && off > kNearOrigin)
        Refuse(call, "ENTER INERTIAL POSITION", kHelpInertialOrigin);
    ClearEntry(call);
}

void OnRnp(PageCall& call) {
    if (Entry(call).empty()) return;
    const auto rnp = TypedNumber(Entry(call), 0.01, 99.9);
    if (!rnp) return Refuse(call, "INVALID ENTRY", kHelpRnp);
    pos_init.RnpEntry = *rnp;
    if (*rnp < 0.05 || *rnp > 1.5) Refuse(call, "VERIFY RNP ENTRY", kHelpFixedList);
    ClearEntry(call);
}

void Toggle(int& flag) {
    flag = flag == 0 ? 1 : 0;
}

void PosInit(PageCall& call) {
    if (call.line == kL2) OnAirport(call);
    if (call.line == kL3) OnGate(call);
    if (call.line == kR5) OnInertialPosition(call);
    if ((call.line == kR1 || call.line == kR4) && Entry(call).empty()) CopyDown(call, AircraftPosition());
    if (call.line == kR6) GoToPage(call.side, kPageRte);

    Title(call, 110, "POS  INIT");
    RightLabel(call, 1, "LAST POS");
    RightData(call, 1, AircraftPosition());
    LeftLabel(call, 2, "REF AIRPORT");
    LeftData(call, 2, pos_init.RefAirport.empty() ? "----" : pos_init.RefAirport);
    if (!pos_init.RefAirport.empty()) {
        RightData(call, 2, PositionText(pos_init.RefAirportLat, pos_init.RefAirportLon));
        LeftLabel(call, 3, "GATE");
        LeftData(call, 3, pos_init.RefGate.empty() ? "---" : pos_init.RefGate);
        MarkSelectable(call, kL3);
    }
    if (!pos_init.RefGate.empty()) RightData(call, 3, PositionText(pos_init.RefGateLat, pos_init.RefGateLon));
    LeftLabel(call, 4, "UTC");
    LeftData(call, 4, Format("%02d%02dz", sim.utc_hours, sim.utc_minutes));
    RightLabel(call, 4, "GPS  POS");
    RightData(call, 4, AircraftPosition());
    RightLabel(call, 5, "SET INERTIAL POS");
    if (pos_init.InertialEntryLat == 0)
        RightBoxes(call, 5, kPositionLength);
    else
        RightData(call, 5, PositionText(pos_init.InertialEntryLat, pos_init.InertialEntryLon));
    RightData(call, 6, "ROUTE>");
    for (const int line : {kR1, kL2, kR4, kR5}) MarkSelectable(call, line);
}

// A row of POS REF: a sensor, and where it has the aircraft.
void SensorRow(PageCall& call, int row, const char* label, const char* fixed) {
    LeftLabel(call, row, label);
    LeftData(call, row, pos_init.PosBrgDistMode != 0 ? fixed : AircraftPosition());
}

void DrawUpdatePrompt(PageCall& call, int row) {
    if (pos_init.PosUpdateArmed == 0) return;
    RightData(call, row, "NOW>");
    MarkSelectable(call, kR1 + row - 1);
}

void PosRef2(PageCall& call) {
    if (call.line == kR2 || call.line == kR3) pos_init.PosUpdateArmed = 0;
    if (call.line == kL5) OnRnp(call);

    Title(call, 112, "POS  REF");
    SensorRow(call, 1, "FMC (GPS)", "230\xb0/0.0");
    RightLabel(call, 1, "POS UPDATE");
    LeftLabel(call, 2, "IRU L");
    LeftLabel(call, 3, "GPS - IRU L");
    if (irs.irs_left == 1 || irs.irs_right == 1) {
        LeftData(call, 2, AircraftPosition());
        LeftData(call, 3, "000\xb0/0.0");  // the units don't drift
    }
    DrawUpdatePrompt(call, 2);
    DrawUpdatePrompt(call, 3);
    LeftLabel(call, 4, "RADIO L");
    LeftData(call, 4, AircraftPosition());
    LeftLabel(call, 5, "RNP/ACTUAL");
    LeftData(call, 5, Format("%.2f/%.2f", pos_init.RnpEntry, 0.05));
    MarkSelectable(call, kL5);
}

struct Sensor {
    const char* label;
    int PosInitState::*enabled;
};
constexpr Sensor kSensors[] = {
    {"GPS NAV", &PosInitState::GpsNavEnabled},
    {"DME/DME NAV", &PosInitState::DmeDmeNavEnabled},
    {"VOR/DME NAV", &PosInitState::VorDmeNavEnabled},
    {"LOC NAV", &PosInitState::LocNavEnabled},
};

void PosRef3(PageCall& call) {
    if (const int row = RightLine(call.line); row >= 1 && row <= 4)
        Toggle(pos_init.*kSensors[row - 1].enabled);

    Title(call, 112, "POS  REF");
    int row = 1;
    for (const char* label : {"FMC L (MASTER)", "FMC R (SPARE)", "FMC C (BACKUP)"})
        SensorRow(call, row++, label, "011\xb0/0.0");
    row = 1;
    for (const Sensor& sensor : kSensors) {
        const bool on = pos_init.*sensor.enabled != 0;
        const auto size = [](bool in_force) { return in_force ? kDataSize : kLabelSize; };
        RightLabel(call, row, sensor.label);
        PageText(call, 189, DataY(row), "OFF", on ? kWhite : kMapGreen, size(!on));
        PageText(call, 218, DataY(row), "ON", on ? kMapGreen : kWhite, size(on));
        RightData(call, row, ">");
        MarkSelectable(call, kR1 + row - 1);
        ++row;
    }
}

}  // namespace

void OpenPosInit(PageCall& call) {
    constexpr double kTaxiSpeed = 30;  // kt
    const bool realistic = cfg.RealismMode == 1 || cfg.RealismMode == 2;
    const AirportRow* airport =
        sim.ground_speed_kt < kTaxiSpeed && realistic ? FindNearestAirport() : nullptr;
    if (airport != nullptr && airport->ident != pos_init.RefAirport) SetRefAirport(*airport);
    call.unit.pos_index = 1;
    GoToPage(call.side, kPagePosInit);
}

void OpenPosRef(PageCall& call) {
    call.unit.pos_index = kPages;
    GoToPage(call.side, kPagePosInit);
}

void PosInitPage(PageCall& call) {
    int& page = call.unit.pos_index;
    TurnPages(call, page, kPages);
    if (page != 1 && call.line > 0 && IsDelete(call)) {
        RefuseDelete(call);
        call.line = 0;
    }
    if (call.line == kL6) GoToPage(call.side, kPageInitRefIndex);
    if (page != 1 && call.line == kR6) Toggle(pos_init.PosBrgDistMode);
    (page == 1 ? PosInit : page == 2 ? PosRef2 : PosRef3)(call);

    PageText(call, 225, 25, Format("%d/%d", page, kPages), kWhite, kLabelSize);
    DashLine(call);
    LeftData(call, 6, "<INDEX");
    if (page != 1) RightData(call, 6, pos_init.PosBrgDistMode != 0 ? " LAT/LON>" : "BRG/DIST>");
    MarkSelectable(call, kL6);
    MarkSelectable(call, kR6);
}
