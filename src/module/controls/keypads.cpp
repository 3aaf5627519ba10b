#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "cdu/unit/items.h"
#include "cdu/unit/keypad.h"
#include "module/controls/panels.h"
#include "state/cockpit.h"
#include "state/side.h"

namespace {

constexpr std::string_view kCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";

consteval NamedVarRef KeyVariable(int side, std::string_view key) {
    return NamedVar(std::string(side == kCaptain ? "TZ_FMC_L_" : "TZ_FMC_R_") + std::string(key) + "_Button");
}

template <int kSide, char kCharacter>
void Type(int) {
    OnCduKeyChar(kSide, kCharacter);
}

template <int kSide, std::size_t... kIndex>
consteval auto Characters(std::index_sequence<kIndex...>) {
    return std::array{
        Key(KeyVariable(kSide, kCharacters.substr(kIndex, 1)), Type<kSide, kCharacters[kIndex]>)...};
}

template <int kSide>
consteval auto Keypad() {
    constexpr auto kOthers = std::to_array<Control>({
        Key(KeyVariable(kSide, "DEC"), Type<kSide, '.'>),
        Key(KeyVariable(kSide, "SLASH"), [](int) { OnSlash(kSide); }),
        Key(KeyVariable(kSide, "NEGPOS"), [](int) { OnPlusMinus(kSide); }),
        Key(KeyVariable(kSide, "SP"), [](int) { OnSpace(kSide); }),
        Key(KeyVariable(kSide, "DEL"), [](int) { OnDelete(kSide); }),
        Key(KeyVariable(kSide, "CLR"), [](int) { OnClear(kSide); }),
        Key(KeyVariable(kSide, "PRVPG"), [](int) { OnPreviousPage(kSide); }),
        Key(KeyVariable(kSide, "NXTPG"), [](int) { OnNextPage(kSide); }),
        Key(KeyVariable(kSide, "EXEC"), [](int) { OnExec(kSide); }),
    });
    return JoinTables(Characters<kSide>(std::make_index_sequence<kCharacters.size()>()), kOthers);
}

constexpr auto kItemPresses = std::to_array<Control>({
    Momentary(NamedVar("TZ_CAPT_CDU_KEYPRESS"), [](int item) { OnCduKeyPress(kCaptain, item); }),
    Momentary(NamedVar("TZ_FO_CDU_KEYPRESS"), [](int item) { OnCduKeyPress(kFirstOfficer, item); }),
});

constexpr auto kPedestal = std::to_array<Control>({
    Switch(NamedVar("TZ_AFT_Transponder_Knob"), &cockpit.TZ_AFT_Transponder_Knob, 0, 4),
    Switch(NamedVar("TZ_AFT_FD_DOOR_Switch"), &cockpit.TZ_AFT_FD_DOOR_Switch, 0, 2),
    Latching(NamedVar("TZ_AFT_OBS_Audio_Switch"), &cockpit.TZ_AFT_OBS_Audio_Switch),
});

constexpr auto kKeypads = JoinTables(Keypad<kCaptain>(), Keypad<kFirstOfficer>(), kItemPresses);
static_assert(kKeypads.size() + kPedestal.size() == 95);

}  // namespace

std::span<const Control> KeypadControls() {
    return kKeypads;
}

std::span<const Control> PedestalControls() {
    return kPedestal;
}
