#include "platform/state_lock.h"

namespace {
std::recursive_mutex state_mutex;
}  // namespace

StateLock::StateLock() : guard_(state_mutex) {}
