#include "fmc/performance/takeoff_speeds.h"

#include <gtest/gtest.h>

namespace {

// Worked by hand from the fits.
TEST(TakeoffSpeeds, HandWorked) {
    // A still standard day; into the wind with a derate on a wet runway; light, where the floors act; behind
    // the wind in the cold on a slippery runway.
    EXPECT_EQ(ComputeV1(200000, 0, 0, 5, 0, 0, 0, 15, 0), 146);
    EXPECT_EQ(ComputeVR(200000, 0, 5, 15, 0), 149);
    EXPECT_EQ(ComputeV2(200000, 0, 5, 15, 0), 157);
    EXPECT_EQ(ComputeV1(250000, 1, 1, 15, 0, 10, 0, 30, 2000), 159);
    EXPECT_EQ(ComputeVR(250000, 1, 15, 30, 2000), 167);
    EXPECT_EQ(ComputeV2(250000, 1, 15, 30, 2000), 169);
    EXPECT_EQ(ComputeV1(130000, 0, 0, 5, 0, 0, 0, 20, 0), 130);
    EXPECT_EQ(ComputeVR(130000, 0, 5, 20, 0), 129);
    EXPECT_EQ(ComputeV2(130000, 0, 5, 20, 0), 138);
    EXPECT_EQ(ComputeV1(300000, 2, 0, 20, 180, 10, 0, -30, 0), 169);
    // Flap settings of other flights and numbers that are none.
    EXPECT_EQ(ComputeVR(200000, 0, 7, 15, 0), ComputeVR(200000, 0, 5, 15, 0));
    EXPECT_EQ(ComputeV2(1e300, 0, 5, 15, 0), 0);
}

TEST(TakeoffSpeeds, HeavierIsNeverSlower) {
    for (const int flaps : {5, 10, 15, 17, 18, 20})
        for (int oat = -50; oat <= 50; oat += 5)
            for (const double altitude : {-1000.0, 0.0, 3000.0, 8000.0, 14000.0}) {
                int v1 = 0, vr = 0, v2 = 0;
                for (double kg = 130000; kg <= 300000; kg += 1000) {
                    const int next_v1 = ComputeV1(kg, 0, 0, flaps, 0, 0, 0, oat, altitude);
                    const int next_vr = ComputeVR(kg, 0, flaps, oat, altitude);
                    const int next_v2 = ComputeV2(kg, 0, flaps, oat, altitude);
                    ASSERT_TRUE(next_v1 >= v1 && next_vr >= vr && next_v2 >= v2)
                        << flaps << ' ' << oat << ' ' << altitude << ' ' << kg;
                    v1 = next_v1, vr = next_vr, v2 = next_v2;
                }
            }
}

}  // namespace
