#pragma once

#include <string_view>

/// Resolves what the crew typed into `nav.EntryCandidates`, nearest to the aircraft first; `nav.entry_cnt`
/// is 0 for an entry that names no place. Takes any bytes.
///
/// In this order: N45W120, 45N120W, N4530.5W12030.5, N4530W12030, 4530N12030W, N04530W12030; ABC123/25, a
/// place with `entry_bearing` and `entry_distance` (nm); ABC123/DEF456, where the bearing lines of two places
/// cross (`entry_bearing`, `entry_bearing2`); an ident of a navaid, fix or airport, at most 250; the coded
/// forms 5060N and 50N60. A position off the globe is no position.
void ParseEntry(std::string_view text);
