#include "efb/pages/performance_words.h"

#include <cmath>

#include "base/text.h"
#include "efb/pages/pages.h"
#include "efb/performance/calculate.h"
#include "efb/words/keyboard.h"
#include "state/cfg.h"
#include "state/efb.h"

namespace {

constexpr double kLbPerKg = 2.20462;

bool InKilograms() {
    return cfg.WeightUnit == "KGS";
}

void HideKeyboard(int, int) {
    efb.EfbKeyboardShown = 0;
}

void OpenSearch(int, int) {
    efb.EfbPrevPage = efb.EfbPage;
    efb.EfbSearchIdent.clear();
    efb.EfbSearchPage = 1;
    OpenTabletPage(kTabletAirportSearch);
    efb.EfbEditField = 1;  // what is typed is an ident
}

void OpenSend(int, int) {
    efb.EfbPrevPage = efb.EfbPage;
    efb.EfbSendTo = 0;
    OpenTabletPage(kTabletSend);
}

constexpr TabletBox LeftKey(int row) {
    constexpr int kTop = 28, kPitch = 34;
    return {2, kTop + row * kPitch, 48, 31};
}

}  // namespace

void AddListField(TabletFace& face, std::string_view label, TabletList list) {
    face.Choice(ChosenBox(RowOfList(list)), label, ValueOfList(list), ToggleList, list);
}

void AddAirportField(TabletFace& face, std::string_view airport) {
    face.Choice(TypedBox(24), "ARPT", airport, OpenSearch);
}

void AddPerformanceKeys(TabletFace& face, const PerformanceKeys& keys) {
    constexpr int kFootY = 262, kFootHeight = 27;
    face.GreyButton(LeftKey(0), "ARPT\nINFO");
    face.GreyButton(LeftKey(1), "ADD\nARPT");
    face.GreyButton(LeftKey(2), "NOTAMS");
    face.Button(LeftKey(3), "COPY\nFMC DATA", keys.copy);
    face.Button(LeftKey(4), "SHOW\nFULL", HideKeyboard);
    AddKeyboardToggle(face);
    face.Button(LeftKey(6), "WT AND\nBALANCE", OpenPageOfNumber, kTabletDispatch);
    face.Button({2, kFootY + 3, 48, kFootHeight}, keys.swap_text, OpenPageOfNumber, keys.swap_page);
    face.Button({56, kFootY, 74, kFootHeight}, "ARPT SEARCH", OpenSearch);
    face.Button({176, kFootY, 74, kFootHeight}, "CALC", keys.calculate);
    if (keys.calculated)
        face.Button({262, kFootY, 74, kFootHeight}, "SEND\nOUTPUT", OpenSend);
    else
        face.GreyButton({262, kFootY, 74, kFootHeight}, "SEND\nOUTPUT");
}

double TypedWeight(std::string_view text) {
    double weight = LeadingDouble(text);
    if (weight > 100 && weight < 1000) weight *= 1000;
    return InKilograms() ? weight * kLbPerKg : weight;
}

double ShownWeight(double pounds) {
    return InKilograms() ? pounds / kLbPerKg : pounds;
}

std::string WeightUnitText() {
    return InKilograms() ? "KG" : "LB";
}

std::string WeightText(double pounds) {
    if (pounds == 0) return {};
    return Format("%.0f ", ShownWeight(pounds)) + WeightUnitText();
}

void ReadWind(std::string_view text, double& direction, double& speed) {
    const std::size_t slash = text.find('/');
    direction = LeadingDouble(text.substr(0, slash));
    speed = slash == std::string_view::npos ? 0 : LeadingDouble(text.substr(slash + 1));
}

std::string WindText(double direction, double speed) {
    return Format("%03.0f/%.0f KT", direction, speed);
}

std::string WindPartsText(double direction, double speed, double heading) {
    const RunwayWind wind = WindOnRunway(direction, speed, heading);
    return Format("%.0f %s   %.0f XW", std::fabs(wind.head), wind.head < 0 ? "TW" : "HW",
                  std::fabs(wind.cross));
}

std::string TemperatureText(double celsius) {
    return Format("%.0f C   %.0f F", celsius, celsius * 9 / 5 + 32);
}
