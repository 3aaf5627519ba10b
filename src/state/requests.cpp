#include "state/requests.h"

RequestState requests;

namespace {
constexpr Variable kRequestRows[] = {
    {"uplink_accept_request", &requests.uplink_accept},
    {"uplink_reject_request", &requests.uplink_reject},
    {"uplink_cancel_request", &requests.uplink_cancel},
    {"leave_legs_view", &requests.leave_legs_view},
    {"forget_pick", &requests.forget_pick},
    {"leave_hold_page", &requests.leave_hold_page},
    {"show_checklist", &requests.show_checklist},
    {"show_rte", &requests.show_rte},
    {"vnav_phase", &requests.vnav_phase},
};
}  // namespace

const std::span<const Variable> kRequestVariables = kRequestRows;
