#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/flight.h"
#include "host/recorder.h"
#include "module/linkage.h"

// One run of the stand-in simulator: the module loaded, its gauges on their panels, the aircraft and the
// clock.

namespace host {

/// What is settled before the module loads. Everything has a default that works.
struct SessionSettings {
    std::string module_file;  // empty = tz900.gau beside the program
    std::string root;         // empty = a private copy of the demonstration root, removed at the end
    std::string demo_root;    // where the demonstration root lies
    std::string navdata;      // empty = the one under the root
    std::string title;        // empty = the first aircraft under the root
    std::vector<std::string> cfg_lines;  // of tz900.cfg, read behind those of the file, which stays as it is
    int machine_date = 20261201;         // YYYYMMDD
    bool placed = false;
    Placement placement = {};     // with `placed`, else the demonstration's stand
    bool fdm = false;             // the aircraft moves by itself and AutoflightLogic runs
    bool terrain_chosen = false;  // else it is a surface through the airports
    bool pixel_surfaces = false;  // the screens that a remote peer may show have pixels to be painted on
};

/// A surface of a panel: the element that the module knows, and its pixels where it has any.
struct PanelSurface {
    GaugeElement element = {};
    std::vector<std::uint32_t> pixels;
};

struct PanelGauge {
    GaugeInstance instance;
    bool in_2d_panel;        // called only while the main panel window is visible
    bool connected = false;  // has been brought up
};

struct Session {
    SessionSettings settings;
    void* library = nullptr;
    const ModuleLinkage* linkage = nullptr;
    std::vector<PanelGauge> gauges;
    std::vector<std::unique_ptr<PanelSurface>> surfaces;
    bool private_root = false;
    bool hires_panel = false;
    Recorder* recorder = nullptr;  // takes down what pilots and host do; null = nobody asks
};

/// Makes the root ready and fills the world: before it, tokens, variables and expressions may be set by hand.
/// False with the reason in `error`.
bool PrepareSession(Session& session, std::string& error);

/// Loads the module and brings it up in the simulator's order, first update included.
bool StartSession(Session& session, std::string& error);

/// A file of the navigation data in use.
std::string NavdataFile(const SessionSettings& settings, const std::string& name);
/// Its apts.txt.
std::string AirportsFile(const SessionSettings& settings);

/// One pre-update call of each gauge; the 18 Hz counter moves by one, or stands still in a paused frame.
void TickSession(Session& session, bool paused_frame);

/// The two-dimensional cockpit is shown.
bool IsMainPanelShown();
/// The gauge's panel is shown, so that the simulator calls it.
bool IsOnPanel(const PanelGauge& gauge);

/// One service call of every gauge that is on a panel now.
void CallGauges(Session& session, int service);

/// Presses a mouse area of a gauge by its name. False when there is no such gauge or area.
bool PressMouseArea(Session& session, const std::string& gauge, const std::string& area, bool right = false);

/// Presses what lies at a place of a gauge, in its logical frame. False when nothing does.
bool PressMouse(Session& session, const std::string& gauge, double x, double y, bool right);

/// Moves the pressed mouse on to a place of a gauge. False when nothing lies there.
bool DragMouse(Session& session, const std::string& gauge, double x, double y);

/// Takes the module down in the simulator's order and removes a private root.
void StopSession(Session& session);

}  // namespace host
