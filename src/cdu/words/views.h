#pragma once

// Which view of itself a CDU shows, where that isn't the page's own business.

/// LEGS goes back to its normal view; what was picked in another is forgotten.
void LeaveLegsView();

/// Takes what the route has asked of the CDUs.
void TakeViewRequests();
