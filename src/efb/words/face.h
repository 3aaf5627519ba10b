#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "paint/colours.h"

// What a page is made of. A page lays out its face from the state, and whoever paints it, touches it or lists
// what may be touched reads the same layout.

/// A tablet's canvas.
constexpr int kTabletWidth = 340, kTabletHeight = 448;

struct TabletBox {
    int x, y, width, height;
    bool Holds(int px, int py) const { return px >= x && px < x + width && py >= y && py < y + height; }
};

/// What a touch does, with a number of the item's own.
using TabletAction = void (*)(int side, int number);

enum class TabletLook { kPanel, kButton, kChosen, kGrey, kField, kEdited, kKey };

struct TabletItem {
    TabletBox box;
    std::string text;   // may have two lines
    std::string label;  // of a field, beside it
    TabletLook look = TabletLook::kButton;
    TabletAction action = nullptr;
    int number = 0;
    int field = 0;         // an entry field's number on its page; it has no action
    bool goes_on = false;  // a touch leaves the field that is being edited open
    bool IsTouchable() const { return action != nullptr || field != 0; }
};

enum class TabletAlign { kLeft, kMiddle };

struct TabletText {
    double x, y;
    float size;
    Rgb colour;
    std::string text;
    TabletAlign align = TabletAlign::kLeft;
};

constexpr int kLabelWidth = 36;
constexpr Rgb kTabletInk{235, 240, 244}, kTabletLabel{150, 172, 192}, kTabletGrey{128, 134, 140};

/// Texts lie lowest; of the items the later ones lie on top.
struct TabletFace {
    int side;
    std::vector<TabletText> texts;
    std::vector<TabletItem> items;

    void Title(std::string_view text);
    void Text(double x, double y, std::string_view text, Rgb colour = kTabletInk, float size = 10);
    void Centred(double x, double y, std::string_view text, Rgb colour = kTabletInk, float size = 10);
    void Button(const TabletBox& box, std::string_view text, TabletAction action, int number = 0);
    /// Something that has no function, or none now.
    void GreyButton(const TabletBox& box, std::string_view text);
    /// A value that is typed, with its label that far before it.
    void Field(const TabletBox& box, std::string_view label, std::string_view value, int field,
               int label_width = kLabelWidth);
    /// A value that is chosen by an action.
    void Choice(const TabletBox& box, std::string_view label, std::string_view value, TabletAction action,
                int number = 0);
    /// A value that is only shown.
    void Shown(const TabletBox& box, std::string_view label, std::string_view value);

    /// The topmost item that a touch there reaches; null when there is none.
    const TabletItem* At(int x, int y) const;
};
