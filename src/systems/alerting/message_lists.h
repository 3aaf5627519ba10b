#pragma once

#include "state/alerts.h"
#include "systems/alerting/catalogue.h"

// The four lists of what stands, and the key that cancels and recalls.

/// A list beside its count, which never leads past the list's storage, whoever wrote it.
struct AlertList {
    GrowingList<AlertRecord> AlertState::*records;
    int AlertState::*count;

    const AlertRecord& At(int index) const { return (alerts.*records)[index]; }
    int Count() const;
};
const AlertList& ListOf(AlertLevel level);

/// Puts a message on top of its list; the crew hasn't cancelled it.
void PostAlert(const AlertRow& row);
/// Takes every record with the row's text out of the list of its level.
void RemoveAlert(const AlertRow& row);

/// The CANC/RCL key of either side: takes up to eleven cautions and advisories off the display, the newest
/// cautions first; with none left to take off it brings all of them back.
void CancelRecall();

/// Once a second: the word that tells of a recall stands three seconds.
void CountRecall();
