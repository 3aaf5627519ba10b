#include "host/session.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string_view>

#include "host/inspection.h"
#include "host/module_library.h"
#include "host/root_folder.h"
#include "host/world/receivers.h"
#include "host/world/terrain.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr int kMainPanelWindow = 0;

constexpr int kPaintedVersion = 1000;

struct PixelSize {
    std::string_view gauge;
    int width, height;  // twice as much on a panel of high resolution
};
constexpr PixelSize kPixelSizes[] = {{"DU_LOWER_VC", 500, 331}, {"CAPT_EFB", 245, 435}};

void GivePixels(PanelSurface& surface, std::string_view gauge, bool hires) {
    for (const PixelSize& row : kPixelSizes) {
        if (row.gauge != gauge) continue;
        GaugeElement& element = surface.element;
        element.width = hires ? 2 * row.width : row.width;
        element.height = hires ? 2 * row.height : row.height;
        surface.pixels.resize(static_cast<std::size_t>(element.width * element.height));
        element.pixels = reinterpret_cast<uint8_t*>(surface.pixels.data());
        element.byte_size = element.width * element.height * 4;
    }
}

// A gauge stands in the virtual cockpit unless its name says that it is of the two-dimensional panel or one
// of its pop-up windows; SERVER stands in both.
void PlaceGauges(Session& session) {
    session.gauges.clear();
    session.surfaces.clear();
    for (int i = 0; i < session.linkage->gauge_count; ++i) {
        const GaugeHeader& gauge = session.linkage->gauges[i];
        const std::string name = gauge.name;
        if (name == "SERVER") session.gauges.push_back({{&gauge, "", nullptr}, true});
        const bool in_2d_panel = name.ends_with("_2D") || name.ends_with("_PW");
        PanelGauge placed{{&gauge, name == "SERVER" ? "VC" : "", nullptr}, in_2d_panel};
        if (gauge.version == kPaintedVersion) {
            // The surface is the module's own list of primitives: that there is one is all that it asks,
            // but for what a peer shows.
            auto surface = std::make_unique<PanelSurface>();
            surface->element.device_context = surface.get();
            if (session.settings.pixel_surfaces) GivePixels(*surface, name, session.hires_panel);
            placed.instance.elements = &surface->element;
            session.surfaces.push_back(std::move(surface));
        }
        session.gauges.push_back(placed);
    }
}

void Call(PanelGauge& gauge, int service) {
    if (gauge.instance.gauge->service != nullptr) gauge.instance.gauge->service(&gauge.instance, service);
}

// A panel that is shown for the first time brings its gauges up then, each service for all of them in turn.
void ConnectGauges(Session& session) {
    std::vector<PanelGauge*> fresh;
    for (PanelGauge& gauge : session.gauges)
        if (!gauge.connected && IsOnPanel(gauge)) fresh.push_back(&gauge);
    for (const int service : {kServiceConnectToWindow, kServicePreInstall, kServicePostInstall,
                              kServicePreInitialize, kServicePostInitialize})
        for (PanelGauge* gauge : fresh) Call(*gauge, service);
    for (PanelGauge* gauge : fresh) gauge->connected = true;
}

// The files of the private copy are as old as the run, by the simulator's clock: what a file's age brings
// about is the same on every day.
void DateFiles(const std::string& root) {
    const auto now =
        std::chrono::file_clock::from_sys(std::chrono::sys_seconds(std::chrono::seconds(UtcSeconds())));
    std::error_code failed;
    for (std::filesystem::recursive_directory_iterator file(root, failed), end; !failed && file != end;
         file.increment(failed)) {
        std::error_code ignored;
        if (file->is_regular_file(ignored)) std::filesystem::last_write_time(file->path(), now, ignored);
    }
}

struct FoundArea {
    PanelGauge* panel = nullptr;
    const MouseRectangle* area = nullptr;
};

// The first mouse area of a gauge that is wanted; none = nulls.
template <class IsWanted>
FoundArea FindArea(Session& session, const std::string& gauge, IsWanted&& is_wanted) {
    for (PanelGauge& panel : session.gauges) {
        const GaugeHeader& header = *panel.instance.gauge;
        if (gauge != header.name) continue;
        for (int i = 0; i < header.mouse_count; ++i)
            if (is_wanted(header.mouse[i])) return {&panel, &header.mouse[i]};
    }
    return {};
}

// Hands a press at a point of the gauge's frame to an area.
void Press(PanelGauge& panel, const MouseRectangle& area, int x, int y, uint32_t flags) {
    panel.instance.mouse_x = x;
    panel.instance.mouse_y = y;
    area.callback(&panel.instance, flags);
}

uint32_t FlagsOf(bool right) {
    return right ? kMouseRightSingle : kMouseLeftSingle;
}

}  // namespace

bool IsMainPanelShown() {
    return world.windows[kMainPanelWindow];
}

bool IsOnPanel(const PanelGauge& gauge) {
    return !gauge.in_2d_panel || IsMainPanelShown();
}

void CallGauges(Session& session, int service) {
    for (PanelGauge& gauge : session.gauges)
        if (gauge.connected && IsOnPanel(gauge)) Call(gauge, service);
}

