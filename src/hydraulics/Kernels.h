// The two inner loops that work many flows at once. They never divide and raise no failure.
#pragma once

#include "hydraulics/LossCoefficients.h"

#include <cstdint>

namespace velorix {

constexpr int LaneCount = 128; // flows worked side by side

// Above this magnitude (m) a head might overflow 32 bits on the way, and the kernels must not be used.
constexpr double KernelHeadLimit = 1e37;

// Below this flow (m3/s), but for zero, a loss might be too small for the full precision of 32 bits, and what
// WorkSystemHeads gives must not be used.
constexpr double LeastKernelFlow = 0x1p-30;

struct FlowLanes {
    alignas(64) std::array<double, LaneCount> Squared; // Q^2, exact: a stored Q has 24 bits
};

struct SystemHeadProfile {
    std::array<double, MaxRows> GroundLevel; // entry i - 1 belongs to row i (m)
    int RowCount;
    double UpstreamLevel;
    double DownstreamLevel;
};

// The system head at each flow (m). Where Unsure is 0 it is certainly what the plain formulas store;
// elsewhere the head must be worked with these.
struct SystemHeadLanes {
    alignas(64) std::array<float, LaneCount> Head;
    alignas(64) std::array<std::uint64_t, LaneCount> Unsure;
};

void WorkSystemHeads(const SystemHeadProfile& Profile, const LossCoefficients& Losses, const FlowLanes& Q,
                     SystemHeadLanes& Result);

// Whether the gravity gradeline clears the ground at each flow. Where Failed isn't 0 a pressure head is
// certainly -1 m or less; where Failed and Unsure are both 0 every one is certainly above.
struct ClearanceLanes {
    alignas(64) std::array<int, LaneCount> Failed;
    alignas(64) std::array<float, LaneCount> Unsure;
};

// Judges the sections 1 to SectionCount. StaticHead: upstream level less ground level behind each section,
// entry i - 1 for section i (m).
void WorkClearances(const double* StaticHead, int SectionCount, const LossCoefficients& Losses,
                    const FlowLanes& Q, ClearanceLanes& Result);

} // namespace velorix
