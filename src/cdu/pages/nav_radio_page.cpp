#include "cdu/pages/nav_radio_page.h"

#include <optional>

#include "base/angles.h"
#include "base/bcd.h"
#include "base/numbers.h"
#include "base/text.h"
#include "cdu/words/page.h"
#include "cdu/words/typed_values.h"
#include "frame/crew_messages.h"
#include "frame/key_events.h"
#include "navdata/vor_autotune.h"
#include "platform/host.h"
#include "state/nav.h"
#include "state/nearest.h"
#include "state/sim.h"

namespace {

constexpr int kAuto = 1, kManual = 2, kProcedure = 3;

bool IsWhole(std::string_view text) {
    return text.find_first_not_of("0123456789") == std::string_view::npos;
}

// Hundredths of a MHz of "113.3", "113", "11330"; nothing for what is no frequency of the band.
std::optional<int> TypedFrequency(std::string_view text, int highest) {
    constexpr std::size_t kWholeDigits = 3, kFractionDigits = 2;
    constexpr int kLowest = 108;
    std::string whole(text.substr(0, kWholeDigits));
    std::string_view rest = text.substr(whole.size());
    if (rest.starts_with('.')) rest.remove_prefix(1);
    std::string fraction(rest);
    if (whole.empty() || !IsWhole(whole) || !IsWhole(fraction) || fraction.size() > kFractionDigits)
        return {};
    whole.resize(kWholeDigits, '0');
    fraction.resize(kFractionDigits, '0');
    if (LeadingInt(whole) < kLowest || LeadingInt(whole) > highest) return {};
    return LeadingInt(whole) * 100 + LeadingInt(fraction);
}

// Below 112 MHz an odd first decimal is a localizer's.
bool IsLocalizer(int frequency) {
    return frequency < 11200 && frequency / 10 % 2 == 1;
}

struct VorRadio {
    int NearestState::*mode;
    int NearestState::*frequency;
    TunedVor NearestState::*tuned;
};
constexpr VorRadio kLeftVor = {&NearestState::VorLeftMode, &NearestState::VorLeftFreq,
                               &NearestState::vor_left};
constexpr VorRadio kRightVor = {&NearestState::VorRightMode, &NearestState::VorRightFreq,
                                &NearestState::vor_right};

// NAV 1 is the receiver behind the left pointer: it follows as long as it has no approach to receive.
void SendLeftVor(int frequency) {
    SendKeyEvent(kKeyNav2FreqSet, EncodeBcd(frequency));
    if (nav.autotuned == 0 && nav.ilsfreq == 0) SendKeyEvent(kKeyNav1FreqSet, EncodeBcd(frequency));
}

void OnVor(PageCall& call, const VorRadio& radio) {
    if (IsDelete(call)) {
        nearest.*radio.frequency = 0;
        nearest.*radio.mode = kAuto;
        call.unit.ScratchMessage.clear();
        return AutoTuneRadios();
    }
    if (Entry(call).empty()) return;
    constexpr int kHighest = 117;
    const auto frequency = TypedFrequency(Entry(call), kHighest);
    if (!frequency || IsLocalizer(*frequency)) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    nearest.*radio.frequency = *frequency;
    nearest.*radio.mode = kManual;
    if (radio.mode == kLeftVor.mode) SendLeftVor(*frequency);
    ClearEntry(call);
}

void OnCourse(PageCall& call, int event) {
    if (Entry(call).empty() || nearest.VorLeftMode != kManual) return;
    const auto course = TypedNumber(Entry(call), 0, 360);
    if (!course) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    SendKeyEvent(event, WholeNumber(*course));
    ClearEntry(call);
}

// The host takes eight digits, the first of them the thousands of kHz.
void OnAdf(PageCall& call, int event) {
    const std::string_view text = Entry(call);
    if (text.empty()) return;
    constexpr int kLowest = 190, kHighest = 1799;
    const std::size_t point = text.find('.');
    const std::string_view whole = text.substr(0, point);
    const std::string_view tenth = point == std::string_view::npos ? "0" : text.substr(point + 1);
    const bool is_number = IsWhole(whole) && IsWhole(tenth) && tenth.size() == 1;
    if (!is_number || whole.size() < 3 || whole.size() > 4 || LeadingInt(whole) < kLowest ||
        LeadingInt(whole) > kHighest)
        return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    const int digits = LeadingInt(whole) * 10 + LeadingInt(tenth);
    SendKeyEvent(event, EncodeBcd(digits * (whole.size() == 3 ? 10000 : 1000)));
    ClearEntry(call);
}

// "110.3/163", "110.3" or "/163".
void OnIls(PageCall& call) {
    if (IsDelete(call)) {
        nav.ilsfreq = nav.IlsCourse = 0;
        return call.unit.ScratchMessage.clear();
    }
    const std::string_view text = Entry(call);
    if (text.empty()) return;
    const auto parts = SplitAtSlash(text);
    const std::string_view frequency_text = parts ? parts->first : text;
    const auto course = TypedNumber(parts ? parts->second : "", 0, 360);
    const bool is_number = frequency_text.find_first_not_of("0123456789.") == std::string_view::npos;
    if (!is_number || (parts && !course)) return Refuse(call, "INVALID ENTRY", kHelpIls);
    if (!frequency_text.empty()) {
        constexpr int kHighest = 111;
        const auto frequency = TypedFrequency(frequency_text, kHighest);
        if (!frequency || !IsLocalizer(*frequency)) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
        nav.ilsfreq = *frequency;
        SendKeyEvent(kKeyNav1FreqSet, EncodeBcd(*frequency));
    }
    if (course) nav.IlsCourse = WholeNumber(*course);
    ClearEntry(call);
}

void OnLine(PageCall& call) {
    switch (call.line) {
        case kL1:
            return OnVor(call, kLeftVor);
        case kR1:
            return OnVor(call, kRightVor);
        case kL2:
            return OnCourse(call, kKeyNav1CourseSet);
        case kR2:
            return OnCourse(call, kKeyNav2CourseSet);
        case kL3:
            return OnAdf(call, kKeyAdf1FreqSet);
        case kR3:
            return OnAdf(call, kKeyAdf2FreqSet);
        case kL4:
            return OnIls(call);
        default:
            return;
    }
}

// What the receiver on that frequency hears.
std::string_view IdentOn(int frequency) {
    if (WholeNumber(sim.nav1_freq) == frequency) return sim.nav1_ident;
    if (WholeNumber(sim.nav2_freq) == frequency) return sim.nav2_ident;
    return "";
}

std::string VorText(const VorRadio& radio) {
    const int mode = nearest.*radio.mode;
    const TunedVor& tuned = nearest.*radio.tuned;
    const bool by_hand = mode == kManual;
    if (!by_hand && tuned.freq.empty()) return "-----";
    const double megahertz = by_hand ? nearest.*radio.frequency / 100.0 : LeadingDouble(tuned.freq);
    const std::string ident(by_hand ? IdentOn(nearest.*radio.frequency) : tuned.ident);
    return Format("%3.2f%s %s", megahertz, by_hand ? "M" : mode == kProcedure ? "P" : "A", ident.c_str());
}

std::string CourseText(int mode, double course) {
    return mode == kManual ? Format("%03.0f", course) : "---";
}

std::string AdfText(const std::string& ident, double kilohertz) {
    return kilohertz > 0 ? Format("%s%04.1f", ident.c_str(), kilohertz) : "-----";
}

std::string IlsText() {
    return nav.ilsfreq < 1 ? "PARK" : Format("%3.2f/%03d", nav.ilsfreq / 100.0, nav.IlsCourse);
}

}  // namespace

