// Random pumps on random pipelines.
#pragma once

#include "hydraulics/HydraulicsTest.h"

#include <array>
#include <cmath>
#include <limits>
#include <random>

namespace velorix {

// A random pump on a random pipeline, for Year. Most cross somewhere. Some seeds have what no real one has:
// losses below zero, none at all, next to none, a kinked or a reversed pump curve, one point twice, flows
// below zero or next to none, a head just on a point, numbers that aren't finite or lie far out.
class AnyPump {
public:
    static constexpr unsigned Kinds = 16;
    static constexpr unsigned Rounds = 6; // of all kinds until the strange numbers are through

    explicit AnyPump(unsigned Seed)
        : Random(Seed)
        , Kind(Seed % Kinds)
        , Round(Seed / Kinds % Rounds)
    {
        sample::Reset();
        AnalysisYear = HydraulicsTest::Year;
        const int Rows = Kind == 0 ? 2 + Up(120) : Up(12);
        for (int i = 1; i <= Rows; ++i) {
            const double Sign = Kind == 1 && Up(3) == 1 ? -1 : 1;
            const double Scale = Kind == 2 ? 0 : Kind == 3 ? 1e-9 : 1;
            HydraulicsTest::AddRow(60 * Part() - (Kind % 2 == 0 || Kind == 15 ? 100 : 0),
                                   Scale * Sign * 600 * Part(), 0.2 + 0.4 * Part(), Scale * Sign * Part(),
                                   0.01 + 0.02 * Part());
        }
        UpstreamLevel = Kind == 15 ? 0 : 30 * Part();
        DownstreamLevel = Kind == 15 ? 0 : 60 + 20 * Part();
        AddCurve();
        const double Strange = std::array<double, Rounds>{
            NAN, HUGE_VAL, 2e37, 3e38, 1e-45, std::numeric_limits<float>::signaling_NaN()}[Round];
        if (Kind == 4) wPumpCurve[Up(18)] = Strange;
        if (Kind == 5) wSecondaryLoss[Up(Rows)] = Strange;
        if (Kind == 6) wElevation[Up(Rows)] = -Strange;
        if (Kind == 14) wSecondaryLoss[Rows] = Strange; // which takes no part
    }

private:
    double Part() { return std::uniform_real_distribution<double>(0, 1)(Random); }
    int Up(int Most) { return std::uniform_int_distribution<int>(1, Most)(Random); }

    void AddCurve()
    {
        HeadFactor = Kind == 7 ? 0.3048 : 1;
        FlowFactor = Kind == 8 ? 0.00027777778 : 1;
        const double Top = 70 + 80 * Part();
        const double Widest = (0.05 + 0.5 * Part()) * (Kind == 15 ? std::pow(1e-4, Round) : 1);
        for (int p = 1; p <= 6; ++p) {
            const double x = (Kind == 9 ? 7 - p : p - 1) / 5.0; // from the largest flow down
            const double Kink = Kind == 10 ? Part() - 0.5 : 0;
            wPumpCurve[3 * p - 2] = (Top - 60 * x * x * (1 + Kink)) / HeadFactor;
            wPumpCurve[3 * p - 1] = Widest * (x + 0.3 * Kink) / FlowFactor;
            wPumpCurve[3 * p] = 80 * x;
        }
        if (Kind == 11) wPumpCurve[17] = wPumpCurve[2];
        if (Kind == 12) wPumpCurve[3 * Up(6) - 2] = DownstreamLevel - UpstreamLevel;
        if (Kind == 13) wPumpCurve[2] = -Widest;
    }

    std::mt19937 Random;
    unsigned Kind;
    unsigned Round;
};

} // namespace velorix
