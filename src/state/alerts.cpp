#include "state/alerts.h"

AlertState alerts;

namespace {
constexpr Variable kAlertRows[] = {
    {"warning_list", &alerts.warning_list},
    {"caution_list", &alerts.caution_list},
    {"advisory_list", &alerts.advisory_list},
    {"memo_list", &alerts.memo_list},
    {"warning_count", &alerts.warning_count},
    {"caution_count", &alerts.caution_count},
    {"advisory_count", &alerts.advisory_count},
    {"memo_count", &alerts.memo_count},
    {"posted", &alerts.posted},
    {"unseen_cautions", &alerts.unseen_cautions},
    {"unseen_advisories", &alerts.unseen_advisories},
    {"recall_timer", &alerts.recall_timer},
    {"caution_light_on", &alerts.caution_light_on},
    {"caution_light_cancelled", &alerts.caution_light_cancelled},
    {"hdg_off_track", &alerts.hdg_off_track},
    {"comm_unread", &alerts.comm_unread},
    {"gear_config_armed", &alerts.gear_config_armed},
    {"terrain_state", &alerts.terrain_state},
    {"at_disc_caution_due", &alerts.at_disc_caution_due},
};
}  // namespace

const std::span<const Variable> kAlertVariables = kAlertRows;
