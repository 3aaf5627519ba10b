#include "host/screens.h"

#include <fstream>

#include "host/world/world.h"

namespace host {
namespace {

struct Screen {
    std::string_view name;
    const char* gauge;
    const char* gauge_2d;  // in the two-dimensional cockpit
};

constexpr Screen kScreens[] = {
    {"capt_outb", "DU_CAPT_OUTB_VC", "DU_CAPT_OUTB_2D"},
    {"capt_inb", "DU_CAPT_INB_VC", "DU_CAPT_INB_2D"},
    {"fo_inb", "DU_FO_INB_VC", "DU_FO_INB_PW"},
    {"fo_outb", "DU_FO_OUTB_VC", "DU_FO_OUTB_PW"},
    {"lower", "DU_LOWER_VC", "DU_LOWER_PW"},
    {"hud", "HUD", "HUD"},
    {"stby", "STBY_PFD", "STBY_PFD"},
    {"efb_l", "CAPT_EFB", "CAPT_EFB"},
    {"efb_r", "FO_EFB", "FO_EFB"},
    {"debug", "DEBUG", "DEBUG"},
};

}  // namespace

std::string GaugeOfScreen(std::string_view screen) {
    for (const Screen& row : kScreens)
        if (row.name == screen) return IsMainPanelShown() ? row.gauge_2d : row.gauge;
    return {};
}

void PaintGauges(Session& session) {
    for (PanelGauge& gauge : session.gauges) {
        if (gauge.instance.elements == nullptr || !IsOnPanel(gauge)) continue;
        gauge.instance.gauge->service(&gauge.instance, kServicePreDraw);
        session.linkage->inspection->paint_pending(&gauge.instance);
    }
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
