#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <string>

#include "display/formats/pfd.h"
#include "display/nd/nd_picture.h"
#include "state/autoflight.h"
#include "state/leg_words.h"
#include "state/plan.h"
#include "support/fake_host.h"
#include "support/set_variables.h"

// What is given out is counted. A sanitizer brings an operator new of its own, beside which this one may not
// stand.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)

namespace {
thread_local int allocations = 0;
}

void* operator new(std::size_t size) {
    ++allocations;
    if (void* const memory = std::malloc(size > 0 ? size : 1)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace {

// Once its list has room for them, the next picture needs no memory: 18 a second are drawn for hours.
TEST(Allocation, PicturesTakeNone) {
    const FakeHost host;
    SetVariables("power_level 1000, du_pfd_ah_startup_cnt 10, irs_left 1, irs_right 1");
    SetVariables("ind_alt_ft 5000, ias_kt 250, ground_speed_kt 300, radio_alt_ft 2000, wind_kt 20, tod 1");
    SetVariables("nd_vsd 1, nd_data 1, nd_vor_l 1, nd_wpt 1, nav1_radial 30, ap_lat_mode 6, v_mo_kt 330");
    for (int i = 0; i < 4; ++i) {
        FlightPlanLeg& leg = plan.active.legs[i];
        leg.ident = "LEG" + std::to_string(i);
        leg.lat = 0.2 * i;
        leg.lon = i == 2 ? 0.3 : 0;
        leg.alt = leg.alt_restr = 5000;
        leg.restr_code = kAltitudeRestr;
    }
    plan.active.leg_cnt = 3;
    plan.active.stpos = 1;
    plan.fms_fpln_active = kRouteActive;
    plan.HoldList[1].leg = 2;
    plan.hold_cnt = 1;

    constexpr ContentPlace kPfd{
        .mode = 1, .unit = 1, .half = 2, .side = 1, .narrow = false, .system_page = 0};
    DrawList list;
    for (int picture = 0; picture < 3; ++picture) {
        const int before = allocations;
        Graphics graphics = GdipCreateGraphics(list, 564, 424);
        DrawNdPicture(graphics, 1, 1, false);
        DrawPfd(graphics, kPfd);
        GdipDeleteGraphics(graphics);
        EXPECT_EQ(allocations > before, picture == 0) << picture;
    }
    EXPECT_GT(list.primitives.size(), 300U);
}

}  // namespace

#endif
