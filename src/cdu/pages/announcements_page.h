#pragma once

struct PageCall;

/// ANNOUNCEMENT STATUS: how far the voices have come, and what they wait for.
void AnnouncementsPage(PageCall& call);
