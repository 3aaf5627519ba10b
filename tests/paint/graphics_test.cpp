#include "paint/graphics.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <filesystem>
#include <limits>
#include <span>

#include "paint/fonts.h"
#include "paint/jpeg.h"
#include "paint/png.h"
#include "paint/rasterise.h"
#include "support/fake_host.h"

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

TEST(Graphics, ClosedFiguresTakeNoFurtherLines) {
    Picture picture;
    GraphicsPath path = GdipCreatePath();
    GdipAddPathRectangleI(path, 10, 10, 20, 20);
    GdipAddPathLineI(path, 40, 50, 60, 50);
    GdipDrawPath(picture.graphics, GdipCreatePen1(kWhite, 1), path);
    EXPECT_EQ(Lines(picture.list),
              "stroke 255,255,255,255 1 M 10 10 L 30 10 L 30 30 L 10 30 Z M 40 50 L 60 50\n");
}

// Under an uneven scale a pen is as wide across x as across y is narrow.
TEST(Graphics, UnevenScalesStretchPensAndText) {
    Picture picture;
    GdipScaleWorldTransform(picture.graphics, 4, 1);
    const Pen pen = GdipCreatePen1(kWhite, 2);
    GdipDrawLineI(picture.graphics, pen, 10, 20, 10, 80);
    GdipDrawLineI(picture.graphics, pen, 12, 50, 25, 50);
    const auto inked = [&](int x, int y) { return picture.Pixel(x, y) == kWhite; };
    EXPECT_TRUE(inked(37, 30) && inked(43, 30)) << "8 pixels wide about 40";
    EXPECT_TRUE(!inked(35, 30) && !inked(46, 30));
    EXPECT_TRUE(inked(70, 50) && !inked(70, 52) && !inked(70, 47)) << "2 pixels high about 50";
    // Turned by 30 degrees inside of a scale of 2 by 1 the baseline runs along (2 cos 30, sin 30), 1.8028
    // long, and letters rise along (-2 sin 30, cos 30): the area of 2 over 1.8028 is the height across the
    // baseline.
    Picture turned;
    GdipScaleWorldTransform(turned.graphics, 2, 1);
    GdipRotateWorldTransform(turned.graphics, 30);
    GdipDrawString(turned.graphics, "A", GdipCreateFont(FamilyOf("Arial"), 10), {0, 0, 0, 0}, nullptr,
                   GdipCreateSolidFill(kWhite));
    const auto run = std::get<TextRun>(turned.list.primitives.back());
    EXPECT_NEAR(run.size, 11.094, 1e-3);
    EXPECT_NEAR(run.axes.rotation, 16.102, 1e-3);
    EXPECT_NEAR(run.axes.stretch, 1.6250, 1e-4);
    EXPECT_NEAR(run.axes.skew, -0.6495, 1e-4);
}

TEST(Graphics, HatchesGoOnFromFigureToFigure) {
    // Lines run from the top left to the bottom right through the pixels whose x - y is a multiple of 8. A
    // line as wide as a pixel covers 1 - (1 - sqrt(1/2))^2 = 0.914 of the pixels on it and a quarter of those
    // beside.
    Picture picture;
    const Brush brush = GdipCreateHatchBrush(HatchStyle::kForwardDiagonal, kWhite, kRed);
    GdipFillRectangleI(picture.graphics, brush, 10, 10, 30, 30);
    GdipFillRectangleI(picture.graphics, brush, 40, 10, 30, 30);
    for (const int x : {20, 36, 52, 60}) {
        EXPECT_NEAR(picture.Pixel(x, 20) & 255, 0.914 * 255, 4) << x;
        EXPECT_NEAR(picture.Pixel(x + 1, 20) & 255, 0.25 * 255, 4) << x;
        EXPECT_EQ(picture.Pixel(x + 4, 20), kRed) << x;
    }
    EXPECT_EQ(picture.Pixel(20, 44), 0U) << "below";
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
    // Four characters of 7.2 need 28.8; 30 less a sixth of an em at each end leave room for three.
    const StringFormat one_line = GdipCreateStringFormat(kFormatNoWrap);
    EXPECT_EQ(run_of(&one_line, {10, 20, 30, 0}, "ABCD").text.count, 3U);
    EXPECT_EQ(run_of(nullptr, {10, 20, 30, 0}, "AB CD").text.count, 2U) << "wrapped: the second line";
    const TextRun second = run_of(nullptr, {10, 20, 0, 0}, "A\nB");
    EXPECT_NEAR(second.y, 20 + ascent * 12 + line, 1e-4);
}

