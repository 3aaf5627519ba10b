#include "systems/alerting/master_caution.h"

#include "frame/controls.h"
#include "frame/named_variables.h"
#include "state/alerts.h"
#include "state/cockpit.h"
#include "state/identity.h"
#include "state/power_words.h"
#include "state/sim.h"
#include "state/sound.h"

namespace {

bool DoesAnEngineRun() {
    const double running_n2 = identity.engine_model == "TRENT 1000" ? 52 : 62;
    return sim.n2_l >= running_n2 || sim.n2_r >= running_n2;
}

void SetLamps(int lit) {
    alerts.caution_light_on = lit;
    for (int* lamp : {&cockpit.TZ_MCP_Annun_CAUT, &cockpit.TZ_MCP_AnnunR_CAUT})
        if (*lamp != lit) SetControl(lamp, lit);
}

}  // namespace

void ShowMasterCaution() {
    if (alerts.caution_count <= 0 || alerts.caution_light_cancelled == 1)
        SetLamps(0);
    else if (IsBatteryBusAlive() && DoesAnEngineRun())
        SetLamps(1);
}

void MasterWarningReset() {
    if (alerts.caution_light_on == 1) {
        alerts.caution_light_cancelled = 1;
        sound.beeper_running = 0;
    }
    alerts.caution_light_on = 0;
    for (int* lamp : {&cockpit.TZ_MCP_Annun_WARN, &cockpit.TZ_MCP_AnnunR_WARN, &cockpit.TZ_MCP_Annun_CAUT,
                      &cockpit.TZ_MCP_AnnunR_CAUT})
        SetControl(lamp, 0);
    WriteNamedVar(NamedVar("TZ_MCP_L_WARNING_Button"), 0);
    WriteNamedVar(NamedVar("TZ_MCP_R_WARNING_Button"), 0);
}
