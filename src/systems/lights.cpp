#include "systems/lights.h"

#include "frame/key_events.h"
#include "frame/tokens.h"
#include "platform/host.h"
#include "state/cockpit.h"

namespace {

struct LightRow {
    int CockpitState::*button;
    int event;
    int toggled_token = 0;  // 0: the event takes the position; else it toggles what this token shows
};
constexpr LightRow kLights[] = {
    {&CockpitState::beacon_lights_button, kKeyBeaconToggle, kTokenBeacon},
    {&CockpitState::nav_lights_button, kKeyNavLightSet},
    {&CockpitState::logo_lights_button, kKeyLogoLightSet},
    {&CockpitState::wing_lights_button, kKeyWingLightSet},
    {&CockpitState::strobe_lights_button, kKeyStrobeToggle, kTokenStrobe},
    {&CockpitState::taxi_lights_button, kKeyTaxiLightSet},
};

}  // namespace

void FollowLight(Light light) {
    const LightRow& row = kLights[static_cast<int>(light)];
    const int wanted = cockpit.*row.button == 0 ? 0 : 1;
    if (row.toggled_token == 0)
        SendKeyEvent(row.event, wanted);
    else if ((ReadToken(row.toggled_token) != 0) != (wanted == 1))
        SendKeyEvent(row.event, 0);
}

void FollowLandingLights(int) {
    const bool on = cockpit.ovhd_ldg_lights_l_switch != 0 || cockpit.ovhd_nose_lights_switch != 0 ||
                    cockpit.ovhd_ldg_lights_r_switch != 0;
    SendKeyEvent(on ? kKeyLandingLightsOn : kKeyLandingLightsOff, 0);
}
