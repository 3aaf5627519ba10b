#include "surveillance/traffic.h"

#include <cstring>

#include "base/numbers.h"
#include "frame/named_variables.h"
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

void ReadTrafficAdvisory() {
    traffic.tcas_ra_level = WholeNumber(ReadNamedVar(NamedVar("tcas_advisory_level")));
    traffic.tcas_ra_vs_min = ReadNamedVar(NamedVar("tcas_ra_vs_min"));
    traffic.tcas_ra_vs_max = ReadNamedVar(NamedVar("tcas_ra_vs_max"));
    traffic.tcas_ra_fpa_tgt = ReadNamedVar(NamedVar("tcas_ra_fpa_tgt"));
    traffic.tcas_pitch_min = ReadNamedVar(NamedVar("tcas_ra_pitch_min"));
    traffic.tcas_pitch_max = ReadNamedVar(NamedVar("tcas_ra_pitch_max"));
}
