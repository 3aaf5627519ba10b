#include "efb/words/face.h"

#include "state/efb.h"

void TabletFace::Title(std::string_view text) {
    constexpr float kTitleSize = 13;
    Centred(kTabletWidth / 2.0, 3, text, kTabletInk, kTitleSize);
}

void TabletFace::Text(double x, double y, std::string_view text, Rgb colour, float size) {
    texts.push_back({x, y, size, colour, std::string(text)});
}

void TabletFace::Centred(double x, double y, std::string_view text, Rgb colour, float size) {
    texts.push_back({x, y, size, colour, std::string(text), TabletAlign::kMiddle});
}

void TabletFace::Button(const TabletBox& box, std::string_view text, TabletAction action, int number) {
    items.push_back({.box = box, .text = std::string(text), .label = {}, .action = action, .number = number});
}

void TabletFace::GreyButton(const TabletBox& box, std::string_view text) {
    items.push_back({.box = box, .text = std::string(text), .label = {}, .look = TabletLook::kGrey});
}

void TabletFace::Field(const TabletBox& box, std::string_view label, std::string_view value, int field,
                       int label_width) {
    const bool edited = efb.EfbEditField == field;
    Text(box.x - label_width, box.y + 4, label, kTabletLabel, 9);
    items.push_back({.box = box,
                     .text = edited ? efb.EfbScratch + "_" : std::string(value),
                     .label = std::string(label),
                     .look = edited ? TabletLook::kEdited : TabletLook::kField,
                     .field = field});
}

void TabletFace::Choice(const TabletBox& box, std::string_view label, std::string_view value,
                        TabletAction action, int number) {
    Text(box.x - kLabelWidth, box.y + 4, label, kTabletLabel, 9);
    items.push_back({.box = box,
                     .text = std::string(value),
                     .label = std::string(label),
                     .look = TabletLook::kField,
                     .action = action,
                     .number = number});
}

void TabletFace::Shown(const TabletBox& box, std::string_view label, std::string_view value) {
    Text(box.x - kLabelWidth, box.y + 4, label, kTabletLabel, 9);
    Text(box.x + 4, box.y + 4, value);
}

const TabletItem* TabletFace::At(int x, int y) const {
    for (auto item = items.rbegin(); item != items.rend(); ++item)
        if (item->box.Holds(x, y)) return &*item;
    return nullptr;
}
