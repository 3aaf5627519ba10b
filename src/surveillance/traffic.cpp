#include "surveillance/traffic.h"

#include <cstring>

#include "platform/host.h"
#include "state/traffic.h"

void BindTraffic() {
    traffic.tcas_targets_variable = Host().bind_shared_pointer("tcas_targets");
    traffic.tcas_count_variable = Host().bind_shared_pointer("tcas_target_cnt");
}

void CopyTraffic() {
    if (traffic.tcas_targets_variable == nullptr) return;
    std::memcpy(&traffic.tcas_targets, traffic.tcas_targets_variable, sizeof traffic.tcas_targets);
    if (traffic.tcas_count_variable != nullptr)
        std::memcpy(&traffic.tcas_target_cnt, traffic.tcas_count_variable, sizeof traffic.tcas_target_cnt);
}
