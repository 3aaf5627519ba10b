#include "host/aircraft/sphere.h"

#include <cmath>

#include "host/aircraft/angles.h"

namespace host {
namespace {

struct Compass {
    Vector3 north, east;
};

// North and east at a place. At a pole every direction is one of them; the meridian of Greenwich stands in.
Compass CompassAt(Vector3 place) {
    const Vector3 east =
        std::hypot(place.x, place.y) > 1e-12 ? Normalised({-place.y, place.x, 0}) : Vector3{0, 1, 0};
    return {Cross(place, east), east};
}

}  // namespace

Vector3 operator+(Vector3 a, Vector3 b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
Vector3 operator*(Vector3 a, double k) {
    return {a.x * k, a.y * k, a.z * k};
}
double Dot(Vector3 a, Vector3 b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
Vector3 Cross(Vector3 a, Vector3 b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
double Length(Vector3 a) {
    return std::sqrt(Dot(a, a));
}
Vector3 Normalised(Vector3 a) {
    const double length = Length(a);
    return length > 0 ? a * (1 / length) : Vector3{1, 0, 0};
}

Vector3 Rotated(Vector3 v, Vector3 axis, double angle) {
    const double c = std::cos(angle), s = std::sin(angle);
    return v * c + Cross(axis, v) * s + axis * (Dot(axis, v) * (1 - c));
}

Vector3 PlaceAt(double lat, double lon) {
    const double phi = lat * kRad, lambda = lon * kRad;
    return {std::cos(phi) * std::cos(lambda), std::cos(phi) * std::sin(lambda), std::sin(phi)};
}

double BearingOf(Vector3 direction, Vector3 place) {
    const Compass compass = CompassAt(place);
    const double bearing = std::atan2(Dot(direction, compass.east), Dot(direction, compass.north)) / kRad;
    return bearing < 0 ? bearing + 360 : bearing;
}

Vector3 DirectionOf(double bearing, Vector3 place) {
    const Compass compass = CompassAt(place);
    return compass.north * std::cos(bearing * kRad) + compass.east * std::sin(bearing * kRad);
}

}  // namespace host
