#include "frame/lamps.h"

#include "state/host_link.h"

void ShowLamp(NamedVarRef lamp, bool lit) {
    if (host_link.lamps_shown.empty()) host_link.lamps_shown.assign(kNamedVariableCount, -1);
    signed char& shown = host_link.lamps_shown[static_cast<std::size_t>(lamp.row)];
    // A lamp that the model doesn't have yet is told when it comes.
    if (shown == (lit ? 1 : 0) || !NamedVarExists(lamp)) return;
    shown = lit ? 1 : 0;
    WriteNamedVar(lamp, shown);
}

void ShowLamps(std::span<const Lamp> lamps) {
    for (const Lamp& lamp : lamps) ShowLamp(lamp.variable, lamp.lit());
}
