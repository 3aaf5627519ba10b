#include "host/aircraft/magnetic_variation.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "host/aircraft/angles.h"

namespace host {
namespace {

struct GaussPair {
    double g, h;  // nT
};

constexpr int kOrder = 6;

// By degree n from 1, then order m from 0; Schmidt semi-normalised.
constexpr GaussPair kCoefficients[] = {
    {-29556.8, 0.0}, {-1671.7, 5079.8},                                                       // n = 1
    {-2340.6, 0.0},  {3046.9, -2594.7}, {1657.0, -516.7},                                     // n = 2
    {1335.4, 0.0},   {-2305.1, -199.9}, {1246.7, 269.3},  {674.0, -524.2},                    // n = 3
    {919.8, 0.0},    {798.1, 281.5},    {211.3, -226.0},  {-379.4, 145.8},  {100.0, -304.7},  // n = 4
    {-227.4, 0.0},   {354.6, 42.4},     {208.7, 179.8},   {-136.5, -123.0}, {-168.3, -19.5},
    {-14.1, 103.6},  // n = 5
    {73.2, 0.0},     {69.7, -20.3},     {76.7, 54.7},     {-151.2, 63.6},   {-14.9, -63.4},
    {14.6, -0.1},    {-86.3, 50.4},  // n = 6
};
static_assert(std::size(kCoefficients) == kOrder * (kOrder + 3) / 2);

}  // namespace

double MagneticVariation(double lat, double lon) {
    lat = std::clamp(lat, -89.999, 89.999);
    const double cos_t = std::sin(lat * kRad), sin_t = std::cos(lat * kRad);  // colatitude
    // Legendre functions and their slope over the colatitude, by recursion.
    double p[kOrder + 1][kOrder + 1] = {}, dp[kOrder + 1][kOrder + 1] = {};
    p[0][0] = 1;
    double north = 0, east = 0;
    const GaussPair* pair = kCoefficients;
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
        for (int m = 0; m <= n; ++m, ++pair) {
            const double cos_m = std::cos(m * lon * kRad), sin_m = std::sin(m * lon * kRad);
            north += (pair->g * cos_m + pair->h * sin_m) * dp[n][m];
            east += m * (pair->g * sin_m - pair->h * cos_m) * p[n][m] / sin_t;
        }
    }
    return std::atan2(east, north) / kRad;
}

}  // namespace host