bool PrepareSession(Session& session, std::string& error) {
    SessionSettings& settings = session.settings;
    world.machine_date = settings.machine_date;
    if (settings.root.empty()) {
        if (!MakePrivateRoot(settings.demo_root, settings.root, error)) return false;
        session.private_root = true;
        DateFiles(settings.root);
    }
    const std::filesystem::path velarion = FindInFolder(settings.root, "Velarion");
    if (velarion.empty()) {
        error = settings.root + " holds no Velarion folder";
        return false;
    }
    std::error_code failed;
    if (!settings.navdata.empty() && !std::filesystem::is_directory(settings.navdata, failed)) {
        error = settings.navdata + " is no folder";
        return false;
    }
    const std::vector<AirframeTitle> titles = AirframeTitles(settings.root);
    const auto found = std::find_if(titles.begin(), titles.end(), [&](const AirframeTitle& airframe) {
        return settings.title.empty() || airframe.title == settings.title;
    });
    if (found == titles.end() && !settings.title.empty()) {
        error = "no Aircraft.cfg under the root has the title \"" + settings.title + "\"";
        if (!titles.empty()) error += "; there are:";
        for (const AirframeTitle& airframe : titles) error += "\n  " + airframe.title;
        return false;
    }
    world.root = settings.root;
    world.app_data = settings.root;
    world.navdata = settings.navdata;
    world.config_lines.clear();
    for (const std::string& line : settings.cfg_lines) world.config_lines += line + '\n';
    if (!settings.terrain_chosen) UseModelTerrain(AirportsFile(settings));
    LoadNavStations(AirportsFile(settings), NavdataFile(settings, "navs.txt"));
    if (found != titles.end()) {
        SetCalcText("(A:TITLE,string)", found->title);
        SetCalcText("(A:ATC ID,string)", found->atc_id);
        session.hires_panel = found->hires_panel;
        flight.airframe = AirframeOf(found->sim, found->model);
    }
    return true;
}

std::string AirportsFile(const SessionSettings& settings) {
    return NavdataFile(settings, "apts.txt");
}

std::string NavdataFile(const SessionSettings& settings, const std::string& name) {
    const std::filesystem::path navdata = settings.navdata.empty()
                                              ? FindNavdata(FindInFolder(settings.root, "Velarion"))
                                              : std::filesystem::path(settings.navdata);
    return FindInFolder(navdata, name).string();
}

bool StartSession(Session& session, std::string& error) {
    const std::string file =
        session.settings.module_file.empty() ? ModuleBesideProgram() : session.settings.module_file;
    session.linkage = LoadModule(file, session.library, error);
    if (session.linkage == nullptr) return false;
    for (const auto& [name, nothing] : Ask(session.linkage->inspection->list_model_variables).results)
        CreateModelVariable(name);
    FillClockTokens();
    PlaceAircraft(session.settings.placed ? session.settings.placement : DemonstrationStand());
    session.linkage->module_init();
    PlaceGauges(session);
    ConnectGauges(session);
    CallGauges(session, kServicePreUpdate);
    return true;
}

void TickSession(Session& session, bool paused_frame) {
    RecordCall(session.recorder, paused_frame);
    DispatchQueuedCalls();
    if (!paused_frame) {
        AdvanceClock();
        StepFlight(session.settings.fdm);
    }
    ConnectGauges(session);
    CallGauges(session, kServicePreUpdate);
}

bool PressMouseArea(Session& session, const std::string& gauge, const std::string& name, bool right) {
    const auto [panel, area] =
        FindArea(session, gauge, [&](const MouseRectangle& candidate) { return name == candidate.name; });
    if (area == nullptr) return false;
    Press(*panel, *area, area->x + area->width / 2, area->y + area->height / 2, FlagsOf(right));
    return true;
}

namespace {
bool MouseAt(Session& session, const std::string& gauge, double x, double y, uint32_t flags) {
    const auto [panel, area] = FindArea(session, gauge, [&](const MouseRectangle& candidate) {
        return x >= candidate.x && x < candidate.x + candidate.width && y >= candidate.y &&
               y < candidate.y + candidate.height;
    });
    if (area == nullptr) return false;
    Press(*panel, *area, static_cast<int>(x), static_cast<int>(y), flags);
    return true;
}
}  // namespace

bool PressMouse(Session& session, const std::string& gauge, double x, double y, bool right) {
    return MouseAt(session, gauge, x, y, FlagsOf(right));
}

bool DragMouse(Session& session, const std::string& gauge, double x, double y) {
    return MouseAt(session, gauge, x, y, kMouseLeftDrag);
}

void StopSession(Session& session) {
    if (session.linkage != nullptr) {
        for (const int service : {kServicePreKill, kServiceDisconnect})
            for (PanelGauge& gauge : session.gauges)
                if (gauge.connected) Call(gauge, service);
        session.linkage->module_deinit();
        session.linkage = nullptr;
        UnloadModule(session.library);
        session.library = nullptr;
    }
    if (session.private_root) {
        std::error_code ignored;
        std::filesystem::remove_all(session.settings.root, ignored);
        session.private_root = false;
    }
}

}  // namespace host
