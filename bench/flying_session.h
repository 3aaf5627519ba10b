#pragma once

#include <cstdio>
#include <filesystem>
#include <string>

#include "host/inspection.h"
#include "host/session.h"
#include "host/world/world.h"
#include "support/paths.h"
#include "support/world_navdata.h"

// `count` direct legs over the oceans' whole degrees, row by row.
inline std::string RouteOf(int count) {
    std::string route = "KSEA";
    for (int i = 0; i < count - 1; ++i) {
        const int row = i / 30, column = row % 2 == 0 ? i % 30 : 29 - i % 30;
        char fix[16];
        std::snprintf(fix, sizeof fix, " N%02dW%03d", 46 - row, 130 + column);
        route += fix;
    }
    return route + " KSFO";
}

/// The module in flight, with its screens lit from the eighth second on.
struct FlyingSession {
    host::Session session;
    std::string error;

    bool Start(const std::string& route) {
        host::world = host::World{};
        host::flight = host::Flight{};
        session.settings.module_file = BinaryDir() + "/tz900.gau";
        session.settings.demo_root = SourceDir() + "/data/root";
        if (std::filesystem::exists(WorldNavdata())) session.settings.navdata = WorldNavdata().string();
        session.settings.cfg_lines = {"SystemsOn=1"};
        session.settings.fdm = true;
        session.settings.placed = true;
        session.settings.placement = {46.5, -129.5, 35000, 270, 280};
        return PrepareSession(session, error) && StartSession(session, error) &&
               (route.empty() || (EnterRoute(session, route, error) && ExecuteRoute(session, error)));
    }
    void Engage() {
        for (int i = 0; i < 12 * 18; ++i) TickSession(session, false);
        for (const char* control : {"atarm", "apl", "lnav", "althold"})
            PressMouseArea(session, "MCP", control);
    }
    ~FlyingSession() { StopSession(session); }
};
