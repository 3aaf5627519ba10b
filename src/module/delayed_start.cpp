#include "module/delayed_start.h"

#include "display/pictures/remote_bridge.h"
#include "fmc/performance/winds.h"
#include "frame/aircraft.h"
#include "frame/configuration.h"
#include "frame/model_values.h"
#include "frame/snapshot.h"
#include "module/controls/control_table.h"
#include "navdata/airport_file.h"
#include "navdata/nav_tables.h"
#include "navdata/nearest.h"
#include "panels/load_panel.h"
#include "state/module_life.h"
#include "systems/start_up.h"

void DelayedStart() {
    ChooseTakeoffFlaps();
    ReadFuelControls();
    ReadSelcal();
    SwitchRecirculationOn();
    WriteControlVariables();
    StartIrsOfKnobs();
    PublishModelSettings();
    ReadNavFrequencies();
    LoadPanelAtStart();
    TellNavdataOutOfDate();
    StartSystemsRunning();
    ReadModelPositions();
    ChooseWeatherFolder();
    LoadFuelAtStart();
    OpenConfiguredBridge();
    RefreshNearestAtOnce();
    module_life.startup_done = 1;
}
