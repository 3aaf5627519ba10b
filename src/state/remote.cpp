#include "state/remote.h"

RemoteState remote;

namespace {
constexpr Variable kRemoteRows[] = {
    {"remote_ready", &remote.remote_ready},     {"remote_cdu_due", &remote.cdu.due},
    {"remote_cdu_size", &remote.cdu.byte_size}, {"remote_cdu_width", &remote.cdu.width},
    {"remote_cdu_height", &remote.cdu.height},  {"remote_efb_due", &remote.efb.due},
    {"remote_efb_size", &remote.efb.byte_size}, {"remote_efb_width", &remote.efb.width},
    {"remote_efb_height", &remote.efb.height},
};
}  // namespace

const std::span<const Variable> kRemoteVariables = kRemoteRows;
