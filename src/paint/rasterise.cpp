#include "paint/rasterise.h"

#include <cairo-ft.h>
#include <cairo.h>
#include <ft2build.h>
#include FT_FREETYPE_H

#include <algorithm>
#include <map>
#include <mutex>

#include "base/angles.h"
#include "paint/fonts.h"
#include "paint/image_store.h"

namespace {

// The faces in use, shared by all threads under one lock: a face may serve one thread at a time.
class RasterFonts {
  public:
    ~RasterFonts() {
        for (auto& [family, face] : faces_) {
            cairo_font_face_destroy(face.cairo);
            if (face.file != nullptr) FT_Done_Face(face.file);
        }
        if (library_ != nullptr) FT_Done_FreeType(library_);
    }

    /// Null when the family has no font file.
    cairo_font_face_t* FaceOf(std::uint16_t family) {
        const auto found = faces_.find(family);
        if (found != faces_.end()) return found->second.cairo;
        Face face{};
        if (library_ == nullptr && FT_Init_FreeType(&library_) != 0) library_ = nullptr;
        const std::string& file = FontFile(family);
        if (library_ != nullptr && !file.empty() && FT_New_Face(library_, file.c_str(), 0, &face.file) == 0)
            face.cairo = cairo_ft_font_face_create_for_ft_face(face.file, FT_LOAD_NO_HINTING);
        return faces_.emplace(family, face).first->second.cairo;
    }

    std::mutex lock;

  private:
    struct Face {
        FT_Face file = nullptr;
        cairo_font_face_t* cairo = nullptr;
    };
    FT_Library library_ = nullptr;
    std::map<std::uint16_t, Face> faces_;
};

RasterFonts raster_fonts;

void SetColour(cairo_t* cairo, Argb colour) {
    const auto part = [&](int shift) { return (colour >> shift & 255) / 255.0; };
    cairo_set_source_rgba(cairo, part(16), part(8), part(0), part(24));
}

// Letters stand where they are drawn, unbent.
void SetFontOptions(cairo_t* cairo) {
    cairo_font_options_t* options = cairo_font_options_create();
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    cairo_set_font_options(cairo, options);
    cairo_font_options_destroy(options);
}

struct Painter {
    const DrawList& list;
    cairo_t* cairo;
    double half_x, half_y;  // of a pixel, in the logical frame

    void Trace(const PaintPath& path, double dx = 0, double dy = 0) const {
        cairo_new_path(cairo);
        const PaintPoint* p = list.points.data() + path.points.first;
        for (std::size_t i = 0; i < path.verbs.count; ++i) {
            switch (list.verbs[path.verbs.first + i]) {
                case PathVerb::kMove:
                    cairo_move_to(cairo, p->x + dx, p->y + dy);
                    ++p;
                    break;
                case PathVerb::kLine:
                    cairo_line_to(cairo, p->x + dx, p->y + dy);
                    ++p;
                    break;
                case PathVerb::kCubic:
                    cairo_curve_to(cairo, p[0].x + dx, p[0].y + dy, p[1].x + dx, p[1].y + dy, p[2].x + dx,
                                   p[2].y + dy);
                    p += 3;
                    break;
                case PathVerb::kClose:
                    cairo_close_path(cairo);
                    break;
            }
        }
        cairo_set_fill_rule(cairo, path.winding ? CAIRO_FILL_RULE_WINDING : CAIRO_FILL_RULE_EVEN_ODD);
    }

    void ApplyAxes(const LocalAxes& axes) const {
        cairo_rotate(cairo, axes.rotation * kRadPerDeg);
        cairo_matrix_t matrix;
        cairo_matrix_init(&matrix, axes.stretch, 0, axes.skew, 1, 0, 0);
        cairo_transform(cairo, &matrix);
    }

