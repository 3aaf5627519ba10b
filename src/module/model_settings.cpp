#include "module/model_settings.h"

#include "frame/named_variables.h"
#include "state/cfg.h"
#include "state/identity.h"

void PublishModelSettings() {
    WriteNamedVar(NamedVar("dynamic_lighting"), cfg.dynamic_lighting);
    WriteNamedVar(NamedVar("daytime_lightsplashes"), cfg.daytime_lightsplashes);
    WriteNamedVar(NamedVar("TZ_ENG_TYPE_RR"), identity.engine_model == "TRENT 1000" ? 1 : 0);
}
