#include "state/pos_init.h"

PosInitState pos_init;

namespace {
constexpr Variable kPosInitRows[] = {
    {"RefAirport", &pos_init.RefAirport},
    {"RefAirportLat", &pos_init.RefAirportLat},
    {"RefAirportLon", &pos_init.RefAirportLon},
    {"RefGate", &pos_init.RefGate},
    {"RefGateLat", &pos_init.RefGateLat},
    {"RefGateLon", &pos_init.RefGateLon},
    {"InertialEntryLat", &pos_init.InertialEntryLat},
    {"InertialEntryLon", &pos_init.InertialEntryLon},
    {"RnpEntry", &pos_init.RnpEntry},
    {"rnp", &pos_init.RnpEntry},
    {"PosUpdateArmed", &pos_init.PosUpdateArmed},
    {"PosBrgDistMode", &pos_init.PosBrgDistMode},
    {"GpsNavEnabled", &pos_init.GpsNavEnabled},
    {"DmeDmeNavEnabled", &pos_init.DmeDmeNavEnabled},
    {"VorDmeNavEnabled", &pos_init.VorDmeNavEnabled},
    {"LocNavEnabled", &pos_init.LocNavEnabled},
};
}  // namespace

const std::span<const Variable> kPosInitVariables = kPosInitRows;
