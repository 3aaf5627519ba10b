#pragma once

/// Declination in whole degrees, east positive, of the World Magnetic Model 2005 at sea level, date 2005.0,
/// at the whole-number parts of the position. Cut towards zero, and one more when the declination is above
/// 0.54.
int MagVarAt(double lat, double lon);
