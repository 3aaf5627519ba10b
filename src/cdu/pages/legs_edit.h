#pragma once

struct PageCall;

/// LegsChanged, for an edit made on LEGS: a direct-to that it has begun shows in its view.
void FinishLegsEdit(PageCall& call);

/// Inserts a candidate of the entry at a leg, as the pick on SELECT DESIRED WPT asks.
void InsertPickedLeg(PageCall& call, int leg, int candidate);
