#pragma once

#include <span>

#include "paint/graphics_types.h"

// Figures as lines and cubic curves, shared by paths, outlines and fills.

/// Empties a path and gives it back; its storage stays.
GraphicsPath& Emptied(GraphicsPath& path);

void MoveTo(GraphicsPath& path, double x, double y);
void LineTo(GraphicsPath& path, double x, double y);
void CurveTo(GraphicsPath& path, PaintPoint control1, PaintPoint control2, PaintPoint end);
void ClosePath(GraphicsPath& path);

void AddPolyline(GraphicsPath& path, std::span<const PaintPoint> points, bool closed);
void AddRectangle(GraphicsPath& path, double x, double y, double width, double height);
void AddEllipse(GraphicsPath& path, double x, double y, double width, double height);

/// An arc of the ellipse in a box, from a start angle through a sweep, degrees clockwise from the x axis; the
/// angles are those seen on the ellipse, not of its circle. Joined by a line to a figure that is open.
void AddArc(GraphicsPath& path, double x, double y, double width, double height, double start, double sweep);

/// A pie: the arc joined to the middle of its box.
void AddPie(GraphicsPath& path, double x, double y, double width, double height, double start, double sweep);

/// A cardinal spline of tension 0.5 through the points.
void AddCardinalSpline(GraphicsPath& path, std::span<const PaintPoint> points, bool closed);

/// Makes the path in room.flat: its curves are short lines, to within `tolerance` of a unit.
const GraphicsPath& Flatten(FigureRoom& room, const GraphicsPath& path, double tolerance);

/// Makes the path in room.drawn: moved sideways by `offset` (positive to the right of its direction), curves
/// flattened and corners mitred: the strips of a compound pen.
const GraphicsPath& OffsetPath(FigureRoom& room, const GraphicsPath& path, double offset);