TEST(Graphics, ImagesComeFromTheRoot) {
    FakeHost host;
    PixelImage image{2, 2, {kRed, kRed, kWhite, kWhite}};
    host.PutFile("Pictures/two.png", EncodePng(image));
    host.PutFile("Pictures/cut.png", EncodePng(image).substr(0, 20));
    // 30,000 pixels square by its header, behind which stands another one that tells 2.
    constexpr std::size_t kSignature = 8, kHeaderChunk = 25, kWidth = 16, kHeight = 20;
    std::string huge = EncodePng(image);
    huge.insert(kSignature, huge.substr(kSignature, kHeaderChunk));
    for (const std::size_t at : {kWidth, kHeight}) huge.replace(at, 4, std::string_view("\0\0\x75\x30", 4));
    host.PutFile("Pictures/huge.png", huge);
    Picture picture;
    const Image two = GdipLoadImageFromFile("\\pictures\\TWO.PNG");
    EXPECT_EQ(two.width, 2);
    EXPECT_EQ(two.height, 2);
    GdipDrawImageI(picture.graphics, two, 10, 10);
    GdipDrawImageI(picture.graphics, GdipLoadImageFromFile("\\Pictures\\cut.png"), 50, 10);
    GdipDrawImageI(picture.graphics, GdipLoadImageFromFile("\\Pictures\\huge.png"), 50, 10);
    GdipDrawImageI(picture.graphics, GdipLoadImageFromFile("\\..\\two.png"), 50, 10);
    EXPECT_EQ(picture.list.primitives.size(), 1U);
    EXPECT_EQ(picture.Pixel(10, 10), kRed);
    EXPECT_EQ(picture.Pixel(11, 11), kWhite);
    EXPECT_EQ(picture.Pixel(12, 11), 0U);
}

TEST(Graphics, ImagesOfEveryFormAndRoad) {
    FakeHost host;
    const PixelImage block{8, 8, std::vector<std::uint32_t>(64, 0xff40a0c0)};
    // A BMP of 8 by 8 pixels, 24 bits: head, size, planes, and pixels with the blue first.
    std::string bmp("BM\xf6\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x08\0\0\0\x08\0\0\0\1\0\x18\0", 30);
    bmp += std::string(24, '\0');
    for (int i = 0; i < 64; ++i) bmp += "\x20\x60\xff";
    host.PutFile("a.png", EncodePng(block));
    host.PutFile("b.JPG", EncodeJpeg(block));
    host.PutFile("c.bmp", bmp);
    const struct {
        const char* file;
        std::uint32_t colour;
    } kCases[] = {{"a.png", 0xff40a0c0}, {"b.jpg", 0xff40a0c0}, {"c.bmp", 0xffff6020}};
    const auto is_near = [](std::uint32_t a, std::uint32_t b) {
        for (const int shift : {0, 8, 16, 24})
            if (std::abs(static_cast<int>(a >> shift & 255) - static_cast<int>(b >> shift & 255)) > 4)
                return false;
        return true;
    };
    for (const auto& row : kCases) {
        Picture picture;
        Image image = GdipLoadImageFromFile(row.file);
        const Image clone = GdipCloneImage(image);
        GdipDisposeImage(image);
        GdipDrawImageRectI(picture.graphics, image, 0, 0, 20, 20);
        EXPECT_TRUE(picture.list.primitives.empty()) << row.file;
        GdipDrawImageRectI(picture.graphics, clone, 0, 0, 20, 20);
        EXPECT_TRUE(is_near(picture.Pixel(10, 10), row.colour)) << row.file;
        // As a stream, and saved as each encoder has it and read again.
        unsigned count = 0, size = 0;
        GdipGetImageEncodersSize(count, size);
        std::vector<ImageCodecInfo> encoders(count);
        EXPECT_FALSE(GdipGetImageEncoders(std::span(encoders).first(1)));
        ASSERT_TRUE(GdipGetImageEncoders(encoders));
        for (const ImageCodecInfo& encoder : encoders) {
            std::string stream;
            ASSERT_TRUE(GdipSaveImageToStream(clone, stream, encoder.mime_type));
            const Image loaded = GdipLoadImageFromStream(stream);
            EXPECT_EQ(loaded.width, clone.width);
            Picture again;
            GdipDrawImageRectI(again.graphics, loaded, 0, 0, 20, 20);
            EXPECT_TRUE(is_near(again.Pixel(10, 10), row.colour)) << row.file << encoder.mime_type;
            // Cut anywhere it is an image or none, and nothing is read behind its end.
            for (std::size_t cut = 0; cut < stream.size(); ++cut)
                GdipLoadImageFromStream(std::string(stream.substr(0, cut)));
        }
        std::string stream = "kept";
        EXPECT_FALSE(GdipSaveImageToStream(clone, stream, "image/none"));
        EXPECT_FALSE(GdipSaveImageToStream(image, stream, "image/png"));
        EXPECT_EQ(stream, "kept");
    }
}

