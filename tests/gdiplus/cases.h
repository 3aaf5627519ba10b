#pragma once

#include <span>

#include "paint/graphics.h"

// Pictures that are drawn twice, by this system's drawing operations and by GDI+ itself, and compared. This
// file and cases.cpp are compiled for both.

constexpr int kCaseWidth = 160, kCaseHeight = 120;

/// The picture that image cases draw, in the folder where both sides run.
constexpr const char* kCaseImage = "picture.png";
constexpr int kCaseImageWidth = 24, kCaseImageHeight = 16;

/// GDI+ as Wine has it draws edges without anti-aliasing: a pixel is inked when its upper left corner is. So
/// every picture has strays along its slanting edges, and curved fills lie up to half a pixel to the right
/// and below.
struct PictureCase {
    const char* name;
    void (*draw)(Graphics& graphics);
    /// Pixels that may find no like pixel among their neighbours in the other picture; more at a larger
    /// scale.
    int stray_pixels = 20;
    /// Drawn at one and a half times the size too.
    bool at_scale = true;
    /// How much the inked area may differ, as a part of it.
    double ink = 0.08;
    /// How far the other picture may lie, pixels.
    double shift = 0.8;
};

std::span<const PictureCase> PictureCases();
