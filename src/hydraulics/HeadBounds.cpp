// Lines over the squared flow.
#include "hydraulics/HeadBounds.h"

#include <algorithm>
#include <cmath>

namespace velorix {
namespace {

struct Squares {
    double Least;
    double Most;
};

// The squares of all flows between A and B.
Squares SquaresBetween(double A, double B)
{
    const double One = A * A;
    const double Other = B * B;
    const bool CrossesZero = (A < 0) != (B < 0);
    return {CrossesZero ? 0 : std::min(One, Other), std::max(One, Other)};
}

} // namespace

HeadBounds::HeadBounds(const SystemHeadProfile& Profile, const LossCoefficients& Losses, double A, double B)
{
    const int Rows = Profile.RowCount;
    Line Unlifted{Profile.DownstreamLevel - Profile.UpstreamLevel, 0};
    for (int i = 0; i < Rows - 1; ++i) Unlifted.Slope += Losses.Friction[i] + Losses.Secondary[i];
    Lines.push_back(Unlifted);

    // A line that lies below another at both ends of the range lies below it in between.
    const auto [Least, Most] = SquaresBetween(A, B);
    double LargestGround = 0;
    double Slope = 0;
    for (int i = 0; i < Rows; ++i) {
        const Line Lifted{Profile.GroundLevel[i] - 1 - Profile.UpstreamLevel, Slope};
        if (Lifted.At(Least) > Unlifted.At(Least) || Lifted.At(Most) > Unlifted.At(Most))
            Lines.push_back(Lifted);
        LargestGround = std::max(LargestGround, std::fabs(Profile.GroundLevel[i]));
        Slope += Losses.Friction[i] + Losses.Secondary[i];
    }

    const double Share = (2 * Rows + 8) * 0x1p-24;
    const double Levels = std::fabs(Profile.UpstreamLevel) + std::fabs(Profile.DownstreamLevel);
    Slack = {Share * (Levels + LargestGround + 1), Share * Losses.LargestTotal};
}

HeadBounds::Range HeadBounds::Between(double A, double B) const
{
    const auto [Least, Most] = SquaresBetween(A, B);
    Range Heads{-HUGE_VAL, -HUGE_VAL};
    for (const Line& Each : Lines) {
        const double One = Each.At(Least);
        const double Other = Each.At(Most);
        Heads.Low = std::max(Heads.Low, std::min(One, Other));
        Heads.High = std::max(Heads.High, std::max(One, Other));
    }
    const double Off = Slack.At(Most);
    return {Heads.Low - Off, Heads.High + Off};
}

} // namespace velorix
