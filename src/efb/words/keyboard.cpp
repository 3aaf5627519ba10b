#include "efb/words/keyboard.h"

#include <string_view>

#include "state/efb.h"

namespace {

// The characters of keys 1 to 43, layer by layer. The first ten and the last seven are the same on all.
enum Layer { kCapitals, kSmallLetters, kSymbols, kLayers };
constexpr std::string_view kLayerKeys[kLayers] = {
    "1234567890QWERTYUIOPASDFGHJKLZXCVBNM./-,+\\\xb0",
    "1234567890qwertyuiopasdfghjklzxcvbnm./-,+\\\xb0",
    "1234567890!@#$%^&*()_=[]{}<>?:;'\"|~`./-,+\\\xb0",
};
constexpr int kCharacterKeys = 43;
static_assert(kLayerKeys[kCapitals].size() == kCharacterKeys &&
              kLayerKeys[kSmallLetters].size() == kCharacterKeys &&
              kLayerKeys[kSymbols].size() == kCharacterKeys);

// A row of character keys: the first ones in their order, then some of the last seven.
struct KeyRow {
    int y, x, first, count, first_extra, extras;
};
constexpr KeyRow kKeyRows[] = {
    {327, 6, 1, 10, 37, 1},
    {357, 6, 11, 10, 38, 1},
    {387, 6, 21, 9, 39, 2},
    {417, 21, 30, 7, 41, 3},
};
constexpr int kPitch = 30, kKeyWidth = 28, kKeyHeight = 27, kTop = 292;

constexpr int kKeySpace = 44, kKeyClear = 45, kKeySymbols = 46, kKeyBackspace = 47, kKeyShift = 48;
struct WideKey {
    int number, x, width;
    const char* text;
};
constexpr int kWideY = 296;
constexpr WideKey kWideKeys[] = {
    {kKeySymbols, 21, 58, "SYMB"},    {kKeyShift, 83, 58, "SHIFT"},     {kKeySpace, 145, 70, "SP"},
    {kKeyClear, 219, 48, "CLR\nFLD"}, {kKeyBackspace, 271, 48, "BKSP"},
};

Layer LayerOf(int side) {
    const int stored = EfbOf(side).keyboard_layer;
    return stored > kCapitals && stored < kLayers ? static_cast<Layer>(stored) : kCapitals;
}

void PressKey(int side, int number) {
    const Layer layer = LayerOf(side);
    int& stored = EfbOf(side).keyboard_layer;
    switch (number) {
        case kKeySpace:
            return TypeCharacter(' ');
        case kKeyClear:
            return efb.EfbScratch.clear();
        case kKeyBackspace:
            return TypeCharacter('\b');
        case kKeySymbols:
            stored = layer == kSymbols ? kCapitals : kSymbols;
            return;
        case kKeyShift:
            stored = layer == kSmallLetters ? kCapitals : kSmallLetters;
            return;
        default:
            TypeCharacter(kLayerKeys[layer][static_cast<std::size_t>(number - 1)]);
    }
}

void ToggleKeyboard(int, int) {
    efb.EfbKeyboardShown = efb.EfbKeyboardShown == 1 ? 0 : 1;
}

}  // namespace

void TypeCharacter(char c) {
    constexpr std::size_t kLongest = 40;
    std::string& scratch = efb.EfbScratch;
    if (c == '\b') {
        if (!scratch.empty()) scratch.pop_back();
        return;
    }
    bool is_known = c == ' ';
    for (const std::string_view keys : kLayerKeys) is_known |= keys.find(c) != std::string_view::npos;
    if (is_known && scratch.size() < kLongest) scratch.push_back(c);
}

void AddKeyboard(TabletFace& face) {
    if (efb.EfbKeyboardShown != 1) return;
    const Layer layer = LayerOf(face.side);
    const auto add = [&](const TabletBox& box, std::string_view text, int number, TabletLook look) {
        face.items.push_back({.box = box,
                              .text = std::string(text),
                              .label = {},
                              .look = look,
                              .action = PressKey,
                              .number = number,
                              .goes_on = true});
    };
    face.items.push_back({.box = {0, kTop, kTabletWidth, kTabletHeight - kTop},
                          .text = {},
                          .label = {},
                          .look = TabletLook::kPanel});
    for (const KeyRow& row : kKeyRows)
        for (int place = 0; place < row.count + row.extras; ++place) {
            const int number = place < row.count ? row.first + place : row.first_extra + place - row.count;
            add({row.x + place * kPitch, row.y, kKeyWidth, kKeyHeight},
                kLayerKeys[layer].substr(static_cast<std::size_t>(number - 1), 1), number, TabletLook::kKey);
        }
    for (const WideKey& key : kWideKeys) {
        const bool in_force = (key.number == kKeySymbols && layer == kSymbols) ||
                              (key.number == kKeyShift && layer == kSmallLetters);
        add({key.x, kWideY, key.width, kKeyHeight}, key.text, key.number,
            in_force ? TabletLook::kChosen : TabletLook::kKey);
    }
}

void AddKeyboardToggle(TabletFace& face) {
    constexpr TabletBox kToggle{2, 198, 48, 31};
    face.items.push_back({.box = kToggle,
                          .text = efb.EfbKeyboardShown == 1 ? "HIDE\nKYBD" : "SHOW\nKYBD",
                          .label = {},
                          .action = ToggleKeyboard,
                          .goes_on = true});
}
