#pragma once

#include "host/session.h"

namespace host {

/// Prints what has been read of the navigation data: of each file its rows, how many lines were skipped, and
/// the first of them with the reason; what is missing or empty is named.
void PrintNavdata(const Session& session);

}  // namespace host
