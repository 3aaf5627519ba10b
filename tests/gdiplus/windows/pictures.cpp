// The drawing operations of paint/graphics.h by GDI+ itself, and a program that draws every case with them:
//   pictures FONTS
// FONTS has a line for each family: its name on the flight deck, a tab, the name of the font that draws it.
// Each picture goes to NAME_PERCENT.argb in the current folder: premultiplied pixels, rows from the top.

// Two functions of GDI have the names of primitives.
#define FillPath GdiFillPath
#define StrokePath GdiStrokePath
#include <windows.h>
// windows.h comes before
#include <gdiplus.h>
#undef FillPath
#undef StrokePath

#include <cstdio>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "gdiplus/cases.h"
#include "paint/fonts.h"

namespace flat = Gdiplus::DllExports;

namespace {

struct Family {
    std::string name;
    std::wstring installed;
};
std::vector<Family> families;

// The one picture being drawn.
Gdiplus::GpGraphics* surface = nullptr;
double surface_scale = 1;

std::wstring Wide(std::string_view ansi) {
    std::wstring wide(ansi.size(), L' ');
    MultiByteToWideChar(CP_ACP, 0, ansi.data(), static_cast<int>(ansi.size()), wide.data(),
                        static_cast<int>(wide.size()));
    return wide;
}

// A pen carries its dash style, which this side hands on as it stands, as one negative number.
bool HasDashStyle(const Pen& pen) {
    return pen.dashes.count == 1 && pen.dashes.values[0] <= 0;
}

void WithPen(const Pen& given, const std::function<void(Gdiplus::GpPen*)>& use) {
    Gdiplus::GpPen* pen = nullptr;
    flat::GdipCreatePen1(given.colour, given.width, Gdiplus::UnitWorld, &pen);
    if (HasDashStyle(given))
        flat::GdipSetPenDashStyle(pen,
                                  static_cast<Gdiplus::DashStyle>(-static_cast<int>(given.dashes.values[0])));
    else if (given.dashes.count > 0)
        flat::GdipSetPenDashArray(pen, given.dashes.values.data(), static_cast<int>(given.dashes.count));
    if (given.compound.count > 0)
        flat::GdipSetPenCompoundArray(pen, given.compound.values.data(),
                                      static_cast<int>(given.compound.count));
    Gdiplus::GpAdjustableArrowCap* cap = nullptr;
    if (given.end_cap.height > 0) {
        flat::GdipCreateAdjustableArrowCap(given.end_cap.height, given.end_cap.width, given.end_cap.filled,
                                           &cap);
        flat::GdipSetPenCustomEndCap(pen, cap);
    }
    use(pen);
    flat::GdipDeletePen(pen);
    if (cap != nullptr) flat::GdipDeleteCustomLineCap(cap);
}

void WithBrush(const Brush& given, const std::function<void(Gdiplus::GpBrush*)>& use) {
    Gdiplus::GpSolidFill* solid = nullptr;
    Gdiplus::GpHatch* hatch = nullptr;
    if (given.hatched)
        flat::GdipCreateHatchBrush(static_cast<Gdiplus::HatchStyle>(given.hatch), given.colour, given.back,
                                   &hatch);
    else
        flat::GdipCreateSolidFill(given.colour, &solid);
    Gdiplus::GpBrush* brush = given.hatched ? static_cast<Gdiplus::GpBrush*>(hatch) : solid;
    use(brush);
    flat::GdipDeleteBrush(brush);
}

// Paths live here while a picture is drawn; a GraphicsPath carries the number of its own as its only point.
std::vector<Gdiplus::GpPath*> paths;

Gdiplus::GpPath* RealPath(const GraphicsPath& path) {
    return paths[static_cast<std::size_t>(path.points[0].x)];
}

template <class Real, class Point>
std::vector<Real> RealPoints(std::span<const Point> points) {
    std::vector<Real> real;
    for (const Point& point : points) real.push_back({point.x, point.y});
    return real;
}

}  // namespace

std::uint16_t FamilyOf(std::string_view name) {
    for (std::size_t i = 0; i < families.size(); ++i)
        if (families[i].name == name) return static_cast<std::uint16_t>(i);
    return 0;
}

