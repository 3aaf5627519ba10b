#include <benchmark/benchmark.h>

#include "frame/named_variables.h"
#include "support/fake_host.h"
#include "systems/alerting/alerts_update.h"

namespace {

// A dark aircraft, when all that can stand has come: each of the messages is tested either for coming or for
// going, and the display's lists are as long as they get.
void AlertPass(benchmark::State& state) {
    FakeHost host;
    for (const NamedVariable& variable : kNamedVariables) host.NamedVar(variable.name);
    constexpr int kSettled = 200;
    for (int i = 0; i < kSettled; ++i) AlertsUpdate();
    for (auto _ : state) AlertsUpdate();
}
BENCHMARK(AlertPass)->Unit(benchmark::kMicrosecond);

}  // namespace
