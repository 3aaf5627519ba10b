#include "host/screens.h"

#include <fstream>

#include "host/world/world.h"

namespace host {
namespace {

struct Screen {
    std::string_view name;
    const char* gauge;
    const char* gauge_2d;  // in the two-dimensional cockpit
    const char* mouse;     // the gauge that takes its mouse presses, null = none does
};

constexpr Screen kScreens[] = {
    {"capt_outb", "DU_CAPT_OUTB_VC", "DU_CAPT_OUTB_2D", "DU_CAPT_OUTB_MC"},
    {"capt_inb", "DU_CAPT_INB_VC", "DU_CAPT_INB_2D", "DU_CAPT_INB_MC"},
    {"fo_inb", "DU_FO_INB_VC", "DU_FO_INB_PW", "DU_FO_INB_MC"},
    {"fo_outb", "DU_FO_OUTB_VC", "DU_FO_OUTB_PW", "DU_FO_OUTB_PW"},
    {"lower", "DU_LOWER_VC", "DU_LOWER_PW", "DU_LOWER_MC"},
    {"hud", "HUD", "HUD", nullptr},
    {"stby", "STBY_PFD", "STBY_PFD", nullptr},
    {"efb_l", "CAPT_EFB", "CAPT_EFB", "CAPT_EFB_MC"},
    {"efb_r", "FO_EFB", "FO_EFB", "FO_EFB_MC"},
    {"debug", "DEBUG", "DEBUG", nullptr},
};

}  // namespace

std::string GaugeOfScreen(std::string_view screen) {
    return GaugeOfScreen(screen, IsMainPanelShown());
}

std::string GaugeOfScreen(std::string_view screen, bool in_2d) {
    for (const Screen& row : kScreens)
        if (row.name == screen) return in_2d ? row.gauge_2d : row.gauge;
    return {};
}

void PaintGauges(Session& session) {
    for (PanelGauge& gauge : session.gauges) {
        if (gauge.instance.elements == nullptr || !IsOnPanel(gauge)) continue;
        gauge.instance.gauge->service(&gauge.instance, kServicePreDraw);
        session.linkage->inspection->paint_pending(&gauge.instance);
    }
}

void RequestPictures(Session& session) {
    for (PanelGauge& gauge : session.gauges)
        if (gauge.instance.elements != nullptr && IsOnPanel(gauge))
            gauge.instance.gauge->service(&gauge.instance, kServicePreDraw);
}

std::string MouseGaugeOfScreen(std::string_view screen) {
    for (const Screen& row : kScreens)
        if (row.name == screen && row.mouse != nullptr) return row.mouse;
    return {};
}

bool WritePictureFile(const Session& session, const std::string& screen, const std::string& file,
                      double scale) {
    std::string png;
    const ByteSink sink = [](void* context, const uint8_t* bytes, size_t size, uint64_t) {
        static_cast<std::string*>(context)->assign(reinterpret_cast<const char*>(bytes), size);
    };
    if (session.linkage->inspection->picture_png(GaugeOfScreen(screen).c_str(), scale, sink, &png) == 0)
        return false;
    std::ofstream out(file, std::ios::binary);
    out << png;
    return static_cast<bool>(out);
}

}  // namespace host
