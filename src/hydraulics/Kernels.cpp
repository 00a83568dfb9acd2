// Inner loops: rows outside, flows inside, so that the compiler makes vectors of the flows.
#include "hydraulics/Kernels.h"

#include <bit>
#include <cmath>

// Built once for each width of vector; the widest that the machine has is taken when the program starts. All
// give the same digits.
#if defined(__GNUC__) && !defined(__clang__) && defined(__x86_64__) && defined(__gnu_linux__) &&             \
    !defined(__SANITIZE_ADDRESS__)
#define VELORIX_KERNEL __attribute__((target_clones("avx512f", "avx2", "default")))
#else
#define VELORIX_KERNEL
#endif

namespace velorix {
namespace {

// A double is rounded to 32 bits, and stays a double, by adding half of the last place kept and cutting off
// the 29 bits below it. That differs from the processor's rounding only at the tie between two 32-bit
// numbers. The window about the tie is as wide as two doubles can lie apart within LossTolerance (32 units of
// the last bit to either side): outside it, both round alike.
constexpr std::uint64_t CutBits = (1ULL << 29) - 1;
constexpr std::uint64_t WindowSide = 32;
constexpr std::uint64_t HalfAndWindow = (1ULL << 28) + WindowSide;
constexpr std::uint64_t AboveWindow = CutBits & ~(2 * WindowSide - 1);

inline double CutToSingle(std::uint64_t Raised)
{
    return std::bit_cast<double>(Raised & ~CutBits);
}

// The top bit is set when the number lies in the window about a tie.
inline std::uint64_t NearTie(std::uint64_t Raised)
{
    return (Raised & AboveWindow) - 1;
}

} // namespace

// The head list from the downstream end up, and the least pressure head on the way. Rounding keeps the order
// of numbers, so the least is found among doubles and rounded once. The last row's loss takes no part.
VELORIX_KERNEL void WorkSystemHeads(const SystemHeadProfile& Profile, const LossCoefficients& Losses,
                                    const FlowLanes& Q, SystemHeadLanes& Result)
{
    alignas(64) double Entry[LaneCount];
    alignas(64) double Lowest[LaneCount];
    alignas(64) std::uint64_t Unsure[LaneCount];
    const double* Squared = Q.Squared.data();

    const double LastPressure = Profile.DownstreamLevel - Profile.GroundLevel[Profile.RowCount - 1];
    for (int k = 0; k < LaneCount; ++k) {
        Entry[k] = Profile.DownstreamLevel;
        Lowest[k] = LastPressure < -1 ? LastPressure : -1;
        Unsure[k] = 0;
    }

    for (int Row = Profile.RowCount - 2; Row >= 0; --Row) {
        const double FrictionCoefficient = Losses.Friction[Row];
        const double SecondaryCoefficient = Losses.Secondary[Row];
        const double GroundLevel = Profile.GroundLevel[Row];
        for (int k = 0; k < LaneCount; ++k) {
            const auto Friction =
                std::bit_cast<std::uint64_t>(FrictionCoefficient * Squared[k]) + HalfAndWindow;
            const auto Secondary =
                std::bit_cast<std::uint64_t>(SecondaryCoefficient * Squared[k]) + HalfAndWindow;
            Unsure[k] |= NearTie(Friction) | NearTie(Secondary);
            const double Head = static_cast<float>(Entry[k] + CutToSingle(Friction) + CutToSingle(Secondary));
            const double Pressure = Head - GroundLevel;
            Entry[k] = Head;
            Lowest[k] = Pressure < Lowest[k] ? Pressure : Lowest[k];
        }
    }

    for (int k = 0; k < LaneCount; ++k) {
        const double Lift = static_cast<float>(Lowest[k]) + 1.0; // zero or negative
        const float Head = static_cast<float>(Entry[k] - Lift);
        Result.Head[k] = static_cast<float>(Head - Profile.UpstreamLevel);
        Result.Unsure[k] = Unsure[k] >> 63;
    }
}

// The running sums are stored, so each is worked from the least and from the largest loss within the
// tolerance. While both round alike, the sum is certain.
VELORIX_KERNEL void WorkClearances(const double* StaticHead, int SectionCount, const LossCoefficients& Losses,
                                   const FlowLanes& Q, ClearanceLanes& Result)
{
    alignas(64) float FrictionSum[LaneCount] = {};
    alignas(64) float SecondarySum[LaneCount] = {};
    alignas(64) float Unsure[LaneCount] = {};
    alignas(64) int Failed[LaneCount] = {};
    const double* Squared = Q.Squared.data();

    for (int Row = 0; Row < SectionCount; ++Row) {
        const double FrictionWidth = std::fabs(Losses.Friction[Row]) * LossTolerance;
        const double FrictionLow = Losses.Friction[Row] - FrictionWidth;
        const double FrictionHigh = Losses.Friction[Row] + FrictionWidth;
        const double SecondaryWidth = std::fabs(Losses.Secondary[Row]) * LossTolerance;
        const double SecondaryLow = Losses.Secondary[Row] - SecondaryWidth;
        const double SecondaryHigh = Losses.Secondary[Row] + SecondaryWidth;
        const double Static = StaticHead[Row];
        for (int k = 0; k < LaneCount; ++k) {
            const double FrictionBefore = FrictionSum[k];
            const double SecondaryBefore = SecondarySum[k];
            const float Friction = static_cast<float>(FrictionBefore + FrictionLow * Squared[k]);
            const float Secondary = static_cast<float>(SecondaryBefore + SecondaryLow * Squared[k]);
            Unsure[k] += (static_cast<float>(FrictionBefore + FrictionHigh * Squared[k]) - Friction) +
                         (static_cast<float>(SecondaryBefore + SecondaryHigh * Squared[k]) - Secondary);
            FrictionSum[k] = Friction;
            SecondarySum[k] = Secondary;
            const float Pressure = static_cast<float>(Static - Friction - Secondary);
            Failed[k] |= (Pressure <= -1) & (Unsure[k] == 0);
        }
    }

    for (int k = 0; k < LaneCount; ++k) {
        Result.Failed[k] = Failed[k];
        Result.Unsure[k] = Unsure[k];
    }
}

} // namespace velorix
