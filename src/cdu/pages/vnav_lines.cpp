#include "cdu/pages/vnav_lines.h"

#include <algorithm>

#include "base/text.h"
#include "cdu/words/page.h"
#include "cdu/words/perf_lines.h"
#include "cdu/words/shown_plan.h"
#include "cdu/words/typed_values.h"
#include "fmc/legs/route_state.h"
#include "frame/crew_messages.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/vnav.h"

namespace {

bool IsPending(double PlannedSpeeds::*speed) {
    return IsRouteModified() && plan.mod.entries.speeds.*speed > 0;
}

double Shown(double PlannedSpeeds::*speed) {
    return IsPending(speed) ? plan.mod.entries.speeds.*speed : perf.speeds.*speed;
}

int NextConstraint(int first, int last, int codes) {
    for (int i = std::max(first, FirstShownLeg()); i <= last; ++i) {
        const FlightPlanLeg& leg = ShownLeg(i);
        if (IsPlace(leg) && !IsOfMissedApproach(leg) && (leg.restr_code & codes) != 0) return i;
    }
    return 0;
}

bool HasTopOfClimb() {
    return vnav.toc_lat != 0 || vnav.toc_lon != 0;
}

}  // namespace

PlannedSpeeds& EditedSpeeds() {
    return IsRouteActive() ? plan.mod.entries.speeds : perf.speeds;
}

bool IsSpeedSelected(const SpeedPair& pair) {
    return plan.mod.selected.*pair.ias_selected != 0 || plan.mod.selected.*pair.mach_selected != 0;
}

void SpeedsChanged(PageCall& call) {
    if (IsRouteSettled()) AdvanceRouteState();
    ClearEntry(call);
}

std::optional<TypedSpeeds> ParseSpeeds(std::string_view text, double highest_mach) {
    constexpr double kSlowest = 50, kFastest = 500, kLowestMach = 0.4;
    const auto parts = SplitAtSlash(text);
    const std::string_view ias_text = parts ? parts->first : text;
    TypedSpeeds typed;
    if (!ias_text.empty() || !parts) {
        const auto ias = TypedNumber(ias_text, kSlowest, kFastest);
        if (!ias) return {};
        typed.ias = *ias;
    }
    if (!parts) return typed;
    const auto mach = TypedNumber(parts->second, kLowestMach, highest_mach);
    if (!mach) return {};
    typed.mach = *mach;
    return typed;
}

void SelectSpeeds(const SpeedPair& pair, const TypedSpeeds& typed) {
    if (typed.ias > 0) {
        EditedSpeeds().*pair.ias = typed.ias;
        plan.mod.selected.*pair.ias_selected = 1;
    }
    if (typed.mach > 0) {
        EditedSpeeds().*pair.mach = typed.mach;
        plan.mod.selected.*pair.mach_selected = 1;
    }
}

void SpeedLine(PageCall& call, const SpeedPair& pair, std::string_view label) {
    const double ias = Shown(pair.ias), mach = Shown(pair.mach);
    LeftLabel(call, 2, label);
    MarkSelectable(call, kL2);
    const std::string text = (ias > 0 ? Format("%3.0f", ias) : std::string("---")) +
                             (mach > 0 ? Format("/.%03.0f", mach * 1000) : std::string("/.---"));
    IsPending(pair.ias) || IsPending(pair.mach) ? HighlightedLeft(call, 2, text) : LeftData(call, 2, text);
}

void VnavTitle(PageCall& call, const SpeedPair& pair, std::string_view phase) {
    constexpr double kMarkX = 86, kTitleX = 113;
    std::string speed = "ECON";
    if (plan.mod.selected.*pair.ias_selected != 0)
        speed = Format("%.0fKT", Shown(pair.ias));
    else if (plan.mod.selected.*pair.mach_selected != 0)
        speed = Format("M.%03.0f", Shown(pair.mach) * 1000);
    else if (pair.mach == kCruisePair.mach && plan.mod.selected.LrcSelected != 0)
        speed = "LRC";
    RouteStatusMark(call, kMarkX);
    Title(call, kTitleX, speed.append(" ").append(phase), IsRouteSettled() ? kMapGreen : kWhite);
    PageText(call, 230, 25, Format("%d/%d", call.unit.fms_vnav_page, kVnavDesPage), kWhite, kLabelSize);
}

void EnterSpeedLimit(PageCall& call, int& speed, int& altitude) {
    constexpr std::size_t kFirstSlash = 3;
    constexpr int kSlowest = 100, kFastest = 999, kLowest = 1000, kHighest = 99999;
    if (IsDelete(call)) {
        speed = altitude = 0;
        RefreshProfile();
        return call.unit.ScratchMessage.clear();
    }
    if (Entry(call).empty()) return;
    const auto parts = SplitAtSlash(Entry(call));
    if (!parts || parts->first.size() < kFirstSlash) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    const auto knots = TypedInteger(parts->first, kSlowest, kFastest);
    const auto feet = TypedInteger(parts->second, kLowest, kHighest);
    if (!knots || !feet) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    speed = *knots;
    altitude = *feet;
    RefreshProfile();
    ClearEntry(call);
}

void TransitionLine(PageCall& call, int speed, int altitude) {
    LeftLabel(call, 3, "SPD TRANS");
    MarkSelectable(call, kL3);
    LeftData(call, 3, speed > 0 ? Format("%3d/%d", speed, altitude) : "---/-----");
}

void RestrictionLine(PageCall& call, int speed, int altitude) {
    LeftLabel(call, 4, "SPD RESTR");
    MarkSelectable(call, kL4);
    LeftData(call, 4, speed > 0 ? Format("%3d/%-5d", speed, altitude) : "---/-----");
}

int NextClimbConstraint(int codes) {
    if (vnav.toc != 0 || vnav.tod != 0) return 0;
    return NextConstraint(1, HasTopOfClimb() ? std::min(vnav.toc_stpos, ShownCount()) : ShownCount(), codes);
}

int NextDescentConstraint(int codes) {
    return NextConstraint(vnav.tod != 0 ? 1 : vnav.tod_stpos + 1, ShownCount(), codes);
}
