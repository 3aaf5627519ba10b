#pragma once

namespace host {

/// What `tz900 --version` tells.
constexpr const char* kVersion = "0.1";

}  // namespace host
