#include "gdiplus/cases.h"

#include "paint/fonts.h"

// Not here, for Wine departs from what is documented: pens of several strips (drawn as plain ones), text from
// right to left (from left to right), letters that lean (upright), a line after a rectangle in a path (joined
// to it), text cut at its rectangle's lower edge (not cut), OpenType fonts (not found). tests/paint has them
// by hand.

namespace {

constexpr Argb kWhite = 0xffdee6e9, kGreen = 0xff00fa00, kAmber = 0xffe9b73e, kMagenta = 0xffff13d5;
constexpr Argb kPaleWhite = 0x60ffffff;

Brush White() {
    return GdipCreateSolidFill(kWhite);
}

void Arcs(Graphics& graphics) {
    const Pen pen = GdipCreatePen1(kWhite, 3);
    GdipDrawArcI(graphics, pen, 8, 8, 40, 40, 0, 90);
    GdipDrawArcI(graphics, pen, 58, 8, 40, 40, 30, -120);
    GdipDrawArcI(graphics, pen, 108, 8, 44, 30, 200, 142);
    GdipDrawArcI(graphics, pen, 8, 62, 60, 24, 45, 90);
    GdipDrawArcI(graphics, pen, 78, 56, 20, 56, -30, -200);
    GdipDrawArcI(graphics, pen, 108, 62, 40, 40, 10, 400);
}

void Pies(Graphics& graphics) {
    GdipFillPieI(graphics, White(), 8, 8, 40, 40, 0, 90);
    GdipFillPieI(graphics, White(), 58, 8, 40, 40, 30, -120);
    GdipFillPieI(graphics, White(), 108, 8, 44, 30, 200, 142);
    GdipFillPieI(graphics, White(), 8, 62, 60, 24, 45, 90);
    GdipFillPieI(graphics, White(), 78, 56, 20, 56, -30, -200);
    GdipFillPieI(graphics, White(), 108, 62, 40, 40, 10, 400);
}

void EllipsesAndRectangles(Graphics& graphics) {
    const Pen pen = GdipCreatePen1(kGreen, 2);
    GdipDrawEllipseI(graphics, pen, 8, 8, 50, 30);
    GdipFillEllipseI(graphics, White(), 70, 8, 30, 40);
    GdipDrawRectangleI(graphics, pen, 110, 8, 40, 30);
    GdipFillRectangleI(graphics, White(), 8, 60, 50, 40);
    GdipFillRectangleI(graphics, GdipCreateSolidFill(kPaleWhite), 40, 80, 60, 30);
    GdipDrawRectangleI(graphics, GdipCreatePen1(kGreen, 5), 112, 62, 36, 40);
}

constexpr IntPoint kWave[] = {{10, 60}, {40, 12}, {70, 70}, {95, 66}, {150, 20}};

void OpenCurve(Graphics& graphics) {
    GdipDrawCurveI(graphics, GdipCreatePen1(kWhite, 3), kWave);
    constexpr IntPoint kTwo[] = {{10, 110}, {150, 90}};
    GdipDrawCurveI(graphics, GdipCreatePen1(kWhite, 3), kTwo);
}

void ClosedCurve(Graphics& graphics) {
    constexpr IntPoint kBlob[] = {{20, 60}, {50, 16}, {80, 50}, {140, 30}, {110, 104}, {60, 80}};
    GdipFillClosedCurveI(graphics, White(), kBlob);
}

void LineWidths(Graphics& graphics) {
    constexpr float kWidths[] = {0.3f, 1, 2, 3, 4, 5, 7};
    int y = 8;
    for (const float width : kWidths) {
        GdipDrawLineI(graphics, GdipCreatePen1(kWhite, width), 8, y, 70, y);
        GdipDrawLineI(graphics, GdipCreatePen1(kWhite, width), 80, y, 150, y + 9);
        y += 14;
    }
}

void WidthsUnderTransform(Graphics& graphics) {
    GdipScaleWorldTransform(graphics, 2, 2);
    GdipDrawLineI(graphics, GdipCreatePen1(kWhite, 1), 4, 6, 36, 6);
    GdipDrawLineI(graphics, GdipCreatePen1(kWhite, 2.5f), 4, 14, 36, 24);
    GdipResetWorldTransform(graphics);
    GdipScaleWorldTransform(graphics, 0.25, 0.25);
    GdipDrawLineI(graphics, GdipCreatePen1(kWhite, 2), 340, 32, 600, 32);
    GdipDrawLineI(graphics, GdipCreatePen1(kWhite, 12), 340, 80, 600, 160);
}

// A pen is stretched with the figure, so that it is wide along one axis and narrow along the other.
void WidthsUnderUnevenTransform(Graphics& graphics) {
    GdipScaleWorldTransform(graphics, 4, 1);
    GdipDrawRectangleI(graphics, GdipCreatePen1(kWhite, 3), 6, 10, 28, 40);
    GdipDrawLineI(graphics, GdipCreatePen1(kWhite, 3), 6, 70, 34, 104);
}

void Joins(Graphics& graphics) {
    const Pen pen = GdipCreatePen1(kWhite, 6);
    constexpr IntPoint kRight[] = {{12, 50}, {12, 12}, {60, 12}};
    constexpr IntPoint kSharp[] = {{80, 14}, {150, 26}, {80, 38}};
    constexpr IntPoint kNeedle[] = {{80, 60}, {120, 64}, {80, 68}};
    GdipDrawLinesI(graphics, pen, kRight);
    GdipDrawLinesI(graphics, pen, kSharp);
    GdipDrawLinesI(graphics, pen, kNeedle);
    constexpr IntPoint kTriangle[] = {{20, 110}, {40, 66}, {64, 110}};
    GdipDrawPolygonI(graphics, pen, kTriangle);
    constexpr PaintPoint kFine[] = {{90.5f, 90.25f}, {110.5f, 108.5f}, {150.25f, 92}};
    GdipDrawLines(graphics, GdipCreatePen1(kGreen, 3), kFine);
}

void DashStyles(Graphics& graphics) {
    for (int style = 0; style <= 4; ++style) {
        Pen pen = GdipCreatePen1(kWhite, 3);
        GdipSetPenDashStyle(pen, style);
        GdipDrawLineI(graphics, pen, 8, 10 + 14 * style, 150, 10 + 14 * style);
    }
    Pen thin = GdipCreatePen1(kWhite, 2);
    GdipSetPenDashStyle(thin, 1);
    GdipDrawArcI(graphics, thin, 20, 80, 120, 80, 200, 140);
}

void DashArrays(Graphics& graphics) {
    Pen pen = GdipCreatePen1(kWhite, 2);
    constexpr float kEven[] = {4, 5, 4, 5}, kUneven[] = {8, 2, 1, 2};
    GdipSetPenDashArray(pen, kEven);
    GdipDrawLineI(graphics, pen, 8, 12, 150, 12);
    GdipSetPenDashArray(pen, kUneven);
    GdipDrawLineI(graphics, pen, 8, 30, 150, 50);
    pen.width = 5;
    GdipSetPenDashArray(pen, kEven);
    constexpr IntPoint kBends[] = {{20, 64}, {55, 64}, {55, 109}, {145, 109}};
    GdipDrawLinesI(graphics, pen, kBends);
}

void DashesUnderTransform(Graphics& graphics) {
    GdipTranslateWorldTransform(graphics, 20, 20);
    GdipRotateWorldTransform(graphics, 30);
    GdipScaleWorldTransform(graphics, 3, 3);
    Pen pen = GdipCreatePen1(kWhite, 1);
    GdipSetPenDashStyle(pen, 1);
    GdipDrawLineI(graphics, pen, 0, 0, 40, 0);
    GdipDrawLineI(graphics, pen, 0, 5, 40, 5);
}

void DashesOfThinPens(Graphics& graphics) {
    Pen pen = GdipCreatePen1(kWhite, 0.1f);
    GdipSetPenDashStyle(pen, 1);
    GdipDrawLineI(graphics, pen, 8, 20, 150, 20);
    pen.width = 0;
    GdipDrawLineI(graphics, pen, 8, 40, 150, 40);
    GdipScaleWorldTransform(graphics, 0.05, 0.05);
    pen.width = 2;
    GdipDrawLineI(graphics, pen, 160, 1200, 3000, 1200);
    GdipDrawLineI(graphics, pen, 400, 1400, 400, 2300);
}

void FilledArrows(Graphics& graphics) {
    Pen pen = GdipCreatePen1(kWhite, 2);
    GdipSetPenCustomEndCap(pen, GdipCreateAdjustableArrowCap(6, 5, true));
    GdipDrawLineI(graphics, pen, 10, 14, 70, 14);
    GdipDrawLineI(graphics, pen, 150, 50, 90, 20);
    pen.width = 4;
    GdipSetPenCustomEndCap(pen, GdipCreateAdjustableArrowCap(3, 4, true));
    constexpr IntPoint kBend[] = {{20, 60}, {60, 100}, {140, 76}};
    GdipDrawLinesI(graphics, pen, kBend);
}

void OpenArrows(Graphics& graphics) {
    Pen pen = GdipCreatePen1(kWhite, 2);
    GdipSetPenCustomEndCap(pen, GdipCreateAdjustableArrowCap(6, 5, false));
    GdipDrawLineI(graphics, pen, 10, 20, 70, 20);
    GdipDrawLineI(graphics, pen, 150, 70, 90, 20);
}

template <HatchStyle kStyle>
void Hatch(Graphics& graphics) {
    const Brush brush = GdipCreateHatchBrush(kStyle, kAmber, 0xff202020);
    GdipFillRectangleI(graphics, brush, 8, 8, 64, 48);
    GdipFillEllipseI(graphics, brush, 84, 8, 64, 100);
}

void HatchOverPicture(Graphics& graphics) {
    GdipFillRectangleI(graphics, GdipCreateSolidFill(kMagenta), 30, 30, 60, 60);
    const Brush brush = GdipCreateHatchBrush(HatchStyle::kForwardDiagonal, kGreen, 0);
    GdipTranslateWorldTransform(graphics, 13, 5);
    GdipFillRectangleI(graphics, brush, 0, 0, 120, 100);
}

void ClipsReplaceEachOther(Graphics& graphics) {
    GraphicsPath first = GdipCreatePath();
    GdipAddPathRectangleI(first, 0, 0, 30, 30);
    GdipSetClipPath(graphics, first);
    GraphicsPath sector = GdipCreatePath();
    GdipAddPathArcI(sector, 20, 10, 120, 100, 200, 140);
    GdipAddPathLineI(sector, 130, 100, 30, 100);
    GdipClosePathFigure(sector);
    GdipSetClipPath(graphics, sector);
    GdipFillRectangleI(graphics, White(), 0, 0, 160, 120);
    GdipResetClip(graphics);
    GdipFillRectangleI(graphics, GdipCreateSolidFill(kGreen), 146, 106, 10, 10);
}

void ClipExcludesRectangles(Graphics& graphics) {
    GraphicsPath window = GdipCreatePath();
    GdipAddPathRectangleI(window, 20, 15, 120, 90);
    GdipSetClipPath(graphics, window);
    GdipSetClipRectI(graphics, 40, 30, 30, 60);
    GdipTranslateWorldTransform(graphics, 80, 10);
    GdipSetClipRectI(graphics, 20, 20, 20, 120);
    GdipResetWorldTransform(graphics);
    GdipFillRectangleI(graphics, White(), 0, 0, 160, 120);
    GdipDrawLineI(graphics, GdipCreatePen1(kMagenta, 6), 0, 60, 160, 60);
}

void ClipExcludesWithoutClip(Graphics& graphics) {
    GdipSetClipRectI(graphics, 40, 30, 30, 60);
    GdipFillRectangleI(graphics, White(), 20, 10, 100, 100);
}

// A clip stands where it was set, whatever the transform becomes.
void ClipStaysUnderTransform(Graphics& graphics) {
    GdipTranslateWorldTransform(graphics, 80, 60);
    GdipRotateWorldTransform(graphics, 45);
    GraphicsPath window = GdipCreatePath();
    GdipAddPathRectangleI(window, -30, -20, 60, 40);
    GdipSetClipPath(graphics, window);
    GdipResetWorldTransform(graphics);
    GdipFillRectangleI(graphics, White(), 0, 0, 160, 120);
}

void FillRules(Graphics& graphics) {
    constexpr IntPoint kStar[] = {{40, 8}, {64, 84}, {4, 36}, {76, 36}, {16, 84}};
    GdipFillPolygonI(graphics, White(), kStar);
    GraphicsPath winding = GdipCreatePath(true);
    constexpr IntPoint kOther[] = {{120, 8}, {144, 84}, {84, 36}, {156, 36}, {96, 84}};
    GdipAddPathPolygonI(winding, kOther);
    GdipFillPath(graphics, White(), winding);
    GraphicsPath ring = GdipCreatePath();
    GdipAddPathRectangleI(ring, 10, 92, 60, 24);
    GdipAddPathRectangleI(ring, 24, 98, 30, 12);
    GdipFillPath(graphics, White(), ring);
    constexpr PaintPoint kFine[] = {{90.5f, 92.5f}, {150, 96.25f}, {120.25f, 114}};
    GdipFillPolygon(graphics, GdipCreateSolidFill(kGreen), kFine);
}

void PathFigures(Graphics& graphics) {
    GraphicsPath path = GdipCreatePath();
    GdipAddPathLineI(path, 10, 50, 20, 20);
    GdipAddPathArcI(path, 30, 10, 40, 40, 180, 180);  // joined to the line
    GdipAddPathLineI(path, 80, 30, 90, 60);
    GdipClosePathFigure(path);
    GdipAddPathRectangleI(path, 100, 10, 40, 30);
    constexpr IntPoint kTriangle[] = {{20, 110}, {40, 76}, {64, 110}};
    GdipAddPathPolygonI(path, kTriangle);
    GdipDrawPath(graphics, GdipCreatePen1(kWhite, 3), path);
}

void Transforms(Graphics& graphics) {
    GdipTranslateWorldTransform(graphics, 70, 60);
    GdipRotateWorldTransform(graphics, 30);
    GdipScaleWorldTransform(graphics, 2, 1);
    GdipTranslateWorldTransform(graphics, 5, -10);
    GdipFillRectangleI(graphics, White(), -20, -10, 40, 20);
    GdipDrawEllipseI(graphics, GdipCreatePen1(kGreen, 2), -10, 14, 30, 16);
    GdipResetWorldTransform(graphics);
    GdipScaleWorldTransform(graphics, 0.5, 1.5);
    GdipFillEllipseI(graphics, GdipCreateSolidFill(kAmber), 240, 4, 60, 16);
}

void DrawText(Graphics& graphics, const char* family, float size, LayoutRect rect, const StringFormat* format,
              const char* text) {
    GdipDrawString(graphics, text, GdipCreateFont(FamilyOf(family), size), rect, format, White());
}

void TextFamilies(Graphics& graphics) {
    DrawText(graphics, "Courier New", 10, {4, 6, 0, 0}, nullptr, "AB-D");
    DrawText(graphics, "Courier New", 20, {70, 2, 0, 0}, nullptr, "SEA");
    DrawText(graphics, "Arial", 16, {4, 36, 0, 0}, nullptr, "gjy");
    DrawText(graphics, "Arial", 24, {50, 30, 0, 0}, nullptr, "LNAV");
    DrawText(graphics, "Tahoma", 22, {4, 70, 0, 0}, nullptr, "Text 0%");
}

void TextLineAligns(Graphics& graphics) {
    int x = 2;
    for (const LineAlign align : {LineAlign::kNear, LineAlign::kCenter, LineAlign::kFar}) {
        StringFormat format = GdipCreateStringFormat(0);
        GdipSetStringFormatLineAlign(format, align);
        const auto left = static_cast<float>(x);
        DrawText(graphics, "Courier New", 20, {left, 10, 50, 70}, &format, "ABg");
        DrawText(graphics, "Courier New", 20, {left, 98, 0, 0}, &format, "ABg");
        x += 52;
    }
}

void TextFlags(Graphics& graphics) {
    const StringFormat no_wrap = GdipCreateStringFormat(kFormatNoWrap);
    DrawText(graphics, "Courier New", 20, {10, 10, 52, 40}, &no_wrap, "ONE TWO");
    StringFormat loose = GdipCreateStringFormat(0);
    GdipSetStringFormatFlags(loose, kFormatNoClip);
    DrawText(graphics, "Courier New", 20, {10, 60, 120, 8}, &loose, "CLIP");
}

void TextWraps(Graphics& graphics) {
    DrawText(graphics, "Courier New", 20, {2, 4, 62, 100}, nullptr, "ALP BRA");
    DrawText(graphics, "Courier New", 20, {76, 4, 82, 100}, nullptr, "LONGWORD");
    DrawText(graphics, "Courier New", 20, {2, 64, 0, 0}, nullptr, "ONE\nTWO");
}

void TextTurned(Graphics& graphics) {
    GdipTranslateWorldTransform(graphics, 90, 20);
    GdipRotateWorldTransform(graphics, 40);
    DrawText(graphics, "Arial", 20, {0, 0, 0, 0}, nullptr, "ROT");
    GdipResetWorldTransform(graphics);
    GdipTranslateWorldTransform(graphics, 20, 100);
    GdipRotateWorldTransform(graphics, -90);
    DrawText(graphics, "Arial", 20, {0, 0, 0, 0}, nullptr, "NTH");
}

void TextScaled(Graphics& graphics) {
    GdipScaleWorldTransform(graphics, 2, 2);
    DrawText(graphics, "Courier New", 20, {2, 2, 0, 0}, nullptr, "TWI");
    GdipResetWorldTransform(graphics);
    GdipScaleWorldTransform(graphics, 1.5, 1);
    DrawText(graphics, "Arial", 20, {4, 50, 0, 0}, nullptr, "WID");
    GdipResetWorldTransform(graphics);
    GdipScaleWorldTransform(graphics, 1, 1.5);
    DrawText(graphics, "Arial", 20, {4, 54, 0, 0}, nullptr, "TAL");
}

// Rotation and scale together, with an alignment: the layout is turned as a whole.
void TextAlignedUnderTransform(Graphics& graphics) {
    GdipTranslateWorldTransform(graphics, 80, 60);
    GdipRotateWorldTransform(graphics, 25);
    GdipScaleWorldTransform(graphics, 1.25, 1.25);
    for (const LineAlign align : {LineAlign::kNear, LineAlign::kCenter, LineAlign::kFar}) {
        StringFormat format = GdipCreateStringFormat(0);
        GdipSetStringFormatLineAlign(format, align);
        const float x = align == LineAlign::kNear ? -60.0f : align == LineAlign::kCenter ? -20.0f : 20.0f;
        DrawText(graphics, "Courier New", 16, {x, 0, 0, 0}, &format, "AB");
    }
}

void Images(Graphics& graphics) {
    const Image image = GdipLoadImageFromFile(kCaseImage);
    GdipDrawImageI(graphics, image, 10, 10);
    GdipDrawImageRectI(graphics, image, 60, 10, 72, 48);
    GdipDrawImageRectI(graphics, image, 10, 70, 12, 8);
    GdipTranslateWorldTransform(graphics, 80, 70);
    GdipScaleWorldTransform(graphics, 0.5, 0.5);
    GdipDrawImageRectI(graphics, image, 0, 0, 96, 64);
}

constexpr PictureCase kCases[] = {
    {"arcs", Arcs},
    {"pies", Pies},
    {"ellipses_and_rectangles", EllipsesAndRectangles},
    // Wine takes 0.3 for the third of a tangent that makes a control point, and narrows slanting lines.
    {.name = "open_curve", .draw = OpenCurve, .stray_pixels = 40, .ink = 0.2},
    {.name = "closed_curve", .draw = ClosedCurve, .stray_pixels = 70},
    {.name = "line_widths", .draw = LineWidths, .stray_pixels = 70, .ink = 0.12},
    {.name = "widths_under_transform", .draw = WidthsUnderTransform, .ink = 0.2},
    {"widths_under_uneven_transform", WidthsUnderUnevenTransform},
    {"joins", Joins},
    {"dash_styles", DashStyles},
    {"dash_arrays", DashArrays},
    {"dashes_under_transform", DashesUnderTransform},
    // Dashes of a line of one pixel count in pixels there at any scale, in units here.
    {.name = "dashes_of_thin_pens", .draw = DashesOfThinPens, .at_scale = false},
    {"filled_arrows", FilledArrows},
    {"open_arrows", OpenArrows},
    // Wine's hatches keep their 8 pixels at any scale, ours 8 units.
    {.name = "hatch_horizontal",
     .draw = Hatch<HatchStyle::kHorizontal>,
     .stray_pixels = 60,
     .at_scale = false},
    {.name = "hatch_vertical", .draw = Hatch<HatchStyle::kVertical>, .stray_pixels = 60, .at_scale = false},
    {.name = "hatch_forward_diagonal",
     .draw = Hatch<HatchStyle::kForwardDiagonal>,
     .stray_pixels = 60,
     .at_scale = false},
    {.name = "hatch_backward_diagonal",
     .draw = Hatch<HatchStyle::kBackwardDiagonal>,
     .stray_pixels = 60,
     .at_scale = false},
    {.name = "hatch_cross", .draw = Hatch<HatchStyle::kCross>, .stray_pixels = 60, .at_scale = false},
    {.name = "hatch_diagonal_cross",
     .draw = Hatch<HatchStyle::kDiagonalCross>,
     .stray_pixels = 60,
     .at_scale = false},
    {.name = "hatch_over_picture", .draw = HatchOverPicture, .at_scale = false},
    {"clips_replace_each_other", ClipsReplaceEachOther},
    {"clip_excludes_rectangles", ClipExcludesRectangles},
    {"clip_excludes_without_clip", ClipExcludesWithoutClip},
    {"clip_stays_under_transform", ClipStaysUnderTransform},
    {"fill_rules", FillRules},
    {"path_figures", PathFigures},
    {.name = "transforms", .draw = Transforms, .shift = 0.9},
    {"text_families", TextFamilies},
    {.name = "text_line_aligns", .draw = TextLineAligns, .stray_pixels = 40},
    {"text_flags", TextFlags},
    // The advances and line heights of text are whole pixels there.
    {.name = "text_wraps", .draw = TextWraps, .stray_pixels = 80},
    {"text_turned", TextTurned},
    {.name = "text_scaled", .draw = TextScaled, .stray_pixels = 90},
    {"text_aligned_under_transform", TextAlignedUnderTransform},
    {"images", Images},
};

}  // namespace

std::span<const PictureCase> PictureCases() {
    return kCases;
}
