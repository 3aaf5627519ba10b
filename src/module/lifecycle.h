#pragma once

#include "platform/panel_gauges.h"

/// Called by the host once each. ModuleInit expects the host's table to be in force.
void ModuleInit();
void ModuleDeinit();

/// The callback of SERVER, the gauge that drives the whole system.
void ServerCallback(GaugeInstance* instance, int32_t service_id);
