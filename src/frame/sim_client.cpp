#include "frame/sim_client.h"

#include <algorithm>
#include <cstdint>

#include "base/numbers.h"
#include "frame/key_events.h"
#include "platform/host.h"
#include "platform/state_lock.h"
#include "state/host_link.h"
#include "state/placement.h"
#include "state/sim.h"
#include "state/sound.h"
#include "state/weights.h"

namespace {

constexpr int kDataPosition = 0;
constexpr int kDataRightMain = 2;
constexpr int kDataLeftMain = 3;
constexpr int kDataCentre = 8;
constexpr int kDataPayloadFirst = 13;  // stations 1 to 5
constexpr int kWrittenStations = 5;

constexpr int kEventSound = 11;
constexpr int kEventPause = 12;
constexpr int kEventFlightSaved = 13;
constexpr int kStateFlightLoaded = 14;

struct DataDefinition {
    int id;
    const char* name;
    const char* units;
};
constexpr DataDefinition kDataDefinitions[] = {
    {kDataPosition, "Initial Position", ""},
    {kDataRightMain, "FUEL TANK RIGHT MAIN QUANTITY", "Gallons"},
    {kDataLeftMain, "FUEL TANK LEFT MAIN QUANTITY", "Gallons"},
    {4, "FUEL TANK RIGHT AUX QUANTITY", "Gallons"},
    {5, "FUEL TANK LEFT AUX QUANTITY", "Gallons"},
    {6, "FUEL TANK RIGHT TIP QUANTITY", "Gallons"},
    {7, "FUEL TANK LEFT TIP QUANTITY", "Gallons"},
    {kDataCentre, "FUEL TANK CENTER QUANTITY", "Gallons"},
    {9, "FUEL TANK CENTER2 QUANTITY", "Gallons"},
    {10, "FUEL TANK CENTER3 QUANTITY", "Gallons"},
    {11, "FUEL TANK EXTERNAL1 QUANTITY", "Gallons"},
    {12, "FUEL TANK EXTERNAL2 QUANTITY", "Gallons"},
    {13, "PAYLOAD STATION WEIGHT:1", "Pounds"},
    {14, "PAYLOAD STATION WEIGHT:2", "Pounds"},
    {15, "PAYLOAD STATION WEIGHT:3", "Pounds"},
    {16, "PAYLOAD STATION WEIGHT:4", "Pounds"},
    {17, "PAYLOAD STATION WEIGHT:5", "Pounds"},
};

struct SystemEvent {
    int id;
    const char* name;
};
constexpr SystemEvent kSystemEvents[] = {
    {0, "SimStart"},
    {10, "PositionChanged"},
    {kEventSound, "Sound"},
    {kEventPause, "Pause"},
    {kEventFlightSaved, "FlightSaved"},
};

struct ClientEvent {
    int id;
    const char* name;
    const char* input;
    int group;
};
constexpr ClientEvent kClientEvents[] = {
    {kClientEventPlace, "My.CTRLSHIFTA", "ctrl+shift+A", 0},
    {kClientEventFuel, "My.CTRLSHIFTB", "ctrl+shift+B", 1},
    {kClientEventSaveFlight, "MySaveFlight", "ctrl+shift+B", 2},
    {kClientEventPayload, "My.CTRLSHIFTC", "ctrl+shift+B", 3},
};

/// The host's position record.
struct InitialPosition {
    double lat, lon;  // degrees
    double alt_ft;
    double pitch_deg, bank_deg;
    double hdg_deg;
    std::uint32_t on_ground;
    std::uint32_t ias_kt;
};
static_assert(sizeof(InitialPosition) == 56);

void SetQuantity(int definition, double quantity) {
    Host().set_sim_data(definition, &quantity, sizeof quantity);
}

void PlaceAircraft() {
    constexpr int kMinIas = 170, kMaxIas = 340;
    if (placement.place_alt > 1000) SendKeyEvent(kKeyAltitudeSet, WholeNumber(placement.place_alt));
    const InitialPosition position = {
        placement.place_lat,
        placement.place_lon,
        placement.place_alt,
        0,
        -1,
        placement.place_hdg,
        0,
        static_cast<std::uint32_t>(std::clamp(WholeNumber(placement.place_ias), kMinIas, kMaxIas))};
    if (placement.place_left_fuel > 0 || placement.place_right_fuel > 0) {
        SetQuantity(kDataRightMain, placement.place_right_fuel);
        SetQuantity(kDataLeftMain, placement.place_left_fuel);
    }
    SetQuantity(kDataCentre, placement.place_centre_fuel);
    Host().set_sim_data(kDataPosition, &position, sizeof position);
    SendKeyEvent(kKeyPositionPlaced1, 0);
    SendKeyEvent(kKeyPositionPlaced2, 0);
    Host().set_sim_data(kDataPosition, &position, sizeof position);
}

void OnEvent(int id, int data) {
    switch (id) {
        case kClientEventPlace:
            PlaceAircraft();
            break;
        case kClientEventFuel:
            SetQuantity(kDataLeftMain, weights.fuel_load_left);
            SetQuantity(kDataRightMain, weights.fuel_load_right);
            SetQuantity(kDataCentre, weights.fuel_load_centre);
            break;
        case kEventSound:
            sound.host_sound_on = data;
            break;
        case kEventPause:
            sim.host_paused = data;
            break;
        case kClientEventSaveFlight:
            Host().save_flight("SaveTest", "ST Title", "ST Descr");
            break;
        case kClientEventPayload:
            for (int station = 1; station <= kWrittenStations; ++station)
                SetQuantity(kDataPayloadFirst + station - 1,
                            weights.payload_stations[static_cast<std::size_t>(station)]);
            break;
        default:
            break;
    }
}

}  // namespace

void OpenSimClient() {
    if (host_link.sim_client_open == 1) return;
    host_link.sim_client_open = Host().open_sim_client("System Event", OnSimEvent) != 0 ? 1 : 0;
    if (host_link.sim_client_open == 0) return;
    for (const DataDefinition& data : kDataDefinitions)
        Host().add_data_definition(data.id, data.name, data.units);
    for (const SystemEvent& event : kSystemEvents) Host().subscribe_system_event(event.id, event.name);
    Host().request_system_state(kStateFlightLoaded, "FlightLoaded");
    for (const ClientEvent& event : kClientEvents)
        Host().map_client_event(event.id, event.name, event.input, event.group);
}

void CloseSimClient() {
    if (host_link.sim_client_open == 1) Host().close_sim_client();
    host_link.sim_client_open = 0;
}

void OnSimEvent(const SimMessage* message) {
    const StateLock lock;
    const char* text = message->text != nullptr ? message->text : "";
    switch (message->kind) {
        case SimMessage::kEvent:
            OnEvent(message->id, message->data);
            break;
        case SimMessage::kFileName:
            if (message->id == kEventFlightSaved) host_link.saved_flight = text;
            break;
        case SimMessage::kSystemState:
            if (message->id == kStateFlightLoaded) host_link.loaded_flight = text;
            break;
        default:
            break;
    }
}
