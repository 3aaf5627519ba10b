#pragma once

#include <string>

namespace host {

/// What `tz900 fly` is asked for; everything has a default that works.
struct FlyOptions {
    std::string demo_root;
    std::string root;       // empty = a private copy of the demonstration root
    std::string navdata;    // empty = the one under the root
    std::string aircraft;   // title; empty = the first under the root
    std::string route;      // filed route text; empty = the demonstration's
    bool headless = false;  // as fast as the machine allows, to the end
    double rate = 1;        // times real time, when not headless
};

/// Flies a route from fix to fix and prints the flight log. Exit status 0 when the last fix was reached.
int Fly(const FlyOptions& options);

}  // namespace host
