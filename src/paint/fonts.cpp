#include "paint/fonts.h"

#include <fontconfig/fontconfig.h>
#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_TRUETYPE_TABLES_H

#include <algorithm>
#include <array>
#include <cstdio>
#include <iterator>
#include <vector>

namespace {

struct FamilyRow {
    std::string_view name;       // on the flight deck
    std::string_view installed;  // the free font that draws it
};

// The first row stands in for a name that isn't here.
constexpr FamilyRow kFamilies[] = {
    {"Velarion900DispL", "B612 Mono"},
    {"Velarion900EICAS", "B612"},
    {"Courier New", "Liberation Mono"},
    {"Arial", "Liberation Sans"},
    {"Latha", "Liberation Sans"},
    {"Lucida Console", "B612 Mono"},
    {"Lucida Sans", "B612"},
    {"Tahoma", "Liberation Sans Narrow"},
};

struct LoadedFont {
    std::string file;
    FontMetrics metrics;
};

// The code points of 0x80 to 0x9f; 0 where the page has no character.
constexpr std::array<std::uint16_t, 32> kAnsiUpper = {
    0x20ac, 0,      0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021, 0x02c6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017d, 0,      0,      0x2018, 0x2019, 0x201c, 0x201d, 0x2022,
    0x2013, 0x2014, 0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0,      0x017e, 0x0178};

unsigned CodePoint(unsigned char ansi) {
    return ansi >= 0x80 && ansi < 0xa0 ? kAnsiUpper[ansi - 0x80U] : ansi;
}

// The bold file of an installed family; what fontconfig finds nearest when it isn't installed.
std::string FindFontFile(std::string_view family) {
    FcPattern* wanted = FcPatternCreate();
    const std::string name(family);
    FcPatternAddString(wanted, FC_FAMILY, reinterpret_cast<const FcChar8*>(name.c_str()));
    FcPatternAddInteger(wanted, FC_WEIGHT, FC_WEIGHT_BOLD);
    FcPatternAddInteger(wanted, FC_SLANT, FC_SLANT_ROMAN);
    FcConfigSubstitute(nullptr, wanted, FcMatchPattern);
    FcDefaultSubstitute(wanted);
    FcResult result = FcResultNoMatch;
    FcPattern* found = FcFontMatch(nullptr, wanted, &result);
    FcPatternDestroy(wanted);
    std::string file;
    if (found != nullptr) {
        FcChar8* text = nullptr;
        if (FcPatternGetString(found, FC_FILE, 0, &text) == FcResultMatch)
            file = reinterpret_cast<const char*>(text);
        bool exact = false;
        for (int i = 0; FcPatternGetString(found, FC_FAMILY, i, &text) == FcResultMatch; ++i)
            exact = exact || name == reinterpret_cast<const char*>(text);
        if (!exact)
            std::fprintf(stderr, "tz900: the font %s isn't installed; %s stands in\n", name.c_str(),
                         file.empty() ? "none" : file.c_str());
        FcPatternDestroy(found);
    }
    return file;
}

// What brings a point into the middle of its cell, in parts of the em.
float PointShiftOf(FT_Face face) {
    const auto load = [face](char c) {
        const FT_UInt glyph = FT_Get_Char_Index(face, static_cast<FT_ULong>(c));
        return FT_Load_Glyph(face, glyph, FT_LOAD_NO_SCALE) == 0;
    };
    if (!load('0')) return 0;
    const FT_Pos digit = face->glyph->metrics.horiAdvance;
    if (!load(':') || face->glyph->metrics.horiAdvance != digit) return 0;
    const FT_Glyph_Metrics& colon = face->glyph->metrics;
    const auto middle = static_cast<float>(colon.horiBearingX) + static_cast<float>(colon.width) / 2;
    return (static_cast<float>(digit) / 2 - middle) / static_cast<float>(face->units_per_EM);
}

LoadedFont LoadFont(FT_Library library, const FamilyRow& row) {
    LoadedFont font{FindFontFile(row.installed), {}};
    for (float& advance : font.metrics.advance) advance = 0.6f;
    FT_Face face = nullptr;
    if (library == nullptr || font.file.empty() || FT_New_Face(library, font.file.c_str(), 0, &face) != 0)
        return font;
    const auto em = static_cast<float>(face->units_per_EM);
    const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2));
    const auto* hhea = static_cast<const TT_HoriHeader*>(FT_Get_Sfnt_Table(face, FT_SFNT_HHEA));
    if (os2 != nullptr && hhea != nullptr && em > 0) {
        // The cell is the one of the Windows ascent and descent, with the external leading between lines.
        const float cell = static_cast<float>(os2->usWinAscent) + static_cast<float>(os2->usWinDescent);
        const float leading = static_cast<float>(hhea->Line_Gap) -
                              (cell - static_cast<float>(hhea->Ascender - hhea->Descender));
        font.metrics.ascent = static_cast<float>(os2->usWinAscent) / em;
        font.metrics.line_spacing = (cell + (leading > 0 ? leading : 0)) / em;
    }
    for (unsigned c = 0; c < 256; ++c) {
        const FT_UInt glyph = FT_Get_Char_Index(face, CodePoint(static_cast<unsigned char>(c)));
        if (FT_Load_Glyph(face, glyph, FT_LOAD_NO_SCALE) == 0)
            font.metrics.advance[c] = static_cast<float>(face->glyph->metrics.horiAdvance) / em;
    }
    font.metrics.point_shift = PointShiftOf(face);
    FT_Done_Face(face);
    return font;
}

