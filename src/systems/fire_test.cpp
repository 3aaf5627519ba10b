#include "systems/fire_test.h"

#include "state/engines.h"

namespace {
constexpr int kFireTestSeconds = 5;  // and as long for its result
}  // namespace

void FollowFireTest(int) {
    engines.fire_test_timer = kFireTestSeconds;
    engines.fire_pass_timer = 0;
}

void CountFireTest() {
    if (engines.fire_test_timer > 0) {
        if (--engines.fire_test_timer == 0) engines.fire_pass_timer = kFireTestSeconds;
    } else if (engines.fire_pass_timer > 0) {
        --engines.fire_pass_timer;
    }
}
