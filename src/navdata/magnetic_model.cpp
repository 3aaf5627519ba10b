#include "navdata/magnetic_model.h"

#include <algorithm>
#include <cmath>

#include "base/angles.h"
#include "navdata/geodesy.h"

namespace {

struct GaussPair {
    double g, h;  // nT
};

constexpr int kOrder = 12;

// World Magnetic Model 2005, main field at epoch 2005.0, Schmidt semi-normalised; by degree n from 1, then
// order m from 0. The secular variation isn't here: the date stands at the epoch.
constexpr GaussPair kCoefficients[] = {
    {-29556.8, 0.0}, {-1671.7, 5079.8},                                                       // n = 1
    {-2340.6, 0.0},  {3046.9, -2594.7}, {1657.0, -516.7},                                     // n = 2
    {1335.4, 0.0},   {-2305.1, -199.9}, {1246.7, 269.3},  {674.0, -524.2},                    // n = 3
    {919.8, 0.0},    {798.1, 281.5},    {211.3, -226.0},  {-379.4, 145.8},  {100.0, -304.7},  // n = 4
    {-227.4, 0.0},   {354.6, 42.4},     {208.7, 179.8},   {-136.5, -123.0}, {-168.3, -19.5},
    {-14.1, 103.6},  // n = 5
    {73.2, 0.0},     {69.7, -20.3},     {76.7, 54.7},     {-151.2, 63.6},   {-14.9, -63.4},
    {14.6, -0.1},    {-86.3, 50.4},  // n = 6
    {80.1, 0.0},     {-74.5, -61.5},    {-1.4, -22.4},    {38.5, 7.2},      {12.4, 25.4},
    {9.5, 11.0},     {5.7, -26.4},      {1.8, -5.1},  // n = 7
    {24.9, 0.0},     {7.7, 11.2},       {-11.6, -21.0},   {-6.9, 9.6},      {-18.2, -19.8},
    {10.0, 16.1},    {9.2, 7.7},        {-11.6, -12.9},   {-5.2, -0.2},  // n = 8
    {5.6, 0.0},      {9.9, -20.1},      {3.5, 12.9},      {-7.0, 12.6},     {5.1, -6.7},
    {-10.8, -8.1},   {-1.3, 8.0},       {8.8, 2.9},       {-6.7, -7.9},     {-9.1, 6.0},  // n = 9
    {-2.3, 0.0},     {-6.3, 2.4},       {1.6, 0.2},       {-2.6, 4.4},      {0.0, 4.8},
    {3.1, -6.5},     {0.4, -1.1},       {2.1, -3.4},      {3.9, -0.8},      {-0.1, -2.3},
    {-2.3, -7.9},  // n = 10
    {2.8, 0.0},      {-1.6, 0.3},       {-1.7, 1.2},      {1.7, -0.8},      {-0.1, -2.5},
    {0.1, 0.9},      {-0.7, -0.6},      {0.7, -2.7},      {1.8, -0.9},      {0.0, -1.3},
    {1.1, -2.0},     {4.1, -1.2},  // n = 11
    {-2.4, 0.0},     {-0.4, -0.4},      {0.2, 0.3},       {0.8, 2.4},       {-0.3, -2.6},
    {1.1, 0.6},      {-0.5, 0.3},       {0.4, 0.0},       {-0.3, 0.0},      {-0.3, 0.3},
    {-0.1, -0.9},    {-0.3, -0.4},      {-0.1, 0.8},  // n = 12
};
static_assert(std::size(kCoefficients) == kOrder * (kOrder + 3) / 2);

constexpr const GaussPair& Coefficient(int n, int m) {
    return kCoefficients[n * (n + 1) / 2 - 1 + m];
}

// Declination in degrees on the WGS-84 ellipsoid at sea level. S. McLean et al., "The US/UK World Magnetic
// Model for 2005-2010", NOAA Technical Report NESDIS/NGDC-1, section 1.3.
double Declination(double lat, double lon) {
    constexpr double kMajorKm = 6378.137, kMinorKm = 6356.7523142, kReferenceKm = 6371.2;
    // The east component divides by the cosine: a metre off the pole gives the limit along the meridian.
    lat = std::clamp(lat, -89.99999, 89.99999);
    const double phi = lat * kRadPerDeg, lambda = lon * kRadPerDeg;

    const double radius_of_curvature =
        kMajorKm * kMajorKm / std::hypot(kMajorKm * std::cos(phi), kMinorKm * std::sin(phi));
    const double across = radius_of_curvature * std::cos(phi);
    const double along = radius_of_curvature * (kMinorKm / kMajorKm) * (kMinorKm / kMajorKm) * std::sin(phi);
    const double r = std::hypot(across, along);
    const double cos_t = along / r, sin_t = across / r;  // colatitude on the sphere

    double p[kOrder + 1][kOrder + 1] = {}, dp[kOrder + 1][kOrder + 1] = {};  // and the slope over colatitude
    p[0][0] = 1;
    for (int n = 1; n <= kOrder; ++n) {
        const double diagonal = n == 1 ? 1 : std::sqrt((2 * n - 1) / (2.0 * n));
        p[n][n] = diagonal * sin_t * p[n - 1][n - 1];
        dp[n][n] = diagonal * (sin_t * dp[n - 1][n - 1] + cos_t * p[n - 1][n - 1]);
        for (int m = 0; m < n; ++m) {
            const double before = n - 1 > m ? std::sqrt((n - 1.0) * (n - 1) - m * m) : 0;
            const double norm = std::sqrt(static_cast<double>(n * n - m * m));
            const double p2 = n > 1 ? p[n - 2][m] : 0, dp2 = n > 1 ? dp[n - 2][m] : 0;
            p[n][m] = ((2 * n - 1) * cos_t * p[n - 1][m] - before * p2) / norm;
            dp[n][m] = ((2 * n - 1) * (cos_t * dp[n - 1][m] - sin_t * p[n - 1][m]) - before * dp2) / norm;
        }
    }

    double north = 0, east = 0, down = 0;
    double scale = (kReferenceKm / r) * (kReferenceKm / r);
    for (int n = 1; n <= kOrder; ++n) {
        scale *= kReferenceKm / r;
        for (int m = 0; m <= n; ++m) {
            const auto [g, h] = Coefficient(n, m);
            const double cos_m = std::cos(m * lambda), sin_m = std::sin(m * lambda);
            north += scale * (g * cos_m + h * sin_m) * dp[n][m];
            east += scale * m * (g * sin_m - h * cos_m) * p[n][m] / sin_t;
            down -= scale * (n + 1) * (g * cos_m + h * sin_m) * p[n][m];
        }
    }
    const double tilt = std::atan2(along, across) - phi;
    return std::atan2(east, north * std::cos(tilt) - down * std::sin(tilt)) * kDegPerRad;
}

}  // namespace

int MagVarAt(double lat, double lon) {
    if (!(std::fabs(lat) <= 90 && std::fabs(lon) <= 1e6)) return 0;
    const double declination = Declination(std::trunc(lat), std::trunc(lon));
    return static_cast<int>(declination) + (declination > 0.54 ? 1 : 0);
}
