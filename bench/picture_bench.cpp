#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <string>
#include <vector>

#include "display/formats/pfd.h"
#include "display/nd/nd_picture.h"
#include "display/pictures/frame.h"
#include "display/pictures/gauge.h"
#include "display/routing/modes.h"
#include "display/routing/nd_controls.h"
#include "flying_session.h"
#include "host/flightdeck/picture_stream.h"
#include "host/screens.h"
#include "navdata/nav_tables.h"
#include "navdata/nearest.h"
#include "paint/colours.h"
#include "paint/painter.h"
#include "paint/rasterise.h"
#include "state/airports.h"
#include "state/autoflight.h"
#include "state/cockpit.h"
#include "state/displays.h"
#include "state/electrical.h"
#include "state/fix_info.h"
#include "state/instruments.h"
#include "state/irs.h"
#include "state/leg_words.h"
#include "state/nd.h"
#include "state/plan.h"
#include "state/side.h"
#include "state/sim.h"
#include "state/takeoff_approach.h"
#include "state/vnav.h"
#include "state/weights.h"
#include "support/fake_host.h"
#include "support/world_navdata.h"

// Pictures from composing to the wire.

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kWidth = 1128, kHeight = 848;
constexpr double kTicksPerSecond = 18;
constexpr const char* kNineScreens[] = {"capt_outb", "capt_inb", "fo_inb", "fo_outb", "lower",
                                        "hud",       "stby",     "efb_l",  "efb_r"};

double SecondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

// The slowest of all modes, on the lower unit, which can show most of them.
void ComposeSlowestMode(benchmark::State& state) {
    const FakeHost host;
    electrical.power_level = 1000;
    displays.du_lwr_startup_cnt = 60;
    const PaintedGauge& lower = *FindPaintedGauge("DU_LOWER_VC");
    DrawList list;
    const auto compose = [&](int mode) {
        displays.du_lower_mode = mode;
        ComposeFrame(lower, list);
    };
    int slowest = 0;
    double most = 0;
    for (int mode = 1; mode <= 200; ++mode) {
        if (!ContentsOf(mode)) continue;
        compose(mode);  // the first time loads fonts
        const auto start = Clock::now();
        for (int i = 0; i < 100; ++i) compose(mode);
        if (const double seconds = SecondsSince(start); seconds > most) {
            most = seconds;
            slowest = mode;
        }
    }
    for (auto _ : state) compose(slowest);
    state.counters["mode"] = slowest;
}
BENCHMARK(ComposeSlowestMode)->Name("ComposeDisplayUnit")->Unit(benchmark::kMicrosecond);

// The captain's ND with all its layers over the densest terminal area of the world's data, around New York,
// on a route of as many legs; the aircraft turns a little from picture to picture. The longest of a hundred
// stands beside the mean.
struct NdScene {
    FakeHost host;
    DrawList list;
    NdSide& side = NdOf(kCaptain);
    bool wide = false;
    void (*paint)(Graphics& graphics, const NdScene& scene) = [](Graphics& graphics, const NdScene& scene) {
        DrawNdPicture(graphics, kCaptain, 1, scene.wide);
    };

    bool Load(int legs, double range) {
        const bool world = UseWorldNavdata(host);
        LoadNavTables();
        sim.plane_lat = 40.7;
        sim.plane_lon = -74.0;
        sim.ground_speed_kt = 300;
        sim.radio_alt_ft = sim.ind_alt_ft = 9000;
        sim.wind_kt = 20;
        sim.bank_deg = 15;
        irs.irs_left = irs.irs_right = 1;
        vnav.tod = 1;
        for (int i = 0; i <= legs; ++i) {
            FlightPlanLeg& leg = plan.active.legs[i];
            leg.ident = "LEG" + std::to_string(i % 1000);
            leg.type = "INT";
            // Ten legs about the aircraft, with sharp turns; the others over the ocean.
            const bool near = i < 10;
            leg.lat = near ? 40.4 + i % 5 * 0.2 : 10 + i % 50;
            leg.lon = near ? -74.2 + i / 5 * 0.3 : -70 + i / 50 * 2;
            leg.alt = 9000;
            leg.alt_restr = 9000;
            leg.restr_code = kAltitudeRestr;
        }
        plan.active.leg_cnt = legs;
        plan.active.stpos = 1;
        plan.active.active_leg = {.from = "LEG0", .from_lat = 40.4, .from_lon = -74.2, .to = "LEG1"};
        plan.fms_fpln_active = kRouteActive;
        plan.HoldList[1].leg = 3;
        plan.hold_cnt = 1;
        fix_info.FixPages[1] = {"JFK", 40.63, -73.77, {{{}, {.dist = 10}, {.bearing = 90}, {}}}};
        side.rng_nm = range;
        side.nd_apt = side.nd_wpt = side.nd_sta = side.nd_pos = side.nd_data = side.nd_tfc = 1;
        side.nd_vor_l = side.nd_vor_r = side.nd_wxr_lamp = 1;
        sim.nav1_radial = sim.nav2_radial = 80;
        RefreshNearest();
        return world;
    }
    void Draw() {
        sim.mag_hdg = std::fmod(sim.mag_hdg + 0.1, 360);
        Graphics graphics = GdipCreateGraphics(list, 564, 424);
        paint(graphics, *this);
        GdipDeleteGraphics(graphics);
    }
};

