#pragma once

#include <string_view>

#include "platform/files.h"

/// A file of the navigation data folder, empty when it can't be read.
FileBytes ReadNavdata(std::string_view name);
