#include "systems/systems.h"

#include "frame/aircraft.h"
#include "systems/air_lamps.h"
#include "systems/apu.h"
#include "systems/battery.h"
#include "systems/electrical.h"
#include "systems/electrical_lamps.h"
#include "systems/irs.h"

void SystemsTick() {
    StepBattery();
    StepApu();
    StepIrs();
}

void SystemsSecond(int group) {
    switch (group) {
        case 1:
            StepElectricalPower();
            PublishApu();
            ShowElectricalLamps();
            ShowAirLamps();
            break;
        case 2:
            StartApuInFlight();
            break;
        case 3:
            UpdateFlapSpeedRow();
            break;
        default:
            break;
    }
}