Graphics GdipCreateGraphics(DrawList& list, float width, float height) {
    list.width = width;
    list.height = height;
    return {.list = &list};
}
void GdipGraphicsClear(Graphics&, Argb colour) {
    flat::GdipGraphicsClear(surface, colour);
}
void GdipResetWorldTransform(Graphics&) {
    const auto scale = static_cast<float>(surface_scale);
    flat::GdipResetWorldTransform(surface);
    flat::GdipScaleWorldTransform(surface, scale, scale, Gdiplus::MatrixOrderPrepend);
}
void GdipScaleWorldTransform(Graphics&, double sx, double sy) {
    flat::GdipScaleWorldTransform(surface, static_cast<float>(sx), static_cast<float>(sy),
                                  Gdiplus::MatrixOrderPrepend);
}
void GdipTranslateWorldTransform(Graphics&, double dx, double dy) {
    flat::GdipTranslateWorldTransform(surface, static_cast<float>(dx), static_cast<float>(dy),
                                      Gdiplus::MatrixOrderPrepend);
}
void GdipRotateWorldTransform(Graphics&, double degrees) {
    flat::GdipRotateWorldTransform(surface, static_cast<float>(degrees), Gdiplus::MatrixOrderPrepend);
}

void GdipSetClipPath(Graphics&, const GraphicsPath& path) {
    flat::GdipSetClipPath(surface, RealPath(path), Gdiplus::CombineModeReplace);
}
void GdipSetClipRectI(Graphics&, int x, int y, int width, int height) {
    flat::GdipSetClipRectI(surface, x, y, width, height, Gdiplus::CombineModeExclude);
}
void GdipResetClip(Graphics&) {
    flat::GdipResetClip(surface);
}

void GdipSetPenDashStyle(Pen& pen, int style) {
    pen.dashes.count = 1;
    pen.dashes.values[0] = static_cast<float>(-style);
}
void GdipSetPenDashArray(Pen& pen, std::span<const float> dashes) {
    pen.dashes.count = dashes.size();
    std::copy(dashes.begin(), dashes.end(), pen.dashes.values.begin());
}
void GdipSetPenCompoundArray(Pen& pen, std::span<const float> edges) {
    pen.compound.count = edges.size();
    std::copy(edges.begin(), edges.end(), pen.compound.values.begin());
}

void GdipDrawLineI(Graphics&, const Pen& pen, int x1, int y1, int x2, int y2) {
    WithPen(pen, [&](auto* real) { flat::GdipDrawLineI(surface, real, x1, y1, x2, y2); });
}
void GdipDrawLines(Graphics&, const Pen& pen, std::span<const PaintPoint> points) {
    const auto real_points = RealPoints<Gdiplus::PointF>(points);
    WithPen(pen, [&](auto* real) {
        flat::GdipDrawLines(surface, real, real_points.data(), static_cast<int>(real_points.size()));
    });
}
void GdipDrawLinesI(Graphics&, const Pen& pen, std::span<const IntPoint> points) {
    const auto real_points = RealPoints<Gdiplus::Point>(points);
    WithPen(pen, [&](auto* real) {
        flat::GdipDrawLinesI(surface, real, real_points.data(), static_cast<int>(real_points.size()));
    });
}
void GdipDrawRectangleI(Graphics&, const Pen& pen, int x, int y, int width, int height) {
    WithPen(pen, [&](auto* real) { flat::GdipDrawRectangleI(surface, real, x, y, width, height); });
}
void GdipDrawEllipseI(Graphics&, const Pen& pen, int x, int y, int width, int height) {
    WithPen(pen, [&](auto* real) { flat::GdipDrawEllipseI(surface, real, x, y, width, height); });
}
void GdipDrawArcI(Graphics&, const Pen& pen, int x, int y, int width, int height, double start,
                  double sweep) {
    WithPen(pen, [&](auto* real) {
        flat::GdipDrawArcI(surface, real, x, y, width, height, static_cast<float>(start),
                           static_cast<float>(sweep));
    });
}
void GdipDrawCurveI(Graphics&, const Pen& pen, std::span<const IntPoint> points) {
    const auto real_points = RealPoints<Gdiplus::Point>(points);
    WithPen(pen, [&](auto* real) {
        // GdipDrawCurveI is documented to have this tension; Wine's has 1.
        constexpr float kTension = 0.5f;
        flat::GdipDrawCurve2I(surface, real, real_points.data(), static_cast<int>(real_points.size()),
                              kTension);
    });
}
void GdipDrawPolygonI(Graphics&, const Pen& pen, std::span<const IntPoint> points) {
    const auto real_points = RealPoints<Gdiplus::Point>(points);
    WithPen(pen, [&](auto* real) {
        flat::GdipDrawPolygonI(surface, real, real_points.data(), static_cast<int>(real_points.size()));
    });
}
void GdipDrawPath(Graphics&, const Pen& pen, const GraphicsPath& path) {
    WithPen(pen, [&](auto* real) { flat::GdipDrawPath(surface, real, RealPath(path)); });
}

