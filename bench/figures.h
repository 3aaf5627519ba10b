#pragma once

#include <string>

// The figures to reach, each measured beside a yardstick of the same run: machines differ, ratios don't.

struct Figure {
    std::string what;       // as a pilot or an engineer would name it
    std::string measured;   // the benchmark's name
    std::string yardstick;  // another benchmark's name, empty = none
    std::string counter;    // the benchmark's counter that is the figure, empty = its time
    std::string unit;       // of the counter
    double reach;           // ns for a time, else in the counter's unit; 0 = only told
    bool at_least = false;  // the figure is to be as high as that, not as low
};

/// Prints every figure of the run with its ratio to the yardstick; the number of those not reached.
int PrintFigures();
