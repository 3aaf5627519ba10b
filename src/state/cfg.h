#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "state/variable.h"

// Positions of PfcSwitch.
constexpr int kPfcDisconnected = 4, kPfcNormal = 7;

/// The settings of tz900.cfg, each under its key. Read once at start by ReadConfig, changed by the
/// configuration pages, written back by WriteConfig. Flags are 0 or 1.
struct ConfigState {
    int IrsAlignSecs = 10;             // IRS alignment time in seconds
    int CheckNavdataStatus = 1;        // test the AIRAC validity of the navigation data at start
    int MinAptRwyLen = 0;              // shortest runway, in feet, of an airport offered by lists
    int BatteryDrainSecs = 1200;       // seconds from a full battery to empty
    int FlightDirectorDualCue = 1;     // flight director style of the PFD
    int EfbNiteChart = 0;              // EFB charts in night colours
    int EfBFPlanOverlay = 1;           // route overlay on EFB charts
    int IncludeMissedApproach = 1;     // missed approach legs are part of a loaded procedure
    int NdFontSizeAdj = 0;             // font size offset of the ND
    double TerrainFloor = 0;           // feet; terrain further below the aircraft isn't drawn, 0 = all
    std::string WeightUnit = "LBS";    // "LBS" or "KGS": unit of what is shown and typed, logic has pounds
    int ArmPauseAtTod = 1;             // arm the pause at top of descent
    int PauseAtTod = 0;                // pause at top of descent
    int Arm1xAtTod = 1;                // arm the return to 1x rate at top of descent
    int OneXAtTod = 0;                 // 1xAtTod: return to 1x rate at top of descent
    int vsd_terr_always_on = 0;        // VSD terrain shown without the terrain switch
    int PanelAutoSaveEnroute = 0;      // autosave
    std::string CabinAirTempUnit;      // "C", anything else counts as Fahrenheit
    int PlayAnnouncements = 1;         // TZPAS sound
    int AltCallApprMins = 1;           // approaching minimums callout
    int AltCallMins = 1;               // minimums callout
    int AltCall5 = 0;                  // 5 ft callout
    int AltCall10 = 1;                 // height callout
    int AltCall20 = 1;                 // height callout
    int AltCall30 = 1;                 // height callout
    int AltCall40 = 1;                 // height callout
    int AltCall50 = 1;                 // height callout
    int AltCall100 = 1;                // height callout
    int AltCall200 = 1;                // height callout
    int AltCall300 = 1;                // height callout
    int AltCall400 = 1;                // height callout
    int AltCall500 = 1;                // height callout
    int AltCall1000 = 1;               // height callout
    int AltCall2500 = 1;               // height callout
    int PlayTakeoffCalloutSounds = 1;  // TZCAS sound
    int PfcSwitch = 7;                 // position of the overhead PFC switch; see ReadRule::kPfcSwitch
    double DuLinesize = 1;             // line width of the display units
    int GaugeRefreshRate = 18;         // display refresh in frames a second
    int Battery = 1;                   // battery on when the aircraft loads
    int SystemsOn = 0;                 // the aircraft starts with all systems running; cleared once they do
    int DiscATOnAPDisc = 0;            // disconnect the autothrottle with the autopilot
    int DiscPFCOnAPDisc = 0;           // the PFC switch also disconnects the autopilot
    int daytime_lightsplashes = 0;     // light splashes also by day
    std::string HiFiSnapshotDir;       // folder of the external weather snapshots
    int autostepclimb = 0;             // automatic step climb
    int GpwsAltCalloutAbove = 5;       // width of the band of a height callout
    int DisplayProgETE = 0;            // PROGRESS page shows elapsed time to go
    int AccelHt = 1500;                // acceleration height, feet
    int TransAlt = 18000;              // transition altitude, feet
    int CostIndex = -1;                // default cost index, -1 = none
    int SetSpdOffwhenAPMasterSetOff = 0;      // speed mode off with the autopilot master
    int ExcludeDisco = 0;                     // discontinuities left out of a loaded route
    double WxrBrt = 0.75;                     // weather radar brightness, 0 to 1
    int LoadFuelonAircraftLoad = 1;           // load tz900_fuel.cfg at start
    int CduAutoCalcVspeeds = 1;               // V speeds filled in by the CDU
    int CduAutoCalcZfw = 1;                   // zero fuel weight filled in by the CDU
    int LoadFuelonFlightPlanLoad = 0;         // load planned fuel with a route
    int LoadPanelStateonAcLoad = 1;           // load a panel at start
    int SavePanelStateonFlightSave = 1;       // save a panel with the host's flight save
    std::string PanelState;                   // panel to load at start
    int VASdisplay = 0;                       // VAS usage shown in the CDU
    int dynamic_lighting = 0;                 // published as a named variable at start
    std::string FlightPlansFolder;            // folder of route files
    int SetMCPCruiseAltonFlightPlanLoad = 0;  // set the MCP altitude to the cruise altitude on route load
    int SetMCPAltOnAutoStepClimb = 0;         // set the MCP altitude on an automatic step
    double TzPasSafetyDemoMinRwyDist = 0.56;  // NM; feet in the file
    double TzPasFASeatedRwyDist = 0.28;       // NM; feet in the file
    int RemoteCdu = 1;                        // remote bridge on
    int calcpayload = 1;                      // payload is computed by the EFB
    int PauseAtDistFromDest = 0;              // pause this many NM from the destination, 0 = off
    int ArmPauseAtDistFromDest = 1;           // arm that pause
    int DisplayEFBLandmarks = 0;              // landmarks on the EFB map
    int DUWxrDisplay = 0;                     // weather shown on the display units
    int DispAiActiveRwys = 1;                 // active runways of AI traffic shown
    int DescForecastAlt1 = 0;                 // descent forecast level, feet
    int DescForecastAlt2 = 0;                 // descent forecast level, feet
    int DescForecastAlt3 = 0;                 // descent forecast level, feet
    int DescForecastAlt4 = 0;                 // descent forecast level, feet
    int PanelLoadCheckAircraftMatch = 0;      // check
    int PanelLoadCheckLatLonMatch = 0;        // check
    int chart_source = 1;                     // 1 or 2
    double DisplayUnitBrightness = 1;         // 1.0 full
    int ClbAltRest = 0;                       // climb speed restriction altitude
    int ClbSpdRest = 0;                       // climb speed restriction speed
    int DesAltRest = 0;                       // descent speed restriction altitude
    int DesSpdRest = 0;                       // descent speed restriction speed
    int ClbTransAltRest = 10000;              // climb transition altitude of the speed limit
    int ClbTransSpdRest = 250;                // climb speed limit below it
    int DescTransAltRest = 10000;             // descent transition altitude of the speed limit
    int DescTransSpdRest = 240;               // descent speed limit below it
    double NDArcLinesize = 1;                 // ND arc width
    int ThrustReductionHt = 1500;             // thrust reduction height, feet
    int ShowExtDestCtrlineRwyId = 0;          // runway ident on the extended centre line
    double ExtRwyCtrlineDist = 14.2;          // length of the extended centre line, NM
    int MinExtRwyRange = 0;                   // ND range from which it is drawn
    int RealismMode = 0;                      // realism mode of the FMC
    double DescFpa = 2.4;                     // descent path angle, degrees; the key VnavDescFPA is the same
    int LogFlightPlan = 0;                    // route log
    int LogTerrData = 0;                      // terrain log
    int DrawDirectRteLines = 0;               // draws direct route lines
    int DrawLnavAimingPoint = 0;              // draws the LNAV aiming point
    int LogWptTurnData = 0;                   // log of turns
    double lnav_tracking_dist = 2.0;          // LNAV tracking distance
    double HUDPixelsPerDeg = 22.5;            // HUD scale
    int HUDPlaneSymbolPixels = 5;             // HUD aircraft symbol
    int hud_horizon_pos = 5;                  // HUD horizon offset
    int LnavDefAp = 0;                        // LNAV default on the autopilot
    int RocTest = 1;                          // rate of climb test
    int LogAsnWxr = 0;                        // weather radar log
    int remotecduhires = 1;                   // high resolution shared screens
    int EadiMode = 0;                         // EADI style
    int FlightDirectorType = 0;               // flight director type
    int simver = 0;                           // host generation, 10 or 11; 0 = not yet known
    int V1 = 0, VR = 0, V2 = 0;               // takeoff speeds of the first officer's EXEC
    double VREF = 0;                          // default Vref
    int ToFlaps = 5;                          // default takeoff flaps
    int LdgFlaps = 30;                        // default landing flaps
    int LdgChecklist = 1;                     // landing checklist callout
    int DisplayLdgChkLst = 0;
    std::string DuFont = "Velarion900DispL";          // font family of the display units
    int ClimbIas = 280;                               // default climb speed
    double ClimbMach = 0;                             // default climb Mach
    int DescentIas = 0;                               // default descent speed
    double DescentMach = 0;                           // default descent Mach
    int CruiseIas = 0;                                // default cruise speed
    double CruiseMach = 0;                            // default cruise Mach
    int FmcShowResetMCPMsg = 1;                       // "RESET MCP ALT" message
    std::array<int, 3> PfdSkyColor = {34, 61, 134};   // r, g, b
    std::array<int, 3> PFDGndColor = {123, 111, 12};  // r, g, b
    int FmcDispDragReqMsg = 1;                        // "DRAG REQUIRED" message
    int VolumeCrewCallouts = 100;                     // volume 1..100
    int VolumeWarnings = 100;                         // volume 1..100
    int VolumeSpoilers = 100;                         // volume 1..100
    int VolumeEvents = 100;                           // volume 1..100
    int VolumeStbyAttSpool = 300;                     // accepted; no cue uses it
    int VolumeGpws = 100;                             // volume 1..100
    int PlayCockpitSounds = 1;                        // master switch of sound
    int PlayEventSounds = 1;                          // switch
    int PlayGpwsSounds = 1;                           // switch
    int PlaySpoilersSounds = 1;                       // switch
    int PlayWarningSounds = 1;                        // switch
    // not in the file
    int config_read = 0;     // the file has been read in this module life
    int pfc_switch_off = 0;  // the file asked for the PFC switch at 0
};

