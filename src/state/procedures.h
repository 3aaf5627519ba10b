#pragma once

#include <string>

#include "state/growing_list.h"

/// One leg of a departure, arrival or approach as loaded: a coded leg already has its computed end. Degrees
/// north and east positive, feet.
struct ProcedureLeg {
    std::string segment;    // runway or transition that the leg belongs to
    std::string ident;      // a fix, or a made name such as "HD190", "(INTC)", "(1200)", "VECTORS"
    std::string text;       // "VECTOR" on a vector leg
    std::string alt_token;  // as in the file
    std::string
        applies_to;  // runway or transition as in the file, "---" for all; the role of an approach leg
    double lat = 0, lon = 0;  // where the leg ends
    std::string marker;       // "*" on a leg that loading has filled in
    int flyover = 0;
    int turn = 0;                         // 0 none, 1 left, 2 right
    double start_lat = 0, start_lon = 0;  // where a coded leg was computed from
    std::string code;                     // "/RT/H300/IC270", empty on a plain fix
    double code_alt = 0;                  // ft, of the "until" clause
    double code_course = 0;               // degrees magnetic
    double file_lat = 0, file_lon = 0;    // reference position of the file's line
    int speed = 0, alt2 = 0;              // approaches: the last two numbers of the line
};

struct ProcedureRecord {
    std::string name;       // "DEENA7", with a transition "DEENA7.KADOM"; an approach is "ILS27R"
    std::string base_name;  // before the "."
    std::string kind;       // second word of the heading; of an approach "ILS"
    std::string runways;    // one, or several with "," between, as in the file
    int leg_cnt = 0;
    GrowingList<ProcedureLeg> legs;  // from 1
};
