#pragma once

#include <functional>
#include <string>
#include <vector>

namespace host {

struct Session;

/// What `tz900 fly` is asked for; everything has a default that works.
struct FlyOptions {
    std::string demo_root;
    std::string root;       // empty = a private copy of the demonstration root
    std::string navdata;    // empty = the one under the root
    std::string aircraft;   // title; empty = the first under the root
    std::string route;      // filed route text; empty = the demonstration's, or with `cold` none
    bool headless = false;  // as fast as the machine allows, to the end, without a flight deck
    double rate = 1;        // times real time, when not headless
    bool cold =
        false;  // on the ground, everything off, nobody at the controls; a route, if any, only entered
    bool no_pilot = false;     // with a route, but nobody at the controls
    std::vector<double> wind;  // direction it blows from (degrees true) and knots; empty = calm
    std::string record;        // file of the recording; empty = none
    std::string play;          // file of a recording to be shown; empty = none
    std::string plot;          // SVG file of the paths drawn and flown, when headless; empty = none
    std::function<void(const Session&)> watch;  // called once a second of flight; empty = nobody looks on
    // the flight deck
    std::string page_folder;
    std::string address = "127.0.0.1";
    int port = 8900;    // 0 = any free one
    std::string token;  // empty = one made up, on an address wider than loopback
};

/// Flies a route from runway to runway, prints progress and the flight log, and serves the flight deck to
/// browsers until it is interrupted. Exit status 0 when the aircraft has come to a stop on the runway (where
/// no runway can be landed on by itself: when the last fix was reached), or with a flight deck.
int Fly(const FlyOptions& options);

}  // namespace host
