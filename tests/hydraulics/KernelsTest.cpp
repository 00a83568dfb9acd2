// What makes the kernels certain: the tolerance of the coefficients, and the window about a tie.
#include "hydraulics/Kernels.h"

#include "hydraulics/HydraulicsTest.h"
#include "hydraulics/PlainReference.h"

#include <random>

namespace velorix {
namespace {

class KernelsTest : public HydraulicsTest {};

// A tenth of the tolerance would still do for most flows; beyond it the kernels could be wrong.
TEST_F(KernelsTest, LossesLieWithinTheToleranceOfTheirCoefficients)
{
    std::mt19937 Random(20050303);
    std::uniform_real_distribution<double> Exponent(-6, 3);
    for (int i = 1; i <= MaxRows; ++i) {
        sample::AddNode({0, 0, std::pow(10, Exponent(Random) / 3), std::pow(10, Exponent(Random))});
        InternalDiameter[i] = wDiameter[i];
        SectionLength[i] = (i % 7 == 0 ? -1 : 1) * std::pow(10, Exponent(Random));
        Lambda(i, 1) = 0.01 + 0.0001 * i;
    }
    LossCoefficients Losses;
    ASSERT_TRUE(FindLossCoefficients(1, Losses));
    for (int i = 1; i <= MaxRows; ++i) {
        for (int n = 0; n < 200; ++n) {
            const Single Q = std::pow(10, Exponent(Random));
            const double ByFriction = plain::Friction(i, 1, Q);
            const double BySecondary = plain::Secondary(i, Q);
            ASSERT_LE(std::fabs(Losses.Friction[i - 1] * (Q * Q) - ByFriction),
                      0x1p-48 * std::fabs(ByFriction));
            ASSERT_LE(std::fabs(Losses.Secondary[i - 1] * (Q * Q) - BySecondary), 0x1p-48 * BySecondary);
        }
    }
}

TEST_F(KernelsTest, NumbersFarOutAreRefused)
{
    sample::AddNode({0, 0, 1, 1});
    InternalDiameter[1] = 1;
    SectionLength[1] = 1;
    LossCoefficients Losses;
    EXPECT_TRUE(FindLossCoefficients(1, Losses));
    for (const double K : {1e-40, double(INFINITY), double(NAN)}) {
        wSecondaryLoss[1] = K;
        EXPECT_FALSE(FindLossCoefficients(1, Losses)) << K;
    }
    wSecondaryLoss[1] = 0;
    InternalDiameter[1] = 1e-30;
    EXPECT_FALSE(FindLossCoefficients(1, Losses));
}

// 1 + 2^-24 lies half way between the stored 1 and 1 + 2^-23. At Q = 1 the loss is the coefficient itself.
TEST_F(KernelsTest, ALossNextToATieIsUnsure)
{
    const double Tie = 1 + 0x1p-24;
    SystemHeadProfile Profile{};
    Profile.RowCount = 2;
    FlowLanes Lanes{};
    Lanes.Squared.fill(1);
    LossCoefficients Losses{};
    SystemHeadLanes Heads;
    ClearanceLanes Clear;

    for (const double Off : {0.0, 0x1p-48, -0x1p-48}) {
        Losses.Friction[0] = Tie + Off;
        WorkSystemHeads(Profile, Losses, Lanes, Heads);
        EXPECT_NE(Heads.Unsure[0], 0U) << Off;
    }
    Losses.Friction[0] = Tie;
    WorkClearances(Profile.GroundLevel.data(), 1, Losses, Lanes, Clear);
    EXPECT_NE(Clear.Unsure[5], 0);

    for (const double Off : {0x1p-40, -0x1p-40}) {
        Losses.Friction[0] = Tie + Off;
        WorkSystemHeads(Profile, Losses, Lanes, Heads);
        WorkClearances(Profile.GroundLevel.data(), 1, Losses, Lanes, Clear);
        EXPECT_EQ(Heads.Unsure[LaneCount - 1], 0U);
        EXPECT_EQ(Heads.Head[LaneCount - 1], Off > 0 ? 1 + 0x1p-23F : 1.0F);
        EXPECT_EQ(Clear.Unsure[0], 0);
        EXPECT_NE(Clear.Failed[0], 0); // a static head of 0 less 1 m
    }
}

} // namespace
} // namespace velorix
