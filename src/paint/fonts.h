#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The font families of the flight deck, each drawn with a free font that is installed as a package. One table
// holds both, and all three consumers of a picture use the same files. Every text of the flight deck is bold.

/// The place of a family in the table; a name that isn't there gives the display units' family.
std::uint16_t FamilyOf(std::string_view name);

bool IsFamily(std::string_view name);

/// The name under which the flight deck knows the family.
std::string_view FamilyName(std::uint16_t family);

/// The font's own family name, as installed.
std::string_view InstalledFamily(std::uint16_t family);

/// The font file in use; empty when the font isn't installed and nothing stands in.
const std::string& FontFile(std::uint16_t family);

int FamilyCount();

/// Measures in parts of the em.
struct FontMetrics {
    float ascent = 0.9f;         // from the top of the line's cell to the baseline
    float line_spacing = 1.15f;  // from baseline to baseline
    float advance[256] = {};     // by character of the ANSI code page
    // To the right, for ".", ",", ":" and ";": a font whose characters are all as wide may have them left in
    // their cells, which tears a time or a number apart. 0 in any other font.
    float point_shift = 0;
};

/// Loaded once, when first asked for; a font that is missing gives a fallback's, with one warning.
const FontMetrics& MetricsOf(std::uint16_t family);

/// Width of a text in parts of the em, trailing blanks included.
float TextWidth(std::uint16_t family, std::string_view text);

/// The characters that `point_shift` moves.
constexpr bool IsPoint(char c) {
    return c == '.' || c == ',' || c == ':' || c == ';';
}

/// A character of the ANSI code page as UTF-8.
void AppendUtf8(std::string& to, std::string_view ansi);
