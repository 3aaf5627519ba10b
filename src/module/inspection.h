#pragma once

#include "module/linkage.h"

/// The table through which scenarios and the flight deck's inspector see the system. Every call takes the
/// state lock.
const InspectionTable& Inspection();
