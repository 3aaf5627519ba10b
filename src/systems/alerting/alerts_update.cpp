#include "systems/alerting/alerts_update.h"

#include "frame/controls.h"
#include "frame/cues.h"
#include "state/alerts.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/engines.h"
#include "state/sim.h"
#include "systems/alerting/alert_inputs.h"
#include "systems/alerting/catalogue.h"
#include "systems/alerting/message_lists.h"
#include "systems/flight_computers.h"

namespace {

// Messages with a rule of their own.
constexpr int kAutopilotDisc = 9, kFireEngL = 10, kFireEngR = 11, kFireApu = 12, kFireTest = 14,
              kFireTestPass = 15, kEngShutdown = 26, kEngShutdownR = 28, kAutothrottleDisc = 51;

const AlertRow* NextToCome() {
    for (const AlertRow& row : AlertCatalogue())
        if (alerts.posted[static_cast<std::size_t>(row.id)] == 0 && row.appears() && !row.goes()) return &row;
    return nullptr;
}

// While an engine starts nothing new is told; in a take-off, warnings alone.
bool IsInhibited(const AlertRow& row) {
    constexpr double kTakeOffN1 = 80, kTakeOffHeight = 400;
    if (engines.eng1_start_phase > 0 || engines.eng2_start_phase > 0) return true;
    return sim.n1_l > kTakeOffN1 && sim.n1_r > kTakeOffN1 && sim.radio_alt_ft < kTakeOffHeight &&
           row.level != AlertLevel::kWarning;
}

void SoundWarning(int id) {
    if (id == kAutopilotDisc) return RequestAural(kAuralAutopilotDisc);
    if (id == kFireEngL || id == kFireEngR || id == kFireApu || id == kFireTest)
        return RequestAural(kAuralFireBell);
    if (sound.siren_running != 0) return;
    if (sound.beeper_running != 0) StopWarningSound();
    if (id != kFireTestPass) RequestAural(kAuralSiren);
}

void SoundCaution(int id) {
    constexpr double kEngineAtWork = 67;  // percent N2
    const bool at_work = sim.n2_l > kEngineAtWork || sim.n2_r > kEngineAtWork;
    const bool is_shutdown = id >= kEngShutdown && id <= kEngShutdownR;
    if (sound.siren_running == 0 && sound.beeper_running == 0 && at_work && !is_shutdown)
        RequestAural(kAuralBeeper);
}

void Post(const AlertRow& row) {
    if (row.level == AlertLevel::kWarning) SoundWarning(row.id);
    if (row.level == AlertLevel::kCaution) {
        SoundCaution(row.id);
        alerts.caution_light_cancelled = 0;
    }
    PostAlert(row);
}

// Of all that may go one goes a pass: memos before advisories, cautions and warnings, of a list the newest.
const AlertRow* NextToGo() {
    using enum AlertLevel;
    for (const AlertLevel level : {kMemo, kAdvisory, kCaution, kWarning}) {
        const AlertList& list = ListOf(level);
        const int last = list.Count();
        for (int i = 1; i <= last; ++i) {
            const AlertRow* row = FindAlert(list.At(i).text);
            if (row != nullptr && row->goes()) return row;
        }
    }
    return nullptr;
}

// The disconnect bar has taken the flight computers off with the autopilot: raised, it gives them back.
void ReconnectFlightComputers() {
    if (cfg.DiscPFCOnAPDisc != 1 || cockpit.TZ_OH_PFC_Safety_Switch != 1 ||
        cfg.PfcSwitch != kPfcDisconnected || cockpit.TZ_MCP_AP_DISENGAGE_Bar != 0)
        return;
    SetControl(&cockpit.TZ_OH_PFC_G_Switch, 0);
    FollowPfcSwitch(1);
}

void Remove(const AlertRow& row) {
    RemoveAlert(row);
    if (row.id == kAutopilotDisc) ReconnectFlightComputers();
    if (row.id == kAutothrottleDisc) alerts.at_disc_caution_due = 1;
}

}  // namespace

void AlertsUpdate() {
    ComputeAlertInputs();
    const AlertRow* coming = NextToCome();
    if (coming != nullptr && !IsInhibited(*coming)) Post(*coming);
    const AlertRow* going = NextToGo();
    if (going != nullptr) Remove(*going);
}

void ClearDisconnectCaution() {
    if (alerts.at_disc_caution_due == 0) return;
    alerts.at_disc_caution_due = 0;
    if (cockpit.TZ_MCP_Annun_CAUT != 0) SetControl(&cockpit.TZ_MCP_Annun_CAUT, 0);
}
