#include "state/announcements.h"

AnnouncementState announcements;

namespace {
constexpr Variable kAnnouncementRows[] = {
    {"cockpit_callout_mode", &announcements.cockpit_callout_mode},
    {"annuncement_mode", &announcements.annuncement_mode},
    {"ldg_checklist_mode", &announcements.ldg_checklist_mode},
    {"crew_spacing_secs", &announcements.crew_spacing_secs},
    {"pax_spacing_secs", &announcements.pax_spacing_secs},
    {"get_pax_flag", &announcements.get_pax_flag},
    {"cargo_doors_anun", &announcements.cargo_doors_anun},
};
}  // namespace

const std::span<const Variable> kAnnouncementVariables = kAnnouncementRows;