void GdipFillRectangleI(Graphics&, const Brush& brush, int x, int y, int width, int height) {
    WithBrush(brush, [&](auto* real) { flat::GdipFillRectangleI(surface, real, x, y, width, height); });
}
void GdipFillEllipseI(Graphics&, const Brush& brush, int x, int y, int width, int height) {
    WithBrush(brush, [&](auto* real) { flat::GdipFillEllipseI(surface, real, x, y, width, height); });
}
void GdipFillPieI(Graphics&, const Brush& brush, int x, int y, int width, int height, double start,
                  double sweep) {
    WithBrush(brush, [&](auto* real) {
        flat::GdipFillPieI(surface, real, x, y, width, height, static_cast<float>(start),
                           static_cast<float>(sweep));
    });
}
void GdipFillPolygon(Graphics&, const Brush& brush, std::span<const PaintPoint> points) {
    const auto real_points = RealPoints<Gdiplus::PointF>(points);
    WithBrush(brush, [&](auto* real) {
        flat::GdipFillPolygon(surface, real, real_points.data(), static_cast<int>(real_points.size()),
                              Gdiplus::FillModeAlternate);
    });
}
void GdipFillPolygonI(Graphics&, const Brush& brush, std::span<const IntPoint> points) {
    const auto real_points = RealPoints<Gdiplus::Point>(points);
    WithBrush(brush, [&](auto* real) {
        flat::GdipFillPolygonI(surface, real, real_points.data(), static_cast<int>(real_points.size()),
                               Gdiplus::FillModeAlternate);
    });
}
void GdipFillClosedCurveI(Graphics&, const Brush& brush, std::span<const IntPoint> points) {
    const auto real_points = RealPoints<Gdiplus::Point>(points);
    WithBrush(brush, [&](auto* real) {
        flat::GdipFillClosedCurveI(surface, real, real_points.data(), static_cast<int>(real_points.size()));
    });
}
void GdipFillPath(Graphics&, const Brush& brush, const GraphicsPath& path) {
    WithBrush(brush, [&](auto* real) { flat::GdipFillPath(surface, real, RealPath(path)); });
}

GraphicsPath GdipCreatePath(bool winding) {
    Gdiplus::GpPath* real = nullptr;
    flat::GdipCreatePath(winding ? Gdiplus::FillModeWinding : Gdiplus::FillModeAlternate, &real);
    paths.push_back(real);
    return {.points = {{static_cast<float>(paths.size() - 1), 0}}};
}
void GdipAddPathLineI(GraphicsPath& path, int x1, int y1, int x2, int y2) {
    flat::GdipAddPathLineI(RealPath(path), x1, y1, x2, y2);
}
void GdipAddPathArcI(GraphicsPath& path, int x, int y, int width, int height, double start, double sweep) {
    flat::GdipAddPathArcI(RealPath(path), x, y, width, height, static_cast<float>(start),
                          static_cast<float>(sweep));
}
void GdipAddPathRectangleI(GraphicsPath& path, int x, int y, int width, int height) {
    flat::GdipAddPathRectangleI(RealPath(path), x, y, width, height);
}
void GdipAddPathPolygonI(GraphicsPath& path, std::span<const IntPoint> points) {
    const auto real_points = RealPoints<Gdiplus::Point>(points);
    flat::GdipAddPathPolygonI(RealPath(path), real_points.data(), static_cast<int>(real_points.size()));
}
void GdipClosePathFigure(GraphicsPath& path) {
    flat::GdipClosePathFigure(RealPath(path));
}

