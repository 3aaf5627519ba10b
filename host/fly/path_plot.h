#pragma once

#include <string>
#include <vector>

#include "host/session.h"

// The route, the path that the first officer's navigation display draws, and the track that is flown, as one
// SVG file; and how far drawn and flown lie apart at each turn.

namespace host {

struct PlotPoint {
    double lat = 0, lon = 0;
};
using PlotLine = std::vector<PlotPoint>;

/// One change of the leg flown to.
struct PlottedTurn {
    std::string ident;
    double angle = 0;  // degrees
    PlotPoint fix;
    PlotLine drawn;            // as the display had it just before
    std::size_t flown_at = 0;  // place in the track
    std::size_t left_at = 0;   // where LNAV let go on the way to the next one; 0: it didn't
    bool direct = false;       // the plan itself has changed
};

struct PathPlot {
    PlotLine flown;  // once a second
    std::vector<PlottedTurn> turns;
    // what has been seen last
    int to = 0;
    std::string ident;
    PlotPoint fix;
    PlotLine drawn;
    double course = 0;  // degrees true, of the leg
};

/// Looks once a second; sets the first officer's display to a map of 20 nm and paints it.
void StepPlot(Session& session, PathPlot& plot);

/// Prints each turn with the greatest distance between the path drawn for it and the one flown, and writes
/// the file; false when that can't be.
bool FinishPlot(const PathPlot& plot, const std::string& file);

}  // namespace host
