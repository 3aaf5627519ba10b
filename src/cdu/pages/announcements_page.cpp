#include "cdu/pages/announcements_page.h"

#include <initializer_list>

#include "base/text.h"
#include "base/units.h"
#include "cdu/words/page.h"
#include "fmc/performance/predictions.h"
#include "fmc/performance/takeoff_reference.h"
#include "frame/tokens.h"
#include "navdata/from_aircraft.h"
#include "state/announcements.h"
#include "state/cfg.h"
#include "state/checklist.h"
#include "state/leg_words.h"
#include "state/plan.h"
#include "state/sim.h"
#include "state/takeoff_approach.h"
#include "state/vnav.h"

namespace {

constexpr int kLastMode = 17;       // of the flight deck's voices
constexpr int kLastCabinMode = 15;  // of the cabin's
constexpr int kPreflightList = 1, kBeforeStartList = 2, kBeforeTaxiList = 3;

// --- what the voices wait for

bool IsParked() {
    return sim.parking_brake >= kParkingBrakeSet;
}
bool AreEnginesStopped() {
    constexpr double kStopped = 10;  // percent N2
    return sim.n2_l <= kStopped && sim.n2_r <= kStopped;
}
bool AreEnginesRunning() {
    constexpr double kRunning = 50;
    return sim.n2_l >= kRunning && sim.n2_r >= kRunning;
}
bool IsEntryDoorOpen() {
    return sim.door_1l != 0 || sim.door_2l != 0;
}
bool IsTaxiing() {
    return sim.ground_speed_kt > 5 && sim.ground_speed_kt < 70;
}
bool HasRoute() {
    return plan.active.stpos != kNoPlan;
}
bool IsDone(int list) {
    return checklist.ListDone[static_cast<std::size_t>(list)] != 0;
}

double DistanceTo(const RunwayData* runway) {
    return runway == nullptr ? 999 : FromAircraft(runway->lat, runway->lon).dist;
}
std::string RunwayIdent(const RunwayData* runway) {
    return runway == nullptr ? "" : runway->ident;
}

// A condition of a mode, and what the crew is told while it doesn't hold.
struct Condition {
    bool holds;
    std::string text;
};

std::string FirstUnmet(std::initializer_list<Condition> conditions, int spacing_secs) {
    for (const Condition& condition : conditions)
        if (!condition.holds) return condition.text;
    return spacing_secs > 0 ? Format("Spacing %d secs rem", spacing_secs) : "";
}

std::string WithinOf(int feet, const RunwayData* runway) {
    return Format("<= %d ft of %s", feet, RunwayIdent(runway).c_str());
}

std::string CrewWait(int mode) {
    const bool on_ground = sim.on_ground == 1, low = sim.radio_alt_ft <= 25;
    const RunwayData* runway = DepartureRunway();
    const double speed = sim.ias_kt, height = sim.radio_alt_ft;
    const TakeoffApproachState& speeds = takeoff_approach;
    const int pause = announcements.crew_spacing_secs;
    const Condition grounded = {on_ground, "Aircraft On Ground"};
    const Condition route = {HasRoute(), "Set/Load Fplan/Route"};
    const Condition stopped = {AreEnginesStopped(), "Shutdown Engines"};
    const Condition chosen = {runway != nullptr, "Select Departure Runway"};
    const Condition v1 = {speeds.v1 > 0, "Set V1 speed"}, vr = {speeds.vr > 0, "Set VR speed"};
    const Condition descending = {vnav.tod == 1, "TOD Pt Reached"};
    switch (mode) {
        case 0:
            return FirstUnmet({grounded,
                               {sim.ground_speed_kt < 10, "Groundspeed < 10 kts"},
                               stopped,
                               {IsEntryDoorOpen(), "Open L1 or L2 Door"}},
                              pause);
        case 1:
            return FirstUnmet({{IsParked(), "Set Parking Brake"},
                               grounded,
                               stopped,
                               route,
                               {IsEntryDoorOpen(), "Open L1 and L2 Doors"}},
                              pause);
        case 2:
            return FirstUnmet({stopped,
                               {!IsEntryDoorOpen(), "Close L1 and L2 Doors"},
                               route,
                               {IsDone(kPreflightList), "Compl Preflt Chkl"}},
                              pause);
        case 3:
            return FirstUnmet({{AreEnginesRunning(), "Start Engines"},
                               route,
                               {IsDone(kBeforeStartList), "Compl Bef Start Chkl"}},
                              pause);
        case 4:
            return FirstUnmet({{IsDone(kBeforeTaxiList), "Compl Bef Taxi Chkl"},
                               grounded,
                               {IsTaxiing(), "Gsp btwn 5 and 70 kt"},
                               chosen,
                               {DistanceTo(runway) <= 0.28, WithinOf(1700, runway)}},
                              pause);
        case 5:
            return FirstUnmet({{sim.ground_speed_kt < 70, "Taxi speed < 70 kts"},
                               chosen,
                               {DistanceTo(runway) <= 0.032916, WithinOf(200, runway)}},
                              pause);
        case 6:
            return FirstUnmet({{low, "Aircraft On Ground"}, {speed > 77, "Takeoff Roll > 80 kts"}}, pause);
        case 7:
            return FirstUnmet({v1, vr, {speed > speeds.v1, "Takeoff Roll > V1 speed"}}, pause);
        case 8:
            return FirstUnmet(
                {{low, "Aircraft On Ground"}, v1, vr, {speed > speeds.vr, "Takeoff Roll > VR speed"}}, pause);
        case 9:
            return FirstUnmet({{speed > speeds.v2, "Ias > V2 speed"}}, pause);
        case 10:
            return FirstUnmet({{speed > 100, "Ias > 100 kts"},
                               {height > 100, "Radio height > 100 Ft"},
                               {sim.gear_left > 0, "Gear Down"}},
                              pause);
        case 11:
            return FirstUnmet({{pause > 0, "Ias > Flaps 5 Placard Speed"}}, pause);
        case 12:
            return FirstUnmet({{pause > 0, "Ias > Flaps 1 Placard Speed"}}, pause);
        case 13:
            return FirstUnmet({{pause > 0, "Ias > Flaps Up Placard Speed"}}, pause);
        case 14:
            return FirstUnmet({{vnav.toc == 1 || height >= 5000, "TOC Alt Reached Or Radio Height > 5000"}},
                              pause);
        case 15:
            return FirstUnmet({descending, {height < 20000, "Radio Height < 20000"}}, pause);
        case 16:
            return FirstUnmet({descending, {height < 10000, "Radio Height < 10000"}}, pause);
        default:
            return FirstUnmet({stopped}, pause);
    }
}

std::string CabinWait(int mode) {
    const bool on_ground = sim.on_ground == 1;
    const RunwayData* runway = DepartureRunway();
    const double height = sim.radio_alt_ft;
    const int pause = announcements.pax_spacing_secs;
    const Condition grounded = {on_ground, "Aircraft On Ground"};
    const Condition route = {HasRoute(), "Set/Load Fplan/Route"};
    const Condition parked = {IsParked(), "Set Parking Brake"};
    const Condition chosen = {runway != nullptr, "Select Departure Rwy"};
    const Condition descending = {vnav.tod == 1, "When TOD is reached"};
    const bool closed = sim.door_2l == 0 && sim.door_2r == 0 && sim.door_fwd_cargo == 0 &&
                        sim.door_aft_cargo == 0 && sim.door_bulk_cargo == 0;
    switch (mode) {
        case 0:
            return FirstUnmet({grounded, route, {IsRouteSettled(), "Exec Fplan/Route"}}, pause);
        case 1:
            return FirstUnmet({grounded, {IsEntryDoorOpen(), "Open L1 or L2 Door"}, route, parked}, pause);
        case 2:
            return FirstUnmet({grounded, parked, {!IsEntryDoorOpen(), "Close L1 and L2 Doors"}}, pause);
        case 3:
            return FirstUnmet({grounded,
                               chosen,
                               {closed, "Close all Doors"},
                               {DistanceTo(runway) > cfg.TzPasSafetyDemoMinRwyDist,
                                Format(" >= 3400 ft of %s", RunwayIdent(runway).c_str())}},
                              pause);
        case 4:
            return FirstUnmet({grounded,
                               chosen,
                               {IsTaxiing(), "Gsp btwn 5 & 70 kts"},
                               {DistanceTo(runway) <= cfg.TzPasFASeatedRwyDist, WithinOf(1700, runway)}},
                              pause);
        case 5:
            return FirstUnmet({{height > 4000, "RA > 6500"}}, pause);
        case 6:
            return FirstUnmet({{height > 10500 || vnav.toc == 1, "RA > 10500 or TOC"}}, pause);
        case 7:
            return FirstUnmet({{vnav.toc == 1, "when TOC is reached "}}, pause);
        case 8:
            return "Turn on Seatblt sign";
        case 9:
        case 10:
            return FirstUnmet({{vnav.toc == 1, "When TOC is reached"}, {pause > 0, "Dist to TOC is < 23"}},
                              pause);
        case 11:
            return FirstUnmet({descending}, pause);
        case 12:
            return FirstUnmet({descending,
                               {height <= 7000, "When RA < 7000"},
                               {sim.flap_te_angle >= 4.9, "When Flaps >= 5 degs"}},
                              pause);
        case 13:
            return FirstUnmet({descending,
                               {height < 4000, "When RA < 4000"},
                               {sim.flap_te_angle >= 19.9, "When Flaps >= 20 degs"},
                               {sim.gear_nose > 16000, "When Gear Deployed"}},
                              pause);
        case 14:
            return FirstUnmet(
                {{on_ground, "When Plane On Ground"}, {sim.ground_speed_kt < 35, "When gsp < 35 kts"}},
                pause);
        default:
            return FirstUnmet({}, pause);
    }
}

// --- the keys

// True where the voice has been switched on.
bool Toggle(int& flag) {
    flag = flag == 0 ? 1 : 0;
    return flag == 1;
}

void OnLine(PageCall& call) {
    const bool on_ground = sim.on_ground == 1;
    AnnouncementState& voices = announcements;
    switch (call.line) {
        case kL2:
            if (!Toggle(cfg.PlayTakeoffCalloutSounds)) return;
            cfg.LdgChecklist = 1;
            voices.cockpit_callout_mode = on_ground ? 0 : 11;
            return;
        case kR2:
            if (cfg.PlayTakeoffCalloutSounds == 1 && voices.cockpit_callout_mode < kLastMode)
                ++voices.cockpit_callout_mode;
            return;
        case kL4:
            if (Toggle(cfg.PlayAnnouncements)) voices.annuncement_mode = on_ground ? 0 : 5;
            return;
        case kR4:
            if (cfg.PlayAnnouncements == 1 && voices.annuncement_mode < kLastCabinMode)
                ++voices.annuncement_mode;
            return;
        case kL5:
            if (Toggle(cfg.LdgChecklist)) voices.ldg_checklist_mode = 0;
            return;
        case kL6:
            return GoToPage(call.side, kPageInitRefIndex);
        default:
            return;
    }
}

// --- the face

constexpr double kTextEnd = 252;

void DrawSwitch(PageCall& call, int row, bool on) {
    LeftData(call, row, on ? "<ON" : "<OFF", on ? kMapGreen : kWhite);
    MarkSelectable(call, kL1 + row - 1);
}

void DrawSkip(PageCall& call, int row, bool on, bool completed, const char* name) {
    if (!on) return;
    const std::string text = Format(completed ? "%s COMPLETED" : "SKIP %s MODE", name);
    PageText(call, 160, DataY(row), text, kWhite, kLabelSize);
    if (!completed) MarkSelectable(call, kR1 + row - 1);
}

// Before the takeoff how far the runway is, before the landing too.
void DrawRunwayDistance(PageCall& call) {
    constexpr double kShownFeet = 50000;
    const RunwayData* departure = DepartureRunway();
    const double feet = DistanceTo(departure) * kFeetPerNm;
    const bool before_takeoff = announcements.annuncement_mode < 6 || announcements.cockpit_callout_mode < 7;
    if (departure != nullptr && before_takeoff && feet < kShownFeet) {
        PageText(call, 40, DataY(1), Format("DIST FROM RWY %s %.0f FT", departure->ident.c_str(), feet),
                 kWhite, kLabelSize);
    }
    const RunwayData* landing = DestinationRunway();
    if (landing != nullptr)
        PageText(call, 128, LabelY(5) + 4,
                 Format("Dist From Rwy %s %.0f Nm", landing->ident.c_str(), DistanceTo(landing)), kWhite,
                 kLabelSize - 1);
}

}  // namespace

