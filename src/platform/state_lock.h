#pragma once

#include <mutex>

/// The one lock over the system's state: held by every service call, host callback and inspection call, and
/// by a gauge's worker while it composes a picture. Recursive, for the host may call back while it is called.
class StateLock {
  public:
    StateLock();

  private:
    std::lock_guard<std::recursive_mutex> guard_;
};
