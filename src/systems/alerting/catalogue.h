#pragma once

#include <span>
#include <string_view>

enum class AlertLevel { kWarning, kCaution, kAdvisory, kMemo };

/// One crew alerting message. It comes while `appears` holds and `goes` doesn't, and it is removed while
/// `goes` holds; where neither holds, it stays as it is. The two aren't opposites: most have a gap between.
struct AlertRow {
    int id;  // of `posted`
    std::string_view text;
    AlertLevel level;
    bool (*appears)();
    bool (*goes)();
};

/// All messages, in the order in which they are looked at for the next one to come.
std::span<const AlertRow> AlertCatalogue();

/// The row of a text; null for one that isn't in the catalogue.
const AlertRow* FindAlert(std::string_view text);
