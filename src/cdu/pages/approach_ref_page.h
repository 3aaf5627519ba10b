#pragma once

struct PageCall;

/// APPROACH REF: the speeds of the landing, and what the tablet has sent of them.
void ApproachRefPage(PageCall& call);
