// What makes the kernels certain: the numbers that they take, and the window about a tie.
#include "hydraulics/Kernels.h"

#include "hydraulics/HydraulicsTest.h"

namespace velorix {
namespace {

using KernelsTest = HydraulicsTest;

// 1 + 2^-24 lies half way between the stored 1 and 1 + 2^-23, and a coefficient may be off by 2^-48. At Q = 1
// the loss is the coefficient itself.
TEST_F(KernelsTest, WhatMayBeATieIsUnsure)
{
    SystemHeadProfile Profile{};
    Profile.RowCount = 2;
    FlowLanes Lanes{};
    Lanes.Squared.fill(1);
    LossCoefficients Losses{};
    SystemHeadLanes Heads;
    for (const double Off : {0x1p-48, -0x1p-48, 0.0}) {
        Losses.Friction[0] = 1 + 0x1p-24 + Off;
        WorkSystemHeads(Profile, Losses, Lanes, Heads);
        EXPECT_NE(Heads.Unsure[0], 0U) << Off;
    }
    ClearanceLanes Clear;
    WorkClearances(Profile.GroundLevel.data(), 1, Losses, Lanes, Clear);
    EXPECT_NE(Clear.Unsure[0], 0);
    Losses.Friction[0] = 1; // from a static head of 0 to exactly -1 m, which is too low
    WorkClearances(Profile.GroundLevel.data(), 1, Losses, Lanes, Clear);
    EXPECT_NE(Clear.Failed[0], 0);
}

TEST_F(KernelsTest, NumbersFarOutAreRefused)
{
    AddRow(0, 1, 1, 1, 0.02);
    LossCoefficients Losses;
    EXPECT_TRUE(FindLossCoefficients(Year, Losses));
    wSecondaryLoss[1] = 1e-40;
    EXPECT_FALSE(FindLossCoefficients(Year, Losses));
}

} // namespace
} // namespace velorix
