#include "ui/full_disk_access_timeline.h"

#include <gtest/gtest.h>

namespace velmora {

namespace {

FullDiskAccessTimeline& at(FullDiskAccessTimeline& timeline, double time) {
    timeline.setTime(time);
    return timeline;
}

// Catches a drawing that jumps in or out, or that is gone too early at the end of the loop.
TEST(FullDiskAccessTimeline, FadesInAndOut) {
    FullDiskAccessTimeline timeline;
    EXPECT_DOUBLE_EQ(at(timeline, 0).opacity(), 0);
    EXPECT_DOUBLE_EQ(at(timeline, 0.15).opacity(), 0.5);
    EXPECT_DOUBLE_EQ(at(timeline, 0.3).opacity(), 1);
    EXPECT_DOUBLE_EQ(at(timeline, 6.3).opacity(), 1);
    EXPECT_NEAR(at(timeline, 6.6).opacity(), 0.5, 1e-9);
    EXPECT_DOUBLE_EQ(at(timeline, 6.95).opacity(), 0);
}

// Catches a pointer that starts, ends or eases elsewhere, and so presses beside the switch.
TEST(FullDiskAccessTimeline, ThePointerGlidesToTheSwitchAndPressesIt) {
    FullDiskAccessTimeline timeline;
    const auto pointsTo = [&](double time, double x, double y) {
        EXPECT_NEAR(at(timeline, time).pointerX(), x, 1e-9);
        EXPECT_NEAR(timeline.pointerY(), y, 1e-9);
    };
    pointsTo(0.4, 250, 180);
    pointsTo(0.8, 250 + (23 * 0.15625), 180 - (90 * 0.15625));
    pointsTo(2.0, 273, 90);
    pointsTo(6.9, 273, 90);

    EXPECT_DOUBLE_EQ(at(timeline, 2.05).pointerScale(), 1);
    EXPECT_DOUBLE_EQ(at(timeline, 2.2).pointerScale(), 0.86);
    EXPECT_DOUBLE_EQ(at(timeline, 2.35).pointerScale(), 1);
}

// Catches a switch that turns before it is pressed or never gets there.
TEST(FullDiskAccessTimeline, TheSwitchFollowsThePress) {
    FullDiskAccessTimeline timeline;
    EXPECT_DOUBLE_EQ(at(timeline, 2.2).switchedOn(), 0);
    EXPECT_NEAR(at(timeline, 2.35).switchedOn(), 0.5, 1e-9);
    EXPECT_DOUBLE_EQ(at(timeline, 2.5).switchedOn(), 1);
    EXPECT_DOUBLE_EQ(at(timeline, 6.99).switchedOn(), 1);
}

// Catches a loop of another length, one that does not start at the reference date, and a negative
// place in it for a clock that is set before that date.
TEST(FullDiskAccessTimeline, LoopsFromTheReferenceDate) {
    EXPECT_DOUBLE_EQ(FullDiskAccessTimeline::phase({0}), 0);
    EXPECT_DOUBLE_EQ(FullDiskAccessTimeline::phase({7}), 0);
    EXPECT_DOUBLE_EQ(FullDiskAccessTimeline::phase({7'000'003.5}), 3.5);
    EXPECT_DOUBLE_EQ(FullDiskAccessTimeline::phase({-1}), 6);
}

}  // namespace

}  // namespace velmora
