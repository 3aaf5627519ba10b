#include "paint/graphics.h"

#include <gtest/gtest.h>

#include "paint/fonts.h"
#include "paint/rasterise.h"

namespace {

constexpr Argb kWhite = 0xffffffff, kRed = 0xffff0000;

std::string Lines(const DrawList& list) {
    std::string text;
    for (const Primitive& primitive : list.primitives) text += DescribePrimitive(list, primitive) + '\n';
    return text;
}

struct Picture {
    DrawList list;
    Graphics graphics = GdipCreateGraphics(list, 100, 100);
    std::uint32_t Pixel(int x, int y) const {
        const PixelImage image = Rasterise(list, 100, 100);
        return image.pixels[static_cast<std::size_t>(y * 100 + x)];
    }
};

TEST(Graphics, TransformsArePrepended) {
    // Newest first: a point is scaled, then turned, then moved.
    Picture picture;
    GdipTranslateWorldTransform(picture.graphics, 50, 20);
    GdipRotateWorldTransform(picture.graphics, 90);
    GdipScaleWorldTransform(picture.graphics, 2, 2);
    GdipDrawLineI(picture.graphics, GdipCreatePen1(kWhite, 3), 0, 0, 10, 0);
    EXPECT_EQ(Lines(picture.list), "stroke 255,255,255,255 6 M 50 20 L 50 40\n");
    GdipResetWorldTransform(picture.graphics);
    GdipFillRectangleI(picture.graphics, GdipCreateSolidFill(kRed), 1, 2, 3, 4);
    EXPECT_TRUE(Lines(picture.list).ends_with("fill 255,0,0,255 M 1 2 L 4 2 L 4 6 L 1 6 Z\n"));
}

TEST(Graphics, ArcsRunClockwiseAsTheyShow) {
    // A quarter of a circle of radius 10 from the right to the bottom: control points at 0.5523 of the
    // radius.
    Picture picture;
    GdipDrawArcI(picture.graphics, GdipCreatePen1(kWhite, 1), 40, 40, 20, 20, 0, 90);
    EXPECT_EQ(Lines(picture.list), "stroke 255,255,255,255 1 M 60 50 C 60 55.52 55.52 60 50 60\n");
    // On an ellipse of 40 by 20 the ray of 45 degrees meets the edge where x = y: 400/sqrt(500) = 8.944 each
    // way.
    Picture wide;
    GdipDrawArcI(wide.graphics, GdipCreatePen1(kWhite, 1), 30, 40, 40, 20, 45, 10);
    EXPECT_TRUE(Lines(wide.list).starts_with("stroke 255,255,255,255 1 M 58.94 58.94 C")) << Lines(wide.list);
}

TEST(Graphics, PensMakeDashesStripsAndArrows) {
    Picture picture;
    Pen dashed = GdipCreatePen1(kWhite, 2);
    GdipSetPenDashStyle(dashed, 1);
    GdipDrawLineI(picture.graphics, dashed, 0, 10, 50, 10);
    EXPECT_EQ(Lines(picture.list), "stroke 255,255,255,255 2 dash 6,2 M 0 10 L 50 10\n");
    // A pen of 10 with strips 0 to 0.2 and 0.8 to 1: two lines of 2, their middles 4 either side.
    Picture strips;
    Pen compound = GdipCreatePen1(kWhite, 10);
    const float edges[] = {0, 0.2f, 0.8f, 1};
    GdipSetPenCompoundArray(compound, edges);
    GdipDrawLineI(strips.graphics, compound, 0, 50, 80, 50);
    EXPECT_EQ(Lines(strips.list),
              "stroke 255,255,255,255 2 M 0 46 L 80 46\nstroke 255,255,255,255 2 M 0 54 L 80 54\n");
    Picture arrow;
    Pen capped = GdipCreatePen1(kWhite, 2);
    GdipSetPenCustomEndCap(capped, GdipCreateAdjustableArrowCap(4, 3, true));
    GdipDrawLineI(arrow.graphics, capped, 0, 50, 80, 50);
    EXPECT_EQ(Lines(arrow.list),
              "stroke 255,255,255,255 2 M 0 50 L 72 50\nfill 255,255,255,255 M 72 53 L 80 50 L 72 47 Z\n");
}

TEST(Graphics, ClipsCutAndAreTakenAway) {
    Picture picture;
    GraphicsPath window = GdipCreatePath();
    GdipAddPathRectangleI(window, 10, 10, 40, 40);
    GdipSetClipPath(picture.graphics, window);
    GdipSetClipRectI(picture.graphics, 20, 20, 10, 10);
    GdipFillRectangleI(picture.graphics, GdipCreateSolidFill(kRed), 0, 0, 100, 100);
    GdipResetClip(picture.graphics);
    GdipFillRectangleI(picture.graphics, GdipCreateSolidFill(kWhite), 90, 90, 5, 5);
    EXPECT_EQ(picture.Pixel(12, 12), kRed);
    EXPECT_EQ(picture.Pixel(25, 25), 0U) << "taken out of the clip";
    EXPECT_EQ(picture.Pixel(60, 60), 0U) << "outside the clip";
    EXPECT_EQ(picture.Pixel(92, 92), kWhite) << "the clip is gone";
}

TEST(Graphics, ClearFillsAlphaToo) {
    Picture picture;
    GdipGraphicsClear(picture.graphics, kRed);
    GdipGraphicsClear(picture.graphics, 0x0072bd61);
    EXPECT_EQ(picture.Pixel(50, 50) >> 24, 0U);
}

TEST(Graphics, LinesOfOnePixelAreSharp) {
    Picture picture;
    GdipDrawLineI(picture.graphics, GdipCreatePen1(kWhite, 1), 0, 10, 99, 10);
    EXPECT_EQ(picture.Pixel(50, 10), kWhite);
    EXPECT_EQ(picture.Pixel(50, 9), 0U);
    EXPECT_EQ(picture.Pixel(50, 11), 0U);
}

TEST(Graphics, TextStandsOnItsBaseline) {
    const std::uint16_t family = FamilyOf("Courier New");
    const float ascent = MetricsOf(family).ascent;
    const auto run_of = [&](const StringFormat* format, LayoutRect rect, const char* text) {
        Picture picture;
        GdipDrawString(picture.graphics, text, GdipCreateFont(family, 12), rect, format,
                       GdipCreateSolidFill(kWhite));
        return std::get<TextRun>(picture.list.primitives.back());
    };
    const TextRun plain = run_of(nullptr, {10, 20, 0, 0}, "AB");
    EXPECT_FLOAT_EQ(plain.x, 12) << "a sixth of an em inside";
    EXPECT_FLOAT_EQ(plain.y, 20 + ascent * 12);
    StringFormat centred = GdipCreateStringFormat(0);
    GdipSetStringFormatLineAlign(centred, LineAlign::kCenter);
    const float line = MetricsOf(family).line_spacing * 12;
    EXPECT_NEAR(run_of(&centred, {10, 20, 0, 40}, "AB").y, 20 + (40 - line) / 2 + ascent * 12, 1e-4);
    // Right to left: the text ends a sixth of an em inside the right edge; the font's characters are 0.6 em
    // wide.
    const StringFormat right = GdipCreateStringFormat(kFormatRightToLeft);
    EXPECT_NEAR(run_of(&right, {10, 20, 80, 0}, "AB").x, 90 - 2 - 2 * 0.6 * 12, 0.05);
    const TextRun second = run_of(nullptr, {10, 20, 0, 0}, "A\nB");
    EXPECT_NEAR(second.y, 20 + ascent * 12 + line, 1e-4);
}

TEST(Graphics, WhatCannotBeDrawnIsLeftOut) {
    Picture picture;
    GdipDrawLinesI(picture.graphics, GdipCreatePen1(kWhite, 1), {});
    GdipFillRectangleI(picture.graphics, GdipCreateSolidFill(kWhite), 0, 0, -5, 5);
    GdipDrawArcI(picture.graphics, GdipCreatePen1(kWhite, 1), 0, 0, 0, 10, 0, 90);
    GdipDrawString(picture.graphics, "", GdipCreateFont(0, 12), {0, 0, 0, 0}, nullptr,
                   GdipCreateSolidFill(kWhite));
    GdipDrawString(picture.graphics, "A", GdipCreateFont(0, -1), {0, 0, 0, 0}, nullptr,
                   GdipCreateSolidFill(kWhite));
    EXPECT_TRUE(picture.list.primitives.empty()) << Lines(picture.list);
}

}  // namespace
