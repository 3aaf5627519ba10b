#include "host/aircraft_values.h"

#include "host/session.h"
#include "host/world/world.h"

namespace host {

bool AircraftValue(const std::string& name, double& value) {
    if (name == "lat")
        value = TokenOf(71) / 111130.555557;
    else if (name == "lon")
        value = TokenOf(72) / 781874935307.4;
    else if (name == "hdg")
        value = TokenOf(81);
    else
        return false;
    return true;
}

void PlaceAircraft(const Placement& placement) {
    SetToken(71, placement.lat * 111130.555557);
    SetToken(72, placement.lon * 781874935307.4);
    SetToken(81, placement.heading);
}
void SetWind(double from_deg, double speed_kt) {
    SetToken(344, from_deg);
    SetToken(343, speed_kt);
}
void SetOutsideTemperature(double celsius) {
    SetToken(341, celsius);
}
void SetQnh(double) {}

}  // namespace host
