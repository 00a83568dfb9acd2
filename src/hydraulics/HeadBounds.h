// Bounds of the system head over whole ranges of flows.
#pragma once

#include "hydraulics/Kernels.h"

#include <vector>

namespace velorix {

// The exact system head is the largest of some lines over the squared flow. The first holds where nothing is
// lifted: DownstreamLevel and all losses on the way. Where row j is the lowest and lifted to a pressure head
// of -1 m, the head at row 1 is the ground at j less 1, and the losses up to j.
//
// The stored head lies within a slack of it. With u = 2^-24, each head of the list is rounded once, from a
// sum of losses that are rounded once, so that the list's first entry and its lowest pressure are each off by
// less than N u M, where N is the number of rows and M bounds all heads: levels, ground and losses by size.
// The pressure, the lift by at most 2 M + 1 and the last difference are rounded once each. Together that is
// less than (2 N + 7) u M; the roundings in double, the second order and LossTolerance are far below the u
// that is left over, and so are losses too small for 32 bits below the metre that M has on top.
class HeadBounds {
public:
    // For flows between A and B (m3/s), and numbers that the kernel may be used with.
    HeadBounds(const SystemHeadProfile& Profile, const LossCoefficients& Losses, double A, double B);

    struct Range {
        double Low;
        double High;
    };

    // Where the stored heads of all flows between A and B lie (m).
    Range Between(double A, double B) const;

private:
    // Over the squared flow: Level + Slope * Q^2.
    struct Line {
        double Level;
        double Slope;

        double At(double Squared) const { return Level + Slope * Squared; }
    };

    std::vector<Line> Lines;
    Line Slack;
};

} // namespace velorix
