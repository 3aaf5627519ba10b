#include "paint/draw_list.h"

#include <charconv>
#include <cmath>

#include "paint/fonts.h"

namespace {

// Coordinates print to a hundredth: below what a pixel shows, and equal pictures print equal lines.
void AddNumber(std::string& line, double value) {
    const double rounded = std::round(value * 100) / 100;
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, rounded == 0 ? 0.0 : rounded).ptr;
    line.append(text, end);
}

void AddNumbers(std::string& line, std::initializer_list<double> values) {
    for (const double value : values) {
        line += ' ';
        AddNumber(line, value);
    }
}

void AddColour(std::string& line, Argb colour, bool alpha) {
    const unsigned parts[] = {colour >> 16 & 255, colour >> 8 & 255, colour & 255, colour >> 24};
    for (int i = 0; i < (alpha ? 4 : 3); ++i) line += (i > 0 ? "," : "") + std::to_string(parts[i]);
}

void AddPath(std::string& line, const DrawList& list, const PaintPath& path) {
    std::size_t point = path.points.first;
    for (std::size_t i = 0; i < path.verbs.count; ++i) {
        const PathVerb verb = list.verbs[path.verbs.first + i];
        line += verb == PathVerb::kMove    ? " M"
                : verb == PathVerb::kLine  ? " L"
                : verb == PathVerb::kCubic ? " C"
                                           : " Z";
        const int count = verb == PathVerb::kCubic ? 3 : verb == PathVerb::kClose ? 0 : 1;
        for (int k = 0; k < count; ++k, ++point)
            AddNumbers(line, {list.points[point].x, list.points[point].y});
    }
}

std::string TextOf(const DrawList& list, PaintRange range) {
    return list.text.substr(range.first, range.count);
}

struct Describer {
    const DrawList& list;

    std::string operator()(const ClearSurface& clear) const {
        std::string line = "clear ";
        AddColour(line, clear.colour, true);
        return line;
    }
    std::string operator()(const FillPath& fill) const {
        std::string line = "fill ";
        AddColour(line, fill.colour, true);
        AddPath(line, list, fill.path);
        return line;
    }
    std::string operator()(const StrokePath& stroke) const {
        std::string line = "stroke ";
        AddColour(line, stroke.colour, true);
        AddNumbers(line, {stroke.width});
        for (std::size_t i = 0; i < stroke.dashes.count; ++i) {
            line += i == 0 ? " dash " : ",";
            AddNumber(line, list.dashes[stroke.dashes.first + i]);
        }
        AddPath(line, list, stroke.path);
        return line;
    }
    std::string operator()(const TextRun& run) const { return "text " + DescribeText(list, run); }
    std::string operator()(const DrawnImage& image) const {
        std::string line = "image " + TextOf(list, image.file);
        AddNumbers(line, {image.x, image.y, image.width, image.height});
        return line;
    }
    std::string operator()(const ClipIn& clip) const {
        std::string line = "clip";
        AddPath(line, list, clip.path);
        return line;
    }
    std::string operator()(const ClipOut& clip) const {
        std::string line = "clipout";
        AddPath(line, list, clip.path);
        return line;
    }
    std::string operator()(const Unclip&) const { return "unclip"; }
};

}  // namespace

void ClearList(DrawList& list, float width, float height) {
    list.width = width;
    list.height = height;
    list.primitives.clear();
    list.verbs.clear();
    list.points.clear();
    list.dashes.clear();
    list.text.clear();
}

std::string DescribePrimitive(const DrawList& list, const Primitive& primitive) {
    return std::visit(Describer{list}, primitive);
}

std::string DescribeText(const DrawList& list, const TextRun& run) {
    std::string line;
    AddNumber(line, run.x);
    AddNumbers(line, {run.y, run.size});
    line += ' ';
    line += FamilyName(run.family);
    line += ' ';
    AddColour(line, run.colour, false);
    line += " \"" + TextOf(list, run.text) + '"';
    return line;
}
