#pragma once

#include "display/nd/map_view.h"
#include "state/nd.h"

/// What the top of a map and its compass stand for.
struct HeadingReference {
    bool is_true = false;   // else magnetic
    bool is_track = false;  // else the heading is up
    double up = 0;          // heading or track, in the sense in use
    double up_true = 0;
    double Of(double true_bearing) const;   // a true bearing in the sense in use
    double Magnetic(double bearing) const;  // a magnetic one in the sense in use
};
HeadingReference HeadingReferenceInUse();

/// One navigation display: its layout, and the map in it.
struct NdFrame {
    int side = 1;
    bool in_plan = false, centred = false, vsd = false;  // vsd in MAP only; PLAN is neither centred nor arc
    bool wide = false;                                   // over both halves of a unit
    bool irs_on = false;
    double radius = 0;  // of the compass
    MapView view;
    HeadingReference reference;
    bool Arc() const { return !in_plan && !centred; }
    /// The value for a layout: arc, centred, arc above a VSD, centred above one.
    template <class Value>
    Value Pick(Value arc, Value centre, Value vsd_arc, Value vsd_centre) const {
        return vsd ? centred ? vsd_centre : vsd_arc : centred ? centre : arc;
    }
};

/// The display of a side on a half (1 left, 2 right) of a unit, or over both. Settings that nothing could
/// have set, as from a damaged file, count as MAP, off, and the range at the knob's position.
NdFrame MakeNdFrame(int side, int half, bool wide);

/// Lets drawings through where the map may be, about its centre.
void ClipToMap(Graphics& graphics, const NdFrame& frame);

/// The same for the marks of a compass in MAP: beyond the map's edge too.
void ClipToCompass(Graphics& graphics, const NdFrame& frame);

bool IsIrsOn();