    void operator()(const ClearSurface& clear) const {
        cairo_save(cairo);
        cairo_set_operator(cairo, CAIRO_OPERATOR_SOURCE);
        SetColour(cairo, clear.colour);
        cairo_paint(cairo);
        cairo_restore(cairo);
    }
    void operator()(const FillPath& fill) const {
        Trace(fill.path);
        SetColour(cairo, fill.colour);
        cairo_fill(cairo);
    }
    void operator()(const StrokePath& stroke) const {
        // A line's middle runs through pixel centres, so that a one-pixel line is one pixel wide and sharp.
        Trace(stroke.path, half_x, half_y);
        SetColour(cairo, stroke.colour);
        const double least = 2 * std::min(half_x, half_y), width = stroke.width;
        const double across = std::max(width, least), along = std::max(width * stroke.axes.stretch, least);
        cairo_set_line_width(cairo, across);
        double dashes[16];
        const std::size_t count = std::min<std::size_t>(stroke.dashes.count, std::size(dashes));
        for (std::size_t i = 0; i < count; ++i) dashes[i] = list.dashes[stroke.dashes.first + i];
        cairo_set_dash(cairo, dashes, static_cast<int>(count), 0);
        constexpr cairo_line_cap_t kCaps[] = {CAIRO_LINE_CAP_BUTT, CAIRO_LINE_CAP_SQUARE,
                                              CAIRO_LINE_CAP_ROUND};
        constexpr cairo_line_join_t kJoins[] = {CAIRO_LINE_JOIN_MITER, CAIRO_LINE_JOIN_BEVEL,
                                                CAIRO_LINE_JOIN_ROUND};
        cairo_set_line_cap(cairo, kCaps[static_cast<int>(stroke.cap)]);
        cairo_set_line_join(cairo, kJoins[static_cast<int>(stroke.join)]);
        const LocalAxes axes{stroke.axes.rotation, static_cast<float>(along / across), stroke.axes.skew};
        if (axes == LocalAxes{}) return cairo_stroke(cairo);
        cairo_save(cairo);
        ApplyAxes(axes);
        cairo_stroke(cairo);
        cairo_restore(cairo);
    }
    void operator()(const TextRun& run) const {
        const std::lock_guard guard(raster_fonts.lock);
        cairo_font_face_t* face = raster_fonts.FaceOf(run.family);
        if (face == nullptr) return;
        cairo_set_font_face(cairo, face);
        cairo_set_font_size(cairo, run.size);
        SetColour(cairo, run.colour);
        const std::string text = list.text.substr(run.text.first, run.text.count);
        const double shift = static_cast<double>(MetricsOf(run.family).point_shift * run.size);
        if (run.axes == LocalAxes{}) {
            return ShowText(text, run.x, run.y, shift);
        }
        cairo_save(cairo);
        cairo_translate(cairo, run.x, run.y);
        ApplyAxes(run.axes);
        ShowText(text, 0, 0, shift);
        cairo_restore(cairo);
    }
    // Points move by `shift` to the right.
    void ShowText(const std::string& text, double x, double y, double shift) const {
        cairo_glyph_t* glyphs = nullptr;
        int count = 0;
        const bool moves = shift != 0 && std::ranges::any_of(text, IsPoint);
        if (!moves ||
            cairo_scaled_font_text_to_glyphs(cairo_get_scaled_font(cairo), x, y, text.c_str(), -1, &glyphs,
                                             &count, nullptr, nullptr, nullptr) != CAIRO_STATUS_SUCCESS) {
            cairo_move_to(cairo, x, y);
            return cairo_show_text(cairo, text.c_str());
        }
        int place = -1;  // of the character, which is its glyph's
        for (const char c : text) {
            const bool continues = (static_cast<unsigned char>(c) & 0xc0) == 0x80;  // of a character of UTF-8
            if (!continues) ++place;
            if (place < count && IsPoint(c)) glyphs[place].x += shift;
        }
        cairo_show_glyphs(cairo, glyphs, count);
        cairo_glyph_free(glyphs);
    }
    void operator()(const DrawnImage& image) const {
        const auto pixels =
            ImagePixelsOf(std::string_view(list.text).substr(image.file.first, image.file.count));
        if (pixels == nullptr) return;
        // Cairo only reads them.
        auto* data = reinterpret_cast<unsigned char*>(const_cast<std::uint32_t*>(pixels->pixels.data()));
        cairo_surface_t* picture = cairo_image_surface_create_for_data(
            data, CAIRO_FORMAT_ARGB32, pixels->width, pixels->height, pixels->width * 4);
        cairo_save(cairo);
        cairo_translate(cairo, image.x, image.y);
        cairo_rotate(cairo, image.rotation * kRadPerDeg);
        cairo_rectangle(cairo, 0, 0, image.width, image.height);
        // A picture's first pixel has its middle where the first pixel of the place has it.
        const double grow_x = image.width / static_cast<double>(pixels->width);
        const double grow_y = image.height / static_cast<double>(pixels->height);
        cairo_translate(cairo, half_x - grow_x / 2, half_y - grow_y / 2);
        cairo_scale(cairo, grow_x, grow_y);
        cairo_set_source_surface(cairo, picture, 0, 0);
        cairo_fill(cairo);
        cairo_restore(cairo);
        cairo_surface_destroy(picture);
    }
    void operator()(const ClipIn& clip) const {
        Trace(clip.path);
        cairo_clip(cairo);
    }
    void operator()(const ClipOut& clip) const {
        Trace(clip.path);
        cairo_rectangle(cairo, -1e4, -1e4, 2e4, 2e4);
        cairo_set_fill_rule(cairo, CAIRO_FILL_RULE_EVEN_ODD);
        cairo_clip(cairo);
    }
    void operator()(const Unclip&) const { cairo_reset_clip(cairo); }
};

}  // namespace

PixelImage Rasterise(const DrawList& list, int width, int height) {
    if (width < 1 || height < 1 || width > 8192 || height > 8192) return {};
    PixelImage image{width, height, std::vector<std::uint32_t>(static_cast<std::size_t>(width * height))};
    RasteriseOnto(list, width, height, image.pixels.data());
    return image;
}

void RasteriseOnto(const DrawList& list, int width, int height, std::uint32_t* pixels) {
    std::fill_n(pixels, static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0);
    cairo_surface_t* surface = cairo_image_surface_create_for_data(
        reinterpret_cast<unsigned char*>(pixels), CAIRO_FORMAT_ARGB32, width, height, width * 4);
    cairo_t* cairo = cairo_create(surface);
    const double sx = list.width > 0 ? width / static_cast<double>(list.width) : 1;
    const double sy = list.height > 0 ? height / static_cast<double>(list.height) : 1;
    cairo_scale(cairo, sx, sy);
    cairo_set_tolerance(cairo, 0.1);
    SetFontOptions(cairo);
    const Painter painter{list, cairo, 0.5 / sx, 0.5 / sy};
    for (const Primitive& primitive : list.primitives) std::visit(painter, primitive);
    cairo_destroy(cairo);
    cairo_surface_flush(surface);
    cairo_surface_destroy(surface);
}
