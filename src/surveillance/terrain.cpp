#include "surveillance/terrain.h"

#include "platform/host.h"
#include "state/sim.h"

void ReadTerrainBelow() {
    sim.ground_elev_m = GroundElevation(sim.plane_lat, sim.plane_lon);
}
