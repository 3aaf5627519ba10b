#pragma once

#include <string>

#include "display/formats/format.h"
#include "paint/draw_list.h"

/// All of a format's picture as the command `draws` prints it.
inline std::string PrintedPicture(void (*draw)(Graphics& graphics, const ContentPlace& place),
                                  const ContentPlace& place) {
    DrawList list;
    Graphics graphics = GdipCreateGraphics(list, 564, 424);
    draw(graphics, place);
    std::string text;
    for (const Primitive& primitive : list.primitives) text += DescribePrimitive(list, primitive) + "\n";
    return text;
}

inline bool Has(const std::string& picture, const std::string& words) {
    return picture.find(words) != std::string::npos;
}