void ComposeNd(benchmark::State& state, void (*prepare)(NdScene& scene), void (*step)(NdScene& scene)) {
    NdScene scene;
    const bool world = scene.Load(static_cast<int>(state.range(0)), static_cast<double>(state.range(1)));
    prepare(scene);
    for (int i = 0; i < 100; ++i) scene.Draw();  // fonts, and the list's growth
    std::vector<double> seconds;
    for (auto _ : state) {
        step(scene);
        const auto start = Clock::now();
        scene.Draw();
        seconds.push_back(SecondsSince(start));
        state.SetIterationTime(seconds.back());
    }
    std::ranges::sort(seconds);
    state.counters["p99_us"] = seconds[seconds.size() * 99 / 100] * 1e6;
    state.counters["primitives"] = static_cast<double>(scene.list.primitives.size());
    state.counters["world_data"] = world;
}

void ComposeNdMap(benchmark::State& state) {
    ComposeNd(
        state, [](NdScene&) {}, [](NdScene&) {});
}

void ComposeNdWide(benchmark::State& state) {
    ComposeNd(
        state, [](NdScene& scene) { scene.wide = true; }, [](NdScene&) {});
}
BENCHMARK(ComposeNdMap)
    ->ArgNames({"legs", "nm"})
    ->Args({60, 40})
    ->Args({1000, 40})
    ->Args({60, 640})
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

BENCHMARK(ComposeNdWide)
    ->ArgNames({"legs", "nm"})
    ->Args({60, 40})
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

// The captain's PFD in the same place, late in the descent with everything on.
void ComposePfd(benchmark::State& state) {
    ComposeNd(
        state,
        [](NdScene& scene) {
            electrical.power_level = 1000;
            displays.du_pfd_ah_startup_cnt = 10;
            sim.ias_kt = 215;
            sim.v_mo_kt = 230;
            sim.v_a_kt = 170;
            sim.v_s_kt = 150;
            sim.ind_alt_ft = 1000;
            sim.radio_alt_ft = 900;
            sim.vs_fpm = -800;
            sim.mach = 0.41;
            sim.flap_pos = 3640;
            sim.fd_active = cockpit.capt_fd_switch = 1;
            weights.flap_speeds[1] = {400000, 240, 220, 200, 180, 170, 160, 150};
            weights.flap_speed_row = 1;
            takeoff_approach.vref = 145;
            instruments.pfd[0] = {1, 1, 0};
            autoflight.ap_master_l = autoflight.at_mode = 2;
            autoflight.ap_lat_mode = autoflight.ap_vert_mode = 6;
            plan.active.ends.dest = airports.dest_airport.ident = "KJFK";
            airports.dest_airport.lat = 40.6;
            airports.dest_airport.lon = -73.8;
            scene.paint = [](Graphics& graphics, const NdScene&) {
                DrawPfd(graphics,
                        {.mode = 1, .unit = 1, .half = 2, .side = 1, .narrow = false, .system_page = 0});
            };
        },
        [](NdScene&) { sim.bank_deg = std::fmod(sim.bank_deg + 0.1, 25); });
}
BENCHMARK(ComposePfd)
    ->ArgNames({"legs", "nm"})
    ->Args({60, 40})
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

// The map moves on by a leg from picture to picture; its lists follow it once a second, outside the picture.
void ComposeNdPlan(benchmark::State& state) {
    ComposeNd(
        state, [](NdScene& scene) { scene.side.nd_mode = kNdPlan; },
        [](NdScene& scene) { scene.side.plan_step = (scene.side.plan_step + 1) % 60; });
}
BENCHMARK(ComposeNdPlan)
    ->ArgNames({"legs", "nm"})
    ->Args({60, 1280})
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

// As full as a map with all its layers over a busy terminal area.
DrawList DensePicture() {
    DrawList list;
    Graphics graphics = GdipCreateGraphics(list, 564, 424);
    GdipFillRectangleI(graphics, GdipCreateSolidFill(0xff000000), 0, 0, 564, 424);
    const Pen route = GdipCreatePen1(0xffff13d5, 2), compass = GdipCreatePen1(0xffdee6e9, 1);
    for (int i = 0; i < 72; ++i) {
        const double angle = i * 0.0873;
        GdipDrawLine(graphics, compass, 282 + 180 * std::cos(angle), 300 + 180 * std::sin(angle),
                     282 + 190 * std::cos(angle), 300 + 190 * std::sin(angle));
    }
    for (int ring = 45; ring <= 180; ring += 45)
        GdipDrawArcI(graphics, compass, 282 - ring, 300 - ring, 2 * ring, 2 * ring, 180, 180);
    for (int i = 0; i < 200; ++i) {
        const int x = i * 97 % 540, y = i * 61 % 400;
        const IntPoint triangle[] = {{x, y + 8}, {x + 5, y}, {x + 10, y + 8}};
        GdipDrawPolygonI(graphics, compass, triangle);
        Text(graphics, x + 10, y, 12, {2, 167, 235}, "FIX" + std::to_string(i));
        if (i % 4 == 0) GdipDrawLineI(graphics, route, x, y, i * 131 % 540, i * 37 % 400);
    }
    return list;
}

