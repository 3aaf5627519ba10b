#include <chrono>
#include <cmath>

#include "host/world/world.h"

namespace host {
namespace {

constexpr double kStartOfDaySeconds = 12 * 3600;  // every run begins at noon UTC of the machine's date

// Since midnight of the machine's date, never negative.
double SecondsOfClock() {
    return kStartOfDaySeconds + world.clock_offset_hours * 3600 + world.seconds;
}

std::chrono::year_month_day DateOf(int yyyymmdd) {
    return {std::chrono::year{yyyymmdd / 10000},
            std::chrono::month{static_cast<unsigned>(yyyymmdd / 100 % 100)},
            std::chrono::day{static_cast<unsigned>(yyyymmdd % 100)}};
}

}  // namespace

std::int64_t UtcSeconds() {
    using namespace std::chrono;
    const sys_seconds midnight = sys_days{DateOf(world.machine_date)};
    return midnight.time_since_epoch().count() + static_cast<std::int64_t>(SecondsOfClock());
}

void FillClockTokens() {
    using namespace std::chrono;
    const double of_day = SecondsOfClock();
    const sys_days today = floor<days>(sys_seconds(seconds(UtcSeconds())));
    const year_month_day date{today};
    const int second_of_day = static_cast<int>(std::fmod(of_day, 86400));
    const int day_of_year = static_cast<int>((today - sys_days{date.year() / January / 1}).count()) + 1;
    // Days since year 1, so that the absolute time is a large number as the simulator's is.
    const double absolute =
        (static_cast<double>(today.time_since_epoch().count()) + 719162) * 86400 + std::fmod(of_day, 86400);
    SetToken(1, static_cast<double>(world.ticks));
    SetToken(3, second_of_day / 3600);
    SetToken(4, second_of_day / 60 % 60);
    SetToken(5, second_of_day % 60);
    SetToken(6, second_of_day / 3600);
    SetToken(7, second_of_day / 60 % 60);
    SetToken(8, day_of_year);
    SetToken(9, static_cast<int>(date.year()));
    SetToken(604, absolute);
    SetToken(336, world.sim_rate * 256);
    SetCalc("(E:LOCAL DAY OF WEEK,enum)", static_cast<double>(weekday{today}.c_encoding()));
    SetCalc("(E:LOCAL DAY OF MONTH,enum)", static_cast<double>(static_cast<unsigned>(date.day())));
    SetCalc("(E:LOCAL MONTH OF YEAR,enum)", static_cast<double>(static_cast<unsigned>(date.month())));
}

void SetClockHour(int hour) {
    world.clock_offset_hours += hour - static_cast<int>(std::fmod(SecondsOfClock(), 86400) / 3600);
    FillClockTokens();
}

void AdvanceClock() {
    ++world.ticks;
    world.seconds = static_cast<double>(world.ticks) / 18.0;
    FillClockTokens();
}

}  // namespace host