TEST(Graphics, AnImageHasItsPhysicalSizeAndChangesWithItsFile) {
    FakeHost host;
    const PixelImage block{8, 8, std::vector<std::uint32_t>(64, kRed)};
    host.PutFile("dense.png", EncodePng(block, {192, 192}));
    host.PutFile("dense.jpg", EncodeJpeg(block, {48, 48}));
    for (const auto& [file, size] : {std::pair("dense.png", 4.0f), {"dense.jpg", 16.0f}}) {
        Picture picture;
        GdipDrawImageI(picture.graphics, GdipLoadImageFromFile(file), 0, 0);
        ASSERT_EQ(picture.list.primitives.size(), 1U);
        EXPECT_NEAR(std::get<DrawnImage>(picture.list.primitives[0]).width, size, 0.01f) << file;
    }
    host.PutFile("dense.png", EncodePng({2, 2, std::vector<std::uint32_t>(4, kWhite)}));
    std::filesystem::last_write_time(host.root / "dense.png",
                                     std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
    const auto load_for_a_second = [] {
        Image image;
        for (int frame = 0; frame < 18; ++frame) image = GdipLoadImageFromFile("dense.png");
        return image;
    };
    EXPECT_EQ(load_for_a_second().width, 2);
    std::filesystem::remove(host.root / "dense.png");
    EXPECT_EQ(load_for_a_second().width, 0);
    EXPECT_EQ(GdipLoadImageFromFile("dense.png").width, 0);
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
    const float nan = std::nanf("");
    const double infinite = std::numeric_limits<double>::infinity();
    const PaintPoint wild[] = {{0, 0}, {nan, 10}}, far[] = {{0, 0}, {3e38f, 0}};
    GdipDrawLines(picture.graphics, GdipCreatePen1(kWhite, 1), wild);
    GdipFillPolygon(picture.graphics, GdipCreateHatchBrush(HatchStyle::kCross, kRed, kWhite), far);
    GdipDrawLineI(picture.graphics, GdipCreatePen1(kWhite, nan), 0, 0, 10, 10);
    for (const double angle : {infinite, static_cast<double>(nan)})
        GdipDrawArcI(picture.graphics, GdipCreatePen1(kWhite, 1), 0, 0, 20, 10, angle, 90);
    GdipDrawString(picture.graphics, "A", GdipCreateFont(0, 12), {nan, 0, 0, 0}, nullptr,
                   GdipCreateSolidFill(kWhite));
    GdipScaleWorldTransform(picture.graphics, 0, 1);
    GdipDrawString(picture.graphics, "A", GdipCreateFont(0, 12), {0, 0, 0, 0}, nullptr,
                   GdipCreateSolidFill(kWhite));
    EXPECT_TRUE(picture.list.primitives.empty()) << Lines(picture.list);
    // And what comes after it is drawn.
    GdipResetWorldTransform(picture.graphics);
    Pen pen = GdipCreatePen1(kWhite, 0);
    const float none[] = {0, 0}, odd[] = {2, -1};
    GdipSetPenDashArray(pen, none);
    GdipSetPenDashArray(pen, odd);
    GdipDrawArcI(picture.graphics, pen, 0, 0, 20, 10, 1e30, 90);
    GdipSetPenDashStyle(pen, 1);
    GdipDrawLineI(picture.graphics, pen, 0, 20, 50, 20);
    GdipFillRectangleI(picture.graphics, GdipCreateSolidFill(kRed), 50, 50, 5, 5);
    EXPECT_EQ(picture.Pixel(52, 52), kRed);
    EXPECT_NE(Lines(picture.list).find("stroke 255,255,255,255 0 dash 3,1 M 0 20"), std::string::npos);
}

}  // namespace
