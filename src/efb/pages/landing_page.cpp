#include "efb/pages/landing_page.h"

#include "base/text.h"
#include "efb/pages/pages.h"
#include "efb/pages/performance_words.h"
#include "efb/performance/calculate.h"
#include "efb/performance/copy_fmc_data.h"
#include "state/tablet_performance.h"

namespace {

enum LandingField {
    kLandingWind = 1,
    kLandingOat = 2,
    kLandingQnh = 3,
    kLandingWeight = 4,
    kLandingVrefAdd = 5
};

void AddLandingInputs(TabletFace& face) {
    const TabletLanding& page = tablet_performance.landing;
    AddAirportField(face, page.EfbLandingAirport);
    face.Shown(TypedBox(48), "MEL", "NONE");
    face.Shown(TypedBox(72), "CDL", "NONE");
    face.Field(TypedBox(96), "WIND", WindText(page.EfbLandingWindDir, page.EfbLandingWindSpeed),
               kLandingWind);
    face.Text(96, 117,
              WindPartsText(page.EfbLandingWindDir, page.EfbLandingWindSpeed, page.EfbLandingHeading));
    face.Field(TypedBox(132), "OAT", TemperatureText(page.EfbLandingOat), kLandingOat);
    face.Field(TypedBox(156), "QNH", page.EfbLandingQnh == 0 ? "" : Format("%.0f", page.EfbLandingQnh),
               kLandingQnh);
    AddListField(face, "RWY", kListLandingRunways);
    AddListField(face, "CAT", kListCategory);
    AddListField(face, "FLAP", kListLandingFlaps);
    AddListField(face, "COND", kListLandingCondition);
    AddListField(face, "A/I", kListAntiIce);
    AddListField(face, "REV", kListReverser);
    AddListField(face, "SPOIL", kListSpoiler);
    AddListField(face, "BRKS", kListBrakes);
    face.Field({132, 218, 92, kFieldHeight}, "Landing Weight:", WeightText(page.EfbLandingWeight),
               kLandingWeight, 76);
    face.Field({291, 218, 45, kFieldHeight}, "VREF ADD", Format("%.0f", page.EfbVrefAdd), kLandingVrefAdd,
               56);
    if (!page.EfbLandingRunway.empty())
        face.Text(
            56, 243,
            Format("RWY LENGTH %.0f FT   ELEV %.0f FT", page.EfbLandingLength, page.EfbLandingElevation),
            kTabletLabel, 9);
}

void AddLandingResults(TabletFace& face) {
    const TabletLanding& page = tablet_performance.landing;
    face.Text(
        8, 298,
        Format("Enroute Landing Data for %.0f ", ShownWeight(page.EfbLandingWeight)) + WeightUnitText());
    face.Text(8, 316, Format("Vref%s+%d:", page.EfbLandingFlaps.c_str(), static_cast<int>(page.EfbVrefAdd)),
              kTabletLabel);
    face.Text(100, 314, Format("%.0f KT", page.EfbLandingVref + page.EfbVrefAdd), kTabletInk, 13);
    face.Text(8, 338, "Operational Landing Distance:", kTabletLabel);
    double y = 354;
    for (int brakes = 0; brakes < kBrakeSettings; ++brakes) {
        const char* name = kBrakeNames[brakes];
        if (page.EfbBrakes != "ALL" && page.EfbBrakes != name) continue;
        const double feet = page.EfbLandingDistance[static_cast<std::size_t>(brakes)];
        const bool too_long = feet > page.EfbLandingLength;
        face.Text(20, y, name, kTabletLabel);
        face.Text(120, y, Format("%.0f FT", feet), too_long ? kAmber : Rgb{255, 255, 255});
        y += 15;
    }
}

}  // namespace

void LandingPage(TabletFace& face) {
    const bool done = tablet_performance.landing.EfbLandingDone == 1;
    face.Title("PERFORMANCE - LANDING");
    AddLandingInputs(face);
    AddPerformanceKeys(
        face, {"SHOW\nTAKEOFF", kTabletTakeoff, CopyFmcData, [](int, int) { CalculateLanding(); }, done});
    if (done) AddLandingResults(face);
}

void CommitLandingField(int field, std::string_view text) {
    TabletLanding& page = tablet_performance.landing;
    switch (field) {
        case kLandingWind:
            ReadWind(text, page.EfbLandingWindDir, page.EfbLandingWindSpeed);
            break;
        case kLandingOat:
            page.EfbLandingOat = LeadingDouble(text);
            break;
        case kLandingQnh:
            page.EfbLandingQnh = LeadingDouble(text);
            break;
        case kLandingWeight:
            page.EfbLandingWeight = TypedWeight(text);
            break;
        case kLandingVrefAdd:
            page.EfbVrefAdd = LeadingDouble(text);
            break;
        default:
            return;
    }
    page.EfbLandingDone = 0;
}
