#include "module/printed_lists.h"

#include <algorithm>
#include <string>

#include "efb/tablet.h"
#include "module/pictures.h"
#include "navdata/parse_entry.h"
#include "state/cdu.h"
#include "state/nav.h"
#include "state/plan.h"
#include "state/side.h"
#include "systems/alerting/message_lists.h"

namespace {

/// A line of words; an empty text is "-".
class Line {
  public:
    explicit Line(double index) : text_(FormatNumber(index)) {}
    explicit Line(const std::string& word) : text_(word.empty() ? "-" : word) {}
    Line& operator<<(const std::string& word) {
        text_.append(" ").append(word.empty() ? "-" : word);
        return *this;
    }
    Line& operator<<(double number) { return *this << FormatNumber(number); }
    void Print(const Results& results) const { results.Add("", text_); }

  private:
    std::string text_;
};

std::string Quoted(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '\n')
            quoted += "\\n";
        else
            quoted += c;
    }
    return quoted + "\"";
}

int PrintLegs(std::string_view which, const Results& results) {
    if (!which.empty() && which != "active" && which != "mod")
        return results.Fail("legs takes active or mod");
    const bool mod = which == "mod";
    const GrowingList<FlightPlanLeg>& legs = mod ? plan.mod.legs : plan.active.legs;
    const int last = mod ? plan.mod.leg_cnt : plan.active.leg_cnt;
    if (last == 0 && legs[0].ident.empty()) return 1;
    for (int i = 0; i <= last; ++i) {
        const FlightPlanLeg& leg = legs[i];
        Line line(i);
        line << leg.ident << leg.lat << leg.lon << leg.type << leg.via << leg.via_type << leg.alt
             << leg.alt_restr << leg.restr_code << leg.restr_type << leg.ias_restr << leg.flyover
             << leg.dep_turn << leg.hold_pos << leg.appr_wpt_type << leg.mod_flag;
        line.Print(results);
    }
    return 1;
}

int PrintRows(std::string_view, const Results& results) {
    const GrowingList<RouteRow>& rows = plan.Route;
    for (int i = 1; i <= plan.route_cnt; ++i) {
        Line line(i);
        line << rows[i].via << rows[i].via_type << rows[i].to;
        line.Print(results);
    }
    return 1;
}

int PrintCandidates(std::string_view entry, const Results& results) {
    ParseEntry(entry);
    for (int i = 1; i <= nav.entry_cnt; ++i) {
        const NavRecord& record = nav.EntryCandidates[i];
        Line line(record.ident);
        line << record.name << record.lat << record.lon << record.type << record.freq;
        line.Print(results);
    }
    return 1;
}

int PrintMessages(std::string_view side, const Results& results) {
    if (side != "L" && side != "R") return results.Fail("messages takes L or R");
    const CduState& unit = CduOf(side == "L" ? kCaptain : kFirstOfficer);
    for (int i = unit.CduMessageCount; i >= 1; --i) {
        const CduMessage& message = unit.CduMessages[i];
        Line line(message.kind);
        line << Quoted(message.title) << Quoted(message.body);
        line.Print(results);
    }
    return 1;
}

int PrintAlerts(std::string_view, const Results& results) {
    constexpr const char* kLevels[] = {"warning", "caution", "advisory", "memo"};
    for (int level = 0; level < 4; ++level) {
        const AlertList& list = ListOf(static_cast<AlertLevel>(level));
        const int last = list.Count();
        for (int i = 1; i <= last; ++i) {
            Line line{std::string(kLevels[level])};
            line << Quoted(list.At(i).text);
            line.Print(results);
        }
    }
    return 1;
}

// What may be touched on a side's tablet, topmost first; what has a label and a text answers to both.
int PrintTouches(std::string_view side, const Results& results) {
    if (side != "L" && side != "R") return results.Fail("touches takes L or R");
    const int number = side == "L" ? kCaptain : kFirstOfficer;
    if (!IsTabletLit(number)) return 1;
    const TabletFace face = FaceOf(number);
    for (auto item = face.items.rbegin(); item != face.items.rend(); ++item) {
        if (!item->IsTouchable()) continue;
        for (std::string text : {item->label, item->text}) {
            if (text.empty()) continue;
            std::ranges::replace(text, '\n', ' ');
            Line line(item->box.x);
            line << item->box.y << item->box.width << item->box.height << Quoted(text);
            line.Print(results);
        }
    }
    return 1;
}

struct PrintedList {
    std::string_view name;
    int (*print)(std::string_view argument, const Results& results);
};
constexpr PrintedList kPrintedLists[] = {
    {"legs", PrintLegs},          {"rows", PrintRows},       {"candidates", PrintCandidates},
    {"messages", PrintMessages},  {"alerts", PrintAlerts},   {"text", PrintPictureTexts},
    {"draws", PrintPictureDraws}, {"touches", PrintTouches},
};

}  // namespace

int PrintList(std::string_view list, std::string_view argument, const Results& results) {
    const auto* row = std::ranges::find(kPrintedLists, list, &PrintedList::name);
    if (row == std::end(kPrintedLists)) return results.Fail(std::string(list) + ": not available yet");
    return row->print(argument, results);
}
