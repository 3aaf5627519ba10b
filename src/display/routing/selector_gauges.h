#pragma once

#include "platform/panel_gauges.h"

/// The service of DSP_CAPT, DSP_FO and CAPT_DU_MODE, whose elements are the pictures of the lamps: for each
/// update it shows the one that stands for the chosen half, or for the selector's position, and hides the
/// others. A gauge of one element has no lamps.
void ServeSelectorGauge(GaugeInstance* instance, int32_t service_id);