void RasteriseDense(benchmark::State& state) {
    const FakeHost host;
    const DrawList list = DensePicture();
    for (auto _ : state) benchmark::DoNotOptimize(Rasterise(list, kWidth, kHeight));
}
BENCHMARK(RasteriseDense)->Name("Rasterise")->Unit(benchmark::kMillisecond);

// Yardstick of all that paints: the same pixels filled once.
void FillPixels(benchmark::State& state) {
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(kWidth) * kHeight);
    std::uint32_t colour = 0;
    for (auto _ : state) {
        std::fill(pixels.begin(), pixels.end(), ++colour);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(FillPixels)->Name("Yardstick/FillPixels")->Unit(benchmark::kMillisecond);

bool LightScreens(FlyingSession& flying, benchmark::State& state) {
    if (!flying.Start(RouteOf(60))) {
        state.SkipWithError(flying.error.c_str());
        return false;
    }
    flying.Engage();
    return true;
}

// The pictures' bytes of one screen, when they have changed.
bool TakePicture(const host::Session& session, const char* screen, std::uint64_t& number,
                 std::string& bytes) {
    struct Taken {
        std::uint64_t& number;
        std::string& bytes;
    } taken{number, bytes};
    const ByteSink sink = [](void* to, const std::uint8_t* data, std::size_t size, std::uint64_t count) {
        auto& picture = *static_cast<Taken*>(to);
        picture.bytes.assign(reinterpret_cast<const char*>(data), size);
        picture.number = count;
    };
    return session.linkage->inspection->picture(host::GaugeOfScreen(screen).c_str(), number, sink, &taken) !=
           0;
}

void StreamNineScreens(benchmark::State& state) {
    FlyingSession flying;
    if (!LightScreens(flying, state)) return;
    host::PictureStream streams[std::size(kNineScreens)];
    double busy = 0;
    std::size_t bytes = 0, ticks = 0;
    std::string picture;
    for (auto _ : state) {
        TickSession(flying.session, false);
        const auto start = Clock::now();
        PaintGauges(flying.session);
        for (std::size_t i = 0; i < std::size(kNineScreens); ++i) {
            std::uint64_t number = streams[i].number;
            if (TakePicture(flying.session, kNineScreens[i], number, picture))
                bytes += NextPictureMessage(streams[i], picture, number).size();
        }
        const double seconds = SecondsSince(start);
        state.SetIterationTime(seconds);
        busy += seconds;
        ++ticks;
    }
    state.counters["cpu_percent"] = busy / (static_cast<double>(ticks) / kTicksPerSecond) * 100;
    state.counters["bytes_per_s"] =
        static_cast<double>(bytes) / (static_cast<double>(ticks) / kTicksPerSecond);
}
BENCHMARK(StreamNineScreens)->UseManualTime()->Iterations(18 * 120)->Unit(benchmark::kMicrosecond);

// A format button of the display select panel, pressed at each moment of a second in turn.
void KeyPressToPicture(benchmark::State& state) {
    FlyingSession flying;
    if (!LightScreens(flying, state)) return;
    int most = 0;
    std::uint64_t number = 0;
    std::string picture;
    const char* const keys[] = {"TZ_MCP_L_INFO_Button", "TZ_MCP_L_SYS_Button"};
    for (int press = 0; auto _ : state) {
        do {
            TickSession(flying.session, false);
        } while (host::world.ticks % 18 != press % 18);
        PaintGauges(flying.session);
        TakePicture(flying.session, "capt_inb", number, picture);
        const auto start = Clock::now();
        host::SetNamedValue(keys[press++ % 2], 1);
        int calls = 0;
        do {
            TickSession(flying.session, false);
            PaintGauges(flying.session);
            ++calls;
        } while (!TakePicture(flying.session, "capt_inb", number, picture) && calls < 100);
        state.SetIterationTime(SecondsSince(start));
        most = std::max(most, calls);
    }
    state.counters["calls_max"] = most;
}
BENCHMARK(KeyPressToPicture)->UseManualTime()->Iterations(180)->Unit(benchmark::kMicrosecond);

void HeadlessPainting(benchmark::State& state) {
    FlyingSession flying;
    if (!LightScreens(flying, state)) return;
    constexpr int kTicks = 18 * 60;
    for (auto _ : state)
        for (int i = 0; i < kTicks; ++i) {
            TickSession(flying.session, false);
            PaintGauges(flying.session);
        }
    state.counters["times_real_time"] =
        benchmark::Counter(kTicks / kTicksPerSecond, benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(HeadlessPainting)->Iterations(10)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
