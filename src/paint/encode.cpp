#include "paint/encode.h"

#include <bit>
#include <cmath>

namespace {

constexpr double kUnit = 32;

void PutVarint(std::string& to, std::uint32_t value) {
    for (; value >= 0x80; value >>= 7) to += static_cast<char>(value | 0x80);
    to += static_cast<char>(value);
}

void PutSigned(std::string& to, int value) {
    PutVarint(to, static_cast<std::uint32_t>(value) << 1 ^ static_cast<std::uint32_t>(value >> 31));
}

int Fixed(double value, double unit = kUnit) {
    const double scaled = std::round(value * unit);
    return std::isfinite(scaled) && std::fabs(scaled) < 1e9 ? static_cast<int>(scaled) : 0;
}

void PutWord(std::string& to, std::uint32_t value) {
    for (int shift = 0; shift < 32; shift += 8) to += static_cast<char>(value >> shift & 255);
}

struct Encoder {
    const DrawList& list;
    std::string& to;

    void PutPath(const PaintPath& path) const {
        to += static_cast<char>(path.winding ? 1 : 0);
        PutVarint(to, path.verbs.count);
        for (std::size_t i = 0; i < path.verbs.count; ++i)
            to += static_cast<char>(list.verbs[path.verbs.first + i]);
        int x = 0, y = 0;
        for (std::size_t i = 0; i < path.points.count; ++i) {
            const PaintPoint& point = list.points[path.points.first + i];
            const int next_x = Fixed(point.x), next_y = Fixed(point.y);
            PutSigned(to, next_x - x);
            PutSigned(to, next_y - y);
            x = next_x;
            y = next_y;
        }
    }
    void PutAxes(const LocalAxes& axes) const {
        PutSigned(to, Fixed(axes.rotation));
        PutSigned(to, Fixed(axes.stretch, 1024));
        PutSigned(to, Fixed(axes.skew, 1024));
    }
    void PutText(PaintRange text) const {
        PutVarint(to, text.count);
        to.append(list.text, text.first, text.count);
    }
    void Begin(int kind) const { to += static_cast<char>(kind); }

    void operator()(const ClearSurface& clear) const {
        Begin(0);
        PutWord(to, clear.colour);
    }
    void operator()(const FillPath& fill) const {
        Begin(1);
        PutWord(to, fill.colour);
        PutPath(fill.path);
    }
    void operator()(const StrokePath& stroke) const {
        Begin(2);
        PutWord(to, stroke.colour);
        PutSigned(to, Fixed(stroke.width));
        const bool round = stroke.axes == LocalAxes{};
        to += static_cast<char>(static_cast<int>(stroke.cap) + 4 * static_cast<int>(stroke.join) +
                                (round ? 0 : 16));
        if (!round) PutAxes(stroke.axes);
        PutVarint(to, stroke.dashes.count);
        for (std::size_t i = 0; i < stroke.dashes.count; ++i)
            PutSigned(to, Fixed(list.dashes[stroke.dashes.first + i]));
        PutPath(stroke.path);
    }
    void operator()(const TextRun& run) const {
        Begin(3);
        PutWord(to, run.colour);
        for (const float value : {run.x, run.y, run.size}) PutSigned(to, Fixed(value));
        PutAxes(run.axes);
        to += static_cast<char>(run.family);
        PutText(run.text);
    }
    void operator()(const DrawnImage& image) const {
        Begin(4);
        for (const float value : {image.x, image.y, image.width, image.height, image.rotation})
            PutSigned(to, Fixed(value));
        PutText(image.file);
    }
    void operator()(const ClipIn& clip) const {
        Begin(5);
        PutPath(clip.path);
    }
    void operator()(const ClipOut& clip) const {
        Begin(6);
        PutPath(clip.path);
    }
    void operator()(const Unclip&) const { Begin(7); }
};

}  // namespace

void EncodeDrawList(const DrawList& list, std::string& bytes) {
    PutWord(bytes, std::bit_cast<std::uint32_t>(list.width));
    PutWord(bytes, std::bit_cast<std::uint32_t>(list.height));
    PutVarint(bytes, static_cast<std::uint32_t>(list.primitives.size()));
    std::string one;
    for (const Primitive& primitive : list.primitives) {
        one.clear();
        std::visit(Encoder{list, one}, primitive);
        PutVarint(bytes, static_cast<std::uint32_t>(one.size()));
        bytes += one;
    }
}
