#include "cdu/unit/exec_lamps.h"

#include "frame/named_variables.h"
#include "state/leg_words.h"

void ShowExecLamps() {
    const int lit = AwaitsExec() ? 1 : 0;
    WriteNamedVar(NamedVar("TZ_FMC_EXEC_L_Annun"), lit);
    WriteNamedVar(NamedVar("TZ_FMC_EXEC_R_Annun"), lit);
}
