#pragma once

namespace host {

/// Magnetic variation (degrees, east positive) of the stand-in world: the field of the World Magnetic Model
/// 2005 up to its sixth order, on a sphere. Within a degree or so of the full model away from the poles.
double MagneticVariation(double lat, double lon);

}  // namespace host
