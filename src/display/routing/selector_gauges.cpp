#include "display/routing/selector_gauges.h"

#include <string_view>

#include "platform/state_lock.h"
#include "state/displays.h"

namespace {

// The place of the lit lamp in the chain, from 0; -1 for another gauge.
int LitElement(std::string_view gauge) {
    if (gauge == "DSP_CAPT") return displays.dsp_capt_mode_button - 1;
    if (gauge == "DSP_FO") return displays.dsp_fo_mode_button - 1;
    if (gauge == "CAPT_DU_MODE") return displays.du_sel_pos + 1;
    return -1;
}

}  // namespace

void ServeSelectorGauge(GaugeInstance* instance, int32_t service_id) {
    if (service_id != kServicePreUpdate) return;
    GaugeElement* element = instance->elements;
    if (element == nullptr || element->next == nullptr) return;
    const StateLock lock;
    const int lit = LitElement(instance->gauge->name);
    for (int place = 0; element != nullptr; element = element->next, ++place) {
        if (place == lit)
            element->flags &= ~kElementHidden;
        else
            element->flags |= kElementHidden;
    }
}