extern ConfigState cfg;
extern const std::span<const Variable> kCfgVariables;

/// When WriteConfig puts a key into the file.
enum class WriteTest { kNever, kIfChanged, kIfZero, kIfOne, kIfPositive, kIfAbove1, kIfAbove999, kIfC };

/// What happens to a value of the file before or after it is stored.
enum class ReadRule {
    kPlain,
    kUpperCase,       // folded to upper case
    kFeetToNm,        // feet in the file, nautical miles in memory
    kArmsPauseAtTod,  // the key's presence arms the pause as well
    kArms1xAtTod,     // the key's presence arms the return to 1x as well
    kPfcSwitch,       // 0 is kept as 4 with pfc_switch_off, 1 as 7 without
    kWeatherFolder,   // "\\Weather" is appended to a name, a doubled one cut to one
    kChartSource,     // 2, or else 1
    kHostVersion,     // 10 or 11
    kPresence,        // the key sets the flag whatever its value
    kFontName,        // at most 20 characters
    kDescentIas,      // the pending descent speed takes ClimbIas's value
    kCruiseIas,       // the pending cruise speed takes ClimbIas's value
};

using ConfigMember = std::variant<int ConfigState::*, double ConfigState::*, std::string ConfigState::*,
                                  std::array<int, 3> ConfigState::*>;

/// One key of tz900.cfg. A file may hold others, such as those of older versions: they have no effect.
struct ConfigKey {
    std::string_view name;
    ConfigMember member;
    WriteTest write = WriteTest::kNever;
    ReadRule read = ReadRule::kPlain;
};

/// All keys, in the order in which they are written.
std::span<const ConfigKey> ConfigKeys();
