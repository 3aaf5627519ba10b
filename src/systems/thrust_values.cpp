#include "systems/thrust_values.h"

#include <cmath>

#include "base/numbers.h"
#include "frame/named_variables.h"
#include "state/autoflight.h"
#include "state/efb.h"
#include "state/engines.h"

namespace {

// A change from here goes out; without one the model's value comes in.
void Exchange(NamedVarRef variable, int& value, int& exchanged) {
    double heard = 0;
    if (value != exchanged)
        WriteNamedVar(variable, value);
    else if (ReadNamedVar(variable, heard))
        value = WholeNumber(heard);
    exchanged = value;
}

void ReadLine(NamedVarRef variable, double& value) {
    double heard = 0;
    if (ReadNamedVar(variable, heard) && std::isfinite(heard)) value = heard;
}

}  // namespace

void ExchangeThrustLimit() {
    Exchange(NamedVar("tz_thrust_limit"), autoflight.thrust_limit, engines.thrust_limit_exchanged);
}

void ExchangeThrustValues() {
    WriteNamedVar(NamedVar("TZ_FMC_Flex_Temp"), engines.FMC_Flex_Temp);
    WriteNamedVar(NamedVar("TZ_FMC_TO_Derate"), engines.FMC_TO_Derate);
    Exchange(NamedVar("TZ_FMC_CLB_Derate"), engines.FMC_CLB_Derate, engines.climb_derate_exchanged);
    ReadLine(NamedVar("TZ_FADEC_Green_line"), engines.FADEC_Green_line);
    ReadLine(NamedVar("TZ_FADEC_Amber_line"), engines.FADEC_Amber_line);
}

void PublishTakeoffRating() {
    const int rating = efb.efb_thr_ref == "TO2" ? 2 : efb.efb_thr_ref == "TO1" ? 1 : 0;
    WriteNamedVar(NamedVar("tz_efb_to_thrust"), rating);
}
