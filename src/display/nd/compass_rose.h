#pragma once

#include "display/nd/nd_frame.h"
#include "paint/colours.h"

/// The marks of a compass about the origin.
struct RoseTicks {
    double outer;    // radius of the marks' outer ends
    double tens;     // of the inner ends of those at whole tens
    double fives;    // of those between; equal to `outer`: there are none
    double within;   // degrees to either side of the top
    double label_y;  // of the labels' upper edges, before they are turned
    float label_size;
    float width;  // of the marks
    Rgb colour = kWhite;
};

/// The marks, and a label at every thirty degrees, turned for a direction (degrees) at the top.
void DrawRoseTicks(Graphics& graphics, const RoseTicks& ticks, double up);

/// The compass of a navigation display: lines, and in MAP marks.
void DrawRose(Graphics& graphics, const NdFrame& frame);

/// The marks that stand at a direction of the compass: bearing pointers of the VOR receivers, selected
/// heading or track with its line, and present heading.
void DrawBearingPointers(Graphics& graphics, const NdFrame& frame);
void DrawHeadingMarks(Graphics& graphics, const NdFrame& frame);
