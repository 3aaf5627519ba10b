#include "sound/warnings.h"

#include "frame/cues.h"
#include "state/alerts.h"
#include "state/cfg.h"

void TakeAlertAural() {
    if (sound.dsound_ok == 0 || cfg.PlayCockpitSounds != 1 || cfg.PlayWarningSounds != 1) return;
    if (sound.alert_aural == kAuralSiren || sound.alert_aural == kAuralAutopilotDisc) sound.siren_running = 1;
    if (sound.alert_aural == kAuralBeeper) sound.beeper_running = 1;
    sound.alert_aural = 0;
}

void EndWarningSounds() {
    if (sound.dsound_ok == 0) return;
    if (sound.siren_running > 0 ? alerts.warning_count <= 0
                                : sound.beeper_running > 0 && alerts.caution_count <= 0)
        StopWarningSound();
}
