#include "efb/pages/takeoff_page.h"

#include "base/text.h"
#include "efb/pages/pages.h"
#include "efb/pages/performance_words.h"
#include "efb/performance/calculate.h"
#include "efb/performance/copy_fmc_data.h"
#include "state/cfg.h"
#include "state/engines.h"
#include "state/identity.h"
#include "state/tablet_performance.h"

namespace {

enum TakeoffField {
    kTakeoffWind = 1,
    kTakeoffOat = 2,
    kTakeoffQnh = 3,
    kTakeoffWeight = 4,
    kTakeoffIntersection = 5,
    kTakeoffCg = 7
};

std::string IntersectionText() {
    const std::string& intersection = tablet_performance.takeoff.EfbIntersection;
    return intersection.empty() ? "NO INTX" : intersection;
}

void AddTakeoffInputs(TabletFace& face) {
    const TabletTakeoff& page = tablet_performance.takeoff;
    AddAirportField(face, page.EfbTakeoffAirport);
    face.Field(TypedBox(48), "INTX", IntersectionText(), kTakeoffIntersection);
    face.Shown(TypedBox(72), "V1/VR", page.EfbV1VrMode);
    face.Field(TypedBox(96), "WIND", WindText(page.EfbWindDir, page.EfbWindSpeed), kTakeoffWind);
    face.Text(96, 117, WindPartsText(page.EfbWindDir, page.EfbWindSpeed, page.EfbRunwayHeading));
    face.Field(TypedBox(132), "OAT", TemperatureText(page.EfbOat), kTakeoffOat);
    AddListField(face, "RWY", kListTakeoffRunways);
    AddListField(face, "RTG", kListThrust);
    AddListField(face, "FLAP", kListTakeoffFlaps);
    AddListField(face, "COND", kListTakeoffCondition);
    face.Field(ChosenBox(132), "QNH", page.EfbQnh == 0 ? "" : Format("%.0f", page.EfbQnh), kTakeoffQnh);
    face.Field({132, 158, 92, kFieldHeight}, "Takeoff Weight:", WeightText(page.EfbTakeoffWeight),
               kTakeoffWeight, 76);
    face.Field({281, 158, 55, kFieldHeight}, "CG (%)", page.EfbCg == 0 ? "" : Format("%.0f", page.EfbCg),
               kTakeoffCg);
    if (!page.EfbTakeoffRunway.empty())
        face.Text(56, 186,
                  Format("RWY LENGTH %.0f FT   ELEV %.0f FT", page.EfbRunwayLength, page.EfbRunwayElevation),
                  kTabletLabel, 9);
}

// A line of a label and its value.
void AddResult(TabletFace& face, double x, double y, std::string_view label, std::string_view value) {
    face.Text(x, y, label, kTabletLabel, 9);
    face.Text(x + 64, y, value);
}

std::string RatingText() {
    constexpr const char* kNames[] = {"TO", "TO1", "TO2"};
    return kNames[TakeoffReduction()];
}

void AddTakeoffResults(TabletFace& face) {
    const TabletTakeoff& page = tablet_performance.takeoff;
    const auto speed = [&](double x, const char* label, double knots) {
        face.Text(x, 297, label, kTabletLabel, 9);
        face.Text(x, 308, Format("%.0f", knots), kTabletInk, 15);
    };
    speed(8, "V1", page.EfbV1);
    speed(92, "VR", page.EfbVR);
    speed(176, "V2", page.EfbV2);
    speed(260, "Vref30", page.EfbVref);
    constexpr double kLeft = 8, kRight = 176;
    const bool shows_ratio = identity.engine_model.starts_with("TRENT");
    const double thrust = engines.FADEC_Green_line;
    const int accel_ht = cfg.AccelHt + static_cast<int>(page.EfbRunwayElevation);
    AddResult(face, kLeft, 334, "ACCEL HT", Format("%d FT MSL", accel_ht));
    AddResult(face, kLeft, 350, "RWY / INTX", page.EfbTakeoffRunway + " / " + IntersectionText());
    AddResult(face, kLeft, 366, "TOGW", WeightText(page.EfbTakeoffWeight));
    AddResult(face, kLeft, 382, shows_ratio ? "%TPR" : "%N1", thrust > 0 ? Format("%.1f", thrust) : "--.-");
    AddResult(face, kRight, 334, "SEL TEMP",
              page.EfbSelTemp > 0 ? Format("%.0f C", page.EfbSelTemp) : "--- C");
    AddResult(face, kRight, 350, "MTOGW", WeightText(page.EfbMaxTakeoffWeight));
    AddResult(face, kRight, 366, "THRUST", RatingText());
    AddResult(face, kRight, 382, "FLAP", Format("%d", page.EfbFlapsUsed));
    face.Text(8, 408, "STD: Please read runway comment for departure", kTabletLabel);
    face.Text(8, 421, "procedure text", kTabletLabel);
}

}  // namespace

void TakeoffPage(TabletFace& face) {
    const bool done = tablet_performance.takeoff.EfbTakeoffDone == 1;
    face.Title("PERFORMANCE - TAKEOFF");
    AddTakeoffInputs(face);
    AddPerformanceKeys(
        face, {"SHOW\nLANDING", kTabletLanding, CopyFmcData, [](int, int) { CalculateTakeoff(); }, done});
    if (done) AddTakeoffResults(face);
}

void CommitTakeoffField(int field, std::string_view text) {
    TabletTakeoff& page = tablet_performance.takeoff;
    switch (field) {
        case kTakeoffWind:
            ReadWind(text, page.EfbWindDir, page.EfbWindSpeed);
            break;
        case kTakeoffOat:
            page.EfbOat = LeadingDouble(text);
            break;
        case kTakeoffQnh:
            page.EfbQnh = LeadingDouble(text);
            break;
        case kTakeoffWeight:
            page.EfbTakeoffWeight = TypedWeight(text);
            break;
        case kTakeoffIntersection:
            page.EfbIntersection = text;
            break;
        case kTakeoffCg:
            page.EfbCg = LeadingDouble(text);
            break;
        default:
            return;
    }
    page.EfbTakeoffDone = 0;
}
