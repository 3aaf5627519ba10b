#pragma once

#include "display/formats/format.h"

/// Null for a content without a row.
const DisplayFormat* FindFormat(Content content);

/// Where a content stands on a half of a unit.
ContentPlace PlaceOf(Content content, int mode, int unit, int half);
