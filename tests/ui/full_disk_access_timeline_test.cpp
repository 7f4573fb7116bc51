#include "ui/full_disk_access_timeline.h"

#include <gtest/gtest.h>

namespace velmora {

namespace {

// Catches a drawing that jumps in or out, a pointer that does not end on the switch or presses it
// at another moment than the switch turns, and a place outside the loop for an early date.
TEST(FullDiskAccessTimeline, ThePointerGlidesToTheSwitchAndTurnsIt) {
    struct Frame {
        double time, opacity, x, y, scale, switchedOn;
    };
    FullDiskAccessTimeline timeline;
    for (const Frame& frame : {Frame{0, 0, 250, 180, 1, 0},
                               {0.15, 0.5, 250, 180, 1, 0},
                               {0.8, 1, 250 + (23 * 0.15625), 180 - (90 * 0.15625), 1, 0},
                               {2.2, 1, 273, 90, 0.86, 0},
                               {2.35, 1, 273, 90, 1, 0.5},
                               {6.3, 1, 273, 90, 1, 1},
                               {6.6, 0.5, 273, 90, 1, 1},
                               {6.95, 0, 273, 90, 1, 1}}) {
        SCOPED_TRACE(frame.time);
        timeline.setTime(frame.time);
        EXPECT_NEAR(timeline.opacity(), frame.opacity, 1e-9);
        EXPECT_NEAR(timeline.pointerX(), frame.x, 1e-9);
        EXPECT_NEAR(timeline.pointerY(), frame.y, 1e-9);
        EXPECT_EQ(timeline.pointerScale(), frame.scale);
        EXPECT_NEAR(timeline.switchedOn(), frame.switchedOn, 1e-9);
    }
    EXPECT_DOUBLE_EQ(FullDiskAccessTimeline::phase({7'000'003.5}), 3.5);
    EXPECT_DOUBLE_EQ(FullDiskAccessTimeline::phase({-1}), 6);
}

}  // namespace

}  // namespace velmora
