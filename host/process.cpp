#include "host/process.h"

#include <signal.h>

#include <cerrno>
#include <csignal>
#include <initializer_list>

namespace host {
namespace {

volatile std::sig_atomic_t end_signal = 0;

}  // namespace

void HoldEndSignals() {
    struct sigaction hold = {};
    hold.sa_handler = [](int signal) { end_signal = signal; };
    hold.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
    sigemptyset(&hold.sa_mask);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction before = {};
        sigaction(signal, nullptr, &before);
        if (signal != SIGHUP || before.sa_handler != SIG_IGN) sigaction(signal, &hold, nullptr);
    }
}

int EndSignal() {
    return end_signal;
}

bool IsProcessGone(int id) {
    return id > 0 && kill(id, 0) != 0 && errno == ESRCH;
}

}  // namespace host