std::vector<LoadedFont> LoadFonts() {
    FT_Library library = nullptr;
    if (FT_Init_FreeType(&library) != 0) library = nullptr;
    std::vector<LoadedFont> fonts;
    for (const FamilyRow& row : kFamilies) {
        const auto twin = std::ranges::find(kFamilies, row.installed, &FamilyRow::installed) - kFamilies;
        fonts.push_back(twin < std::ssize(fonts) ? fonts[static_cast<std::size_t>(twin)]
                                                 : LoadFont(library, row));
    }
    if (library != nullptr) FT_Done_FreeType(library);
    FcFini();
    return fonts;
}

const LoadedFont& FontOf(std::uint16_t family) {
    static const std::vector<LoadedFont> kFonts = LoadFonts();
    return kFonts[family < kFonts.size() ? family : 0];
}

}  // namespace

std::uint16_t FamilyOf(std::string_view name) {
    for (std::uint16_t i = 0; i < std::size(kFamilies); ++i)
        if (kFamilies[i].name == name) return i;
    return 0;
}

bool IsFamily(std::string_view name) {
    return std::ranges::find(kFamilies, name, &FamilyRow::name) != std::end(kFamilies);
}

std::string_view FamilyName(std::uint16_t family) {
    return kFamilies[family < std::size(kFamilies) ? family : 0].name;
}

std::string_view InstalledFamily(std::uint16_t family) {
    return kFamilies[family < std::size(kFamilies) ? family : 0].installed;
}

const std::string& FontFile(std::uint16_t family) {
    return FontOf(family).file;
}

int FamilyCount() {
    return static_cast<int>(std::size(kFamilies));
}

const FontMetrics& MetricsOf(std::uint16_t family) {
    return FontOf(family).metrics;
}

float TextWidth(std::uint16_t family, std::string_view text) {
    const FontMetrics& metrics = MetricsOf(family);
    float width = 0;
    for (const char c : text) width += metrics.advance[static_cast<unsigned char>(c)];
    return width;
}

void AppendUtf8(std::string& to, std::string_view ansi) {
    for (const char c : ansi) {
        const unsigned code = CodePoint(static_cast<unsigned char>(c));
        if (code < 0x80) {
            to += static_cast<char>(code);
        } else if (code < 0x800) {
            to += static_cast<char>(0xc0 | code >> 6);
            to += static_cast<char>(0x80 | (code & 0x3f));
        } else {
            to += static_cast<char>(0xe0 | code >> 12);
            to += static_cast<char>(0x80 | (code >> 6 & 0x3f));
            to += static_cast<char>(0x80 | (code & 0x3f));
        }
    }
}