void AnnouncementsPage(PageCall& call) {
    OnLine(call);
    const int crew = announcements.cockpit_callout_mode, cabin = announcements.annuncement_mode;
    const bool crew_on = cfg.PlayTakeoffCalloutSounds == 1, cabin_on = cfg.PlayAnnouncements == 1;
    Title(call, 70, "ANNOUNCEMENT STATUS");
    PageText(call, 232, 25, "1/1", kWhite, kLabelSize);
    PageText(call, 40, LabelY(1), "* Req'd to Advance Mode", kCyan, kLabelSize);
    DrawRunwayDistance(call);

    LeftLabel(call, 2, "TZCAS");
    DrawSwitch(call, 2, crew_on);
    PageText(call, 80, DataY(2), crew_on ? Format("MODE: %d", crew) : "", kWhite, kLabelSize);
    DrawSkip(call, 2, crew_on, crew >= kLastMode, "TZCAS");
    if (crew_on) FittedText(call, 40, LabelY(3), kTextEnd, "*" + CrewWait(crew));

    PageText(call, 40, LabelY(4), "TZPAS", kCyan, kLabelSize);
    DrawSwitch(call, 4, cabin_on);
    PageText(call, 80, DataY(4), cabin_on ? Format("ON - MODE: %d ", cabin) : "", kWhite, kLabelSize);
    DrawSkip(call, 4, cabin_on, cabin >= kLastCabinMode, "TZPAS");
    if (cabin_on) FittedText(call, 80, LabelY(4), kTextEnd, "*" + CabinWait(cabin));

    LeftLabel(call, 5, "LDG CHECKLIST");
    DrawSwitch(call, 5, cfg.LdgChecklist == 1);
    if (cfg.LdgChecklist == 1)
        PageText(call, 80, DataY(5), Format("ON - MODE: %d", announcements.ldg_checklist_mode), kWhite,
                 kLabelSize);
    DashLine(call);
    LeftData(call, 6, "<INDEX");
    MarkSelectable(call, kL6);
}
