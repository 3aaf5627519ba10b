#include "frame/controls.h"

#include <algorithm>
#include <array>
#include <functional>
#include <span>

#include "base/numbers.h"
#include "frame/named_variables.h"

namespace {

struct Tie {
    const int* shadow;
    NamedVarRef variable;
};

constexpr auto kTieCount = static_cast<std::size_t>(std::ranges::count_if(
    kNamedVariables, [](const NamedVariable& variable) { return variable.shadow != nullptr; }));

// Sorted by shadow: an order of addresses, which only the running program knows.
std::array<Tie, kTieCount> SortTies() {
    std::array<Tie, kTieCount> ties;
    auto next = ties.begin();
    for (int row = 0; row < kNamedVariableCount; ++row)
        if (ShadowOf({row}) != nullptr) *next++ = {ShadowOf({row}), {row}};
    std::ranges::stable_sort(ties, std::less<>(), &Tie::shadow);
    return ties;
}

std::span<const Tie> TiesOf(const int* shadow) {
    static const std::array<Tie, kTieCount> ties = SortTies();
    return std::ranges::equal_range(ties, shadow, std::less<>(), &Tie::shadow);
}

}  // namespace

void SetControl(int* shadow, int position) {
    *shadow = position;
    ShowControl(shadow);
}

void ShowControl(const int* shadow) {
    for (const Tie& tie : TiesOf(shadow)) WriteNamedVar(tie.variable, *shadow);
}

void TakeControlFromModel(int* shadow) {
    for (const Tie& tie : TiesOf(shadow)) *shadow = WholeNumber(ReadNamedVar(tie.variable));
}
