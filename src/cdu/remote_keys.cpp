#include "cdu/remote_keys.h"

#include "cdu/keypad.h"
#include "frame/cues.h"

namespace {

struct RemoteKey {
    int code;
    void (*press)(int side);
};
constexpr RemoteKey kKeys[] = {
    {18, OnPlusMinus}, {46, OnSpace},        {47, OnDelete},   {48, OnSlash},
    {49, OnClear},     {50, OnPreviousPage}, {51, OnNextPage}, {52, OnExec},
};

// The character of a code, 0 = none.
char CharacterOf(int code) {
    if (code >= 7 && code <= 15) return static_cast<char>('1' + code - 7);
    if (code >= 20 && code <= 45) return static_cast<char>('A' + code - 20);
    return code == 16 ? '.' : code == 17 ? '0' : '\0';
}

}  // namespace

void OnRemoteKey(int side, int code) {
    const char character = CharacterOf(code);
    if (character != '\0') {
        RequestCue(kCueKeyClick);
        return OnCduKeyChar(side, character);
    }
    for (const RemoteKey& key : kKeys) {
        if (key.code != code) continue;
        RequestCue(kCueKeyClick);
        key.press(side);
    }
}
