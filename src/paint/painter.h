#pragma once

#include <string_view>

#include "paint/colours.h"
#include "paint/graphics.h"

// Short words over the drawing operations, so that a format reads like its description. Colours are base
// colours, scaled by the brightness here.

/// Text with its upper left corner at x, y, in the display units' family; sizes in pixels.
void Text(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text);
/// The same in a family of its own.
void TextIn(Graphics& graphics, std::string_view family, double x, double y, float size, Rgb colour,
            std::string_view text);
/// The same with its middle at x.
void CentredText(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text);
void Line(Graphics& graphics, double x1, double y1, double x2, double y2, Rgb colour, float width = 1);
void FilledBox(Graphics& graphics, int x, int y, int width, int height, Rgb colour);
void BoxOutline(Graphics& graphics, int x, int y, int width, int height, Rgb colour, float width_of_line = 1);

/// Keeps the transform and gives it back at the end of the block.
class TransformBlock {
  public:
    explicit TransformBlock(Graphics& graphics) : graphics_(graphics), world_(graphics.world) {}
    ~TransformBlock() { graphics_.world = world_; }
    TransformBlock(const TransformBlock&) = delete;
    TransformBlock& operator=(const TransformBlock&) = delete;

  private:
    Graphics& graphics_;
    Matrix world_;
};