void GdipDrawString(Graphics&, std::string_view text, const Font& font, const LayoutRect& rect,
                    const StringFormat* format, const Brush& brush) {
    Gdiplus::GpFontFamily* family = nullptr;
    Gdiplus::GpFont* real_font = nullptr;
    Gdiplus::GpStringFormat* real_format = nullptr;
    flat::GdipCreateFontFamilyFromName(families[font.family].installed.c_str(), nullptr, &family);
    flat::GdipCreateFont(family, font.size, Gdiplus::FontStyleBold, Gdiplus::UnitPixel, &real_font);
    if (format != nullptr) {
        flat::GdipCreateStringFormat(0, LANG_NEUTRAL, &real_format);
        flat::GdipSetStringFormatFlags(real_format, format->flags);
        flat::GdipSetStringFormatLineAlign(real_format,
                                           static_cast<Gdiplus::StringAlignment>(format->line_align));
    }
    const std::wstring wide = Wide(text);
    const Gdiplus::RectF layout(rect.x, rect.y, rect.width, rect.height);
    WithBrush(brush, [&](auto* real) {
        flat::GdipDrawString(surface, wide.c_str(), -1, real_font, &layout, real_format, real);
    });
    if (real_format != nullptr) flat::GdipDeleteStringFormat(real_format);
    flat::GdipDeleteFont(real_font);
    flat::GdipDeleteFontFamily(family);
}

Image GdipLoadImageFromFile(std::string_view file) {
    return {.file = std::string(file)};
}
void GdipDrawImageI(Graphics&, const Image& image, int x, int y) {
    Gdiplus::GpImage* real = nullptr;
    flat::GdipLoadImageFromFile(Wide(image.file).c_str(), &real);
    flat::GdipDrawImageI(surface, real, x, y);
    flat::GdipDisposeImage(real);
}
void GdipDrawImageRectI(Graphics&, const Image& image, int x, int y, int width, int height) {
    Gdiplus::GpImage* real = nullptr;
    flat::GdipLoadImageFromFile(Wide(image.file).c_str(), &real);
    flat::GdipDrawImageRectI(surface, real, x, y, width, height);
    flat::GdipDisposeImage(real);
}

namespace {

void ReadFamilies(const char* file) {
    std::ifstream lines(file);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t tab = line.find('\t');
        if (tab != std::string::npos) families.push_back({line.substr(0, tab), Wide(line.substr(tab + 1))});
    }
}

void DrawCase(const PictureCase& picture, int percent) {
    const int width = kCaseWidth * percent / 100, height = kCaseHeight * percent / 100;
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width * height));
    Gdiplus::GpBitmap* bitmap = nullptr;
    flat::GdipCreateBitmapFromScan0(width, height, width * 4, PixelFormat32bppPARGB,
                                    reinterpret_cast<BYTE*>(pixels.data()), &bitmap);
    flat::GdipGetImageGraphicsContext(bitmap, &surface);
    flat::GdipSetTextRenderingHint(surface, Gdiplus::TextRenderingHintAntiAlias);
    flat::GdipSetSmoothingMode(surface, Gdiplus::SmoothingModeHighQuality);
    flat::GdipSetCompositingMode(surface, Gdiplus::CompositingModeSourceOver);
    flat::GdipSetInterpolationMode(surface, Gdiplus::InterpolationModeHighQualityBicubic);
    surface_scale = percent / 100.0;
    DrawList list;
    Graphics graphics = GdipCreateGraphics(list, kCaseWidth, kCaseHeight);
    GdipResetWorldTransform(graphics);
    picture.draw(graphics);
    for (Gdiplus::GpPath* path : paths) flat::GdipDeletePath(path);
    paths.clear();
    flat::GdipDeleteGraphics(surface);
    flat::GdipDisposeImage(bitmap);
    std::ofstream file(std::string(picture.name) + "_" + std::to_string(percent) + ".argb", std::ios::binary);
    file.write(reinterpret_cast<const char*>(pixels.data()), static_cast<std::streamsize>(pixels.size() * 4));
}

}  // namespace

int main(int count, char** words) {
    if (count != 2) return 2;
    ReadFamilies(words[1]);
    if (families.empty()) return 2;
    ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) return 1;
    for (const PictureCase& picture : PictureCases()) {
        DrawCase(picture, 100);
        if (picture.at_scale) DrawCase(picture, 150);
    }
    Gdiplus::GdiplusShutdown(token);
    return 0;
}
