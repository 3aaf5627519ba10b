#pragma once

/// Once a second: the two master caution lamps follow the cautions while an engine runs.
void ShowMasterCaution();

/// The master warning and caution button of either side: lamps out, the beeper too, until the next caution.
void MasterWarningReset();
