#pragma once

#include "paint/graphics.h"

// The geometry of a map: polar about its centre, so that distance and bearing from there are true. Drawings
// stand in the frame of the centre, y down, in logical units; the layers are given a view and know nothing
// of the display that they are drawn on.

struct MapPoint {
    double x, y;
};

struct MapBox {
    double left, top, right, bottom;
    bool Has(MapPoint p, double margin = 0) const {
        return p.x >= left - margin && p.x <= right + margin && p.y >= top - margin && p.y <= bottom + margin;
    }
};

/// What a map is centred on, how it is turned, and how large it is.
struct MapView {
    double lat = 0, lon = 0;            // degrees, of the centre
    double up = 0;                      // true bearing of the top
    double scale = 1;                   // units per nm
    double range = 40;                  // nm, as the pilot has selected it
    MapBox seen = {-1, -1, 1, 1};       // the box about the clip
    double centre_x = 0, centre_y = 0;  // of the centre in the frame of the display
    // set by OrientMap
    double lat_reach = 0, lon_reach = 0;  // degrees, to all that may be drawn
    // On a small map, away from the poles, the earth is flat enough to tell what can't be seen.
    bool is_flat = false;
    double east_scale = 0, north_scale = 0;  // units per degree
    double sin_lat = 0, cos_lat = 1, sin_up = 0, cos_up = 1;
};

/// Fits the rest of a view to its centre, direction and range. A centre that is no place becomes 0, 0.
void OrientMap(MapView& view);

/// Puts the origin of the drawings at the view's centre.
void EnterMapFrame(Graphics& graphics, const MapView& view);

/// Where a place stands on the map.
MapPoint PointOnMap(const MapView& view, double lat, double lon);

/// False for a place farther than 1.5 ranges and 10 nm, and for one that with its label can't be seen: a
/// quick test, which lets some more pass. Most places of a list fail by their latitude; the second function
/// asks the others.
bool IsNearbyInReach(const MapView& view, double lat, double lon);
inline bool IsInReach(const MapView& view, double lat, double lon) {
    return lat - view.lat <= view.lat_reach && view.lat - lat <= view.lat_reach &&
           IsNearbyInReach(view, lat, lon);
}
/// The same for any part of a leg between two places.
bool IsLegInReach(const MapView& view, double lat1, double lon1, double lat2, double lon2);

/// The part of a line that lies inside a box; false when there is none.
bool ClipLine(const MapBox& box, MapPoint& a, MapPoint& b);

/// A line of the map. What can't be seen is left out.
void DrawMapLine(Graphics& graphics, const Pen& pen, const MapView& view, MapPoint a, MapPoint b);

/// A circle about a point, as wide as a number of units.
void DrawCircle(Graphics& graphics, const Pen& pen, MapPoint middle, double diameter);
