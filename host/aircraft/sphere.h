#pragma once

// Vectors, and bearings on the unit sphere. A place is a unit vector, so that poles are places like others.

namespace host {

struct Vector3 {
    double x = 0, y = 0, z = 0;
};

Vector3 operator+(Vector3 a, Vector3 b);
Vector3 operator*(Vector3 a, double k);
double Dot(Vector3 a, Vector3 b);
Vector3 Cross(Vector3 a, Vector3 b);
double Length(Vector3 a);
/// (1, 0, 0) for a vector without length.
Vector3 Normalised(Vector3 a);

/// Rotates a vector about a unit axis by an angle in radians; O. Rodrigues' formula.
Vector3 Rotated(Vector3 v, Vector3 axis, double angle);

/// The place at a latitude and a longitude, degrees.
Vector3 PlaceAt(double lat, double lon);

/// The bearing (degrees true, 0 to below 360) of a direction at a place, and the other way. At a pole every
/// direction is north and south; the meridian of Greenwich stands in.
double BearingOf(Vector3 direction, Vector3 place);
Vector3 DirectionOf(double bearing, Vector3 place);

}  // namespace host
