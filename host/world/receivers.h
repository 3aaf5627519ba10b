#pragma once

#include <string>

// The aircraft's two navigation receivers: VOR, DME, localizer and glide slope from the navigation data. The
// left receiver is NAV 1.

namespace host {

/// Reads the stations: VORs of a navs.txt, which all carry a DME, and the landing systems of the runways of
/// an apts.txt. A missing file brings none.
void LoadNavStations(const std::string& apts_file, const std::string& navs_file);

/// Where the antennas are.
struct ReceiverPlace {
    double lat, lon;   // degrees
    double altitude;   // ft above the sea
    double variation;  // degrees, east positive
    double heading;    // degrees true
};

/// Receives what the tokens of the two frequencies name, and writes needles, distances, signals and codes;
/// once a tick. Needles: 127 full, to the right and down positive, two dots.
void StepReceivers(const ReceiverPlace& place);

/// A landing system's beams. The glide slope rises at 3 degrees and crosses the threshold at 50 ft.
constexpr double kGlideSlopeDegrees = 3, kGlideSlopeFullNeedle = 0.7;
constexpr double kThresholdCrossing = 50;  // ft

}  // namespace host