void NavRadioPage(PageCall& call) {
    OnLine(call);
    Title(call, 110, "NAV RADIO");
    LeftLabel(call, 1, "VOR L");
    LeftData(call, 1, VorText(kLeftVor));
    RightLabel(call, 1, "VOR R");
    RightData(call, 1, VorText(kRightVor));
    LeftLabel(call, 2, "CRS");
    LeftData(call, 2, CourseText(nearest.VorLeftMode, sim.nav1_course));
    PageText(call, 130, LabelY(2), "RADIAL", kCyan, kLabelSize);
    if (sim.nav2_signal > 0)
        PageText(call, 136, DataY(2), Format("%03.0f", FoldCourse(sim.nav2_radial + 180)));
    RightLabel(call, 2, "CRS");
    RightData(call, 2, CourseText(nearest.VorRightMode, sim.nav2_course));
    LeftLabel(call, 3, "ADF L");
    LeftData(call, 3, AdfText(sim.adf1_ident, sim.adf1_freq));
    RightLabel(call, 3, "ADF R");
    const std::string right_adf = AdfText(sim.adf2_ident.empty() ? "" : sim.adf2_ident + " ", sim.adf2_freq);
    RightData(call, 3, Format("%10s", right_adf.c_str()));
    LeftLabel(call, 4, "ILS-GLS");
    LeftData(call, 4, IlsText());
    RightLabel(call, 4, "PRESELECT");
    RightData(call, 4, Entry(call).empty() ? "-----  -----" : Entry(call));
    DashLine(call);
    for (const int line : {kL1, kR1, kL2, kR2, kL3, kR3, kL4}) MarkSelectable(call, line);
}
