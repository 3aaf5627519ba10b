#pragma once

#include "host/fly/fly.h"

namespace host {

/// Shows a recording on the flight deck, options.rate times as fast as it was. Where it ends, or as soon as
/// a user works anything, the flight is the user's. The exit status; 2 when it is no recording or a command
/// of it is wrong.
int PlayRecording(const FlyOptions& options);

}  // namespace host
