#include "guidance/turn_log.h"

#include "base/angles.h"
#include "base/text.h"
#include "fmc/legs/path.h"
#include "platform/files.h"
#include "state/cfg.h"
#include "state/lnav.h"
#include "state/plan.h"
#include "state/sim.h"
#include "state/time_base.h"

namespace {
constexpr const char* kLogFile = "\\wptTurn.csv";
constexpr const char* kHeader =
    "\"FS CYCLE\",\"WPT ID\",\"TAS\",\"WPT DIST\",\"TRADIUS\",\"ANGLE\",\"WPT_CHG_DIST\",\"PLANE HDG\",\"FMS "
    "HDG\","
    "\"BANK ANGLE\",\"XTK ERR\"\n";
}  // namespace

void LogTurnData() {
    if (cfg.LogWptTurnData != 1 || sim.ias_kt <= 100 || sim.radio_alt_ft <= 400) return;
    if (lnav.turn_log_begun == 0) {
        WriteFile(kLogFile, kHeader);
        lnav.turn_log_begun = 1;
        return;
    }
    AppendToFile(kLogFile,
                 Format("%d,%.40s,%.0f,%.2f,%.1f,%d,%.2f,%03.0f,%03.0f,%.0f,%.1f\n", time_base.wpt_log_ticks,
                        FlightPlanLegAt(plan.active.stpos).ident.c_str(), sim.tas_kt, lnav.wpt_dist,
                        lnav.turn_radius, lnav.turn_angle, lnav.wpt_chg_dist, sim.mag_hdg, lnav.fms_hdg,
                        sim.bank_deg, lnav.xtk_side == kTurnLeft ? -lnav.xtk : lnav.xtk));
}
