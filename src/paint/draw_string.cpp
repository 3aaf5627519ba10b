#include <algorithm>
#include <cmath>

#include "paint/fonts.h"
#include "paint/graphics.h"
#include "paint/recording.h"

namespace {

// Larger letters are an error of whoever computed them, and slow to paint.
bool IsReadable(float size, const LocalAxes& axes) {
    constexpr float kLargest = 2000, kMostLean = 50;
    return size > 0 && size * std::max(axes.stretch, 1.0f) <= kLargest && std::fabs(axes.skew) <= kMostLean;
}

// As many characters as fit into `width` ems, one at least.
std::string_view Fitting(std::string_view line, std::uint16_t family, float width) {
    std::size_t fits = std::min<std::size_t>(line.size(), 1);
    while (fits < line.size() && TextWidth(family, line.substr(0, fits + 1)) <= width) ++fits;
    return line.substr(0, fits);
}

// How a text is laid out in a rectangle `width` ems wide; 0 = without end.
struct LineLayout {
    std::uint16_t family;
    float width;
    bool wraps;  // else a line is cut at the last character that fits
};

// The characters of `text` that stand on the next line: up to a line feed, or as many words as fit. They are
// cut off its front.
std::string_view TakeLine(std::string_view& text, const LineLayout& layout) {
    std::string_view line = text.substr(0, text.find('\n'));
    const std::size_t to_line_feed = line.size();
    const bool too_wide = layout.width > 0 && TextWidth(layout.family, line) > layout.width;
    if (too_wide && layout.wraps) {
        std::size_t fits = 0;
        for (std::size_t i = 1; i <= line.size(); ++i) {
            if (i < line.size() && line[i] != ' ') continue;
            if (TextWidth(layout.family, line.substr(0, i)) > layout.width) break;
            fits = i;
        }
        // One word wider than the rectangle breaks where it must.
        line = fits > 0 ? line.substr(0, fits) : Fitting(line, layout.family, layout.width);
        text.remove_prefix(line.size());
    } else {
        if (too_wide) line = Fitting(line, layout.family, layout.width);
        text.remove_prefix(to_line_feed);
    }
    if (!text.empty() && (text.front() == '\n' || text.front() == ' ')) text.remove_prefix(1);
    return line;
}

}  // namespace

void GdipDrawString(Graphics& graphics, std::string_view text, const Font& font, const LayoutRect& rect,
                    const StringFormat* format, const Brush& brush) {
    if (graphics.list == nullptr || !(font.size > 0)) return;
    static constexpr StringFormat kDefault{};
    const StringFormat& layout = format != nullptr ? *format : kDefault;
    DrawList& list = *graphics.list;
    const FontMetrics& metrics = MetricsOf(font.family);
    const float padding = font.size / 6;
    const float room = rect.width > 0 ? std::max((rect.width - 2 * padding) / font.size, 0.01f) : 0;
    const LineLayout lines_of{font.family, room, (layout.flags & kFormatNoWrap) == 0};

    float top = rect.y;
    if (layout.line_align != LineAlign::kNear) {
        int lines = 0;
        for (std::string_view rest = text; !rest.empty(); ++lines) TakeLine(rest, lines_of);
        const float height = static_cast<float>(lines) * metrics.line_spacing * font.size;
        const float free = rect.height - height;
        top += layout.line_align == LineAlign::kCenter ? free / 2 : free;
    }

    const Growth growth = GrowthOf(graphics.world);
    const auto size = static_cast<float>(font.size * growth.height);
    if (!IsReadable(size, growth.axes)) return;
    while (!text.empty()) {
        const std::string_view line = TakeLine(text, lines_of);
        if (rect.height > 0 && (layout.flags & kFormatNoClip) == 0 && top >= rect.y + rect.height) break;
        float left = rect.x + padding;
        if ((layout.flags & kFormatRightToLeft) != 0)
            left = rect.x + rect.width - padding - TextWidth(font.family, line) * font.size;
        const PaintPoint origin = Map(graphics.world, left, top + metrics.ascent * font.size);
        if (!line.empty() && IsNear(origin)) {
            const std::size_t first = list.text.size();
            AppendUtf8(list.text, line);
            TextRun& run = AddPrimitive<TextRun>(list);
            run.x = origin.x;
            run.y = origin.y;
            run.size = size;
            run.axes = growth.axes;
            run.family = font.family;
            run.colour = brush.colour;
            run.text = RangeOf(first, list.text.size());
        }
        top += metrics.line_spacing * font.size;
    }
}
