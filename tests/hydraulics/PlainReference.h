// The scalar loops that the fast routines stand in for, written straight from the formulas and with their own
// arithmetic. Tests and benchmarks hold the stored results of both against each other, bit for bit.
#pragma once

#include "base/Arithmetic.h"
#include "hydraulics/DutyPoint.h"
#include "hydraulics/Flows.h"
#include "hydraulics/Normalise.h"
#include "model/WorkingSet.h"

#include <array>
#include <cmath>
#include <vector>

namespace velorix::plain {

inline double Friction(int Row, int Year, double Q)
{
    const double D = InternalDiameter[Row];
    const double V = Q / (3.14159265359 * D * D / 4);
    return Lambda(Row, Year) * SectionLength[Row] * V * V / (D * 19.62);
}

inline double Secondary(int Row, double Q)
{
    const double D = InternalDiameter[Row];
    const double V = Q / (3.14159265359 * D * D / 4);
    return wSecondaryLoss[Row] * V * V / 19.62;
}

inline Single SystemHeadAt(Single Q, int Year)
{
    Array1<Single, MaxRows> FrictionAt, SecondaryAt, Head;
    for (int i = 1; i <= NodeCount; ++i) {
        FrictionAt[i] = Friction(i, Year, Q);
        SecondaryAt[i] = Secondary(i, Q);
    }
    Head[NodeCount] = DownstreamLevel;
    for (int j = NodeCount - 1; j >= 1; --j) Head[j] = Head[j + 1] + FrictionAt[j] + SecondaryAt[j];
    Single Lowest = -1;
    for (int j = 1; j <= NodeCount; ++j) {
        const Single Pressure = Head[j] - wElevation[j];
        if (Pressure < Lowest) Lowest = Pressure;
    }
    if (Lowest < -1)
        for (int j = 1; j <= NodeCount; ++j) Head[j] = Head[j] - (Lowest + 1);
    return Head[1] - UpstreamLevel;
}

struct Curve {
    std::vector<Single> Head;
    std::vector<Single> Flow;
};

// The points of the year's system curve, up to the first at which the arithmetic fails.
inline Curve SystemCurve(int Year)
{
    Curve Points;
    ClearArithmeticFlags();
    for (int i = 1; i <= 10000; ++i) {
        const Single Q = (wPumpCurve[2] + (wPumpCurve[17] - wPumpCurve[2]) * i / 10000) * FlowFactor;
        const Single Head = SystemHeadAt(Q, Year);
        if (ArithmeticFailed()) break;
        Points.Head.push_back(Head);
        Points.Flow.push_back(Q);
    }
    ClearArithmeticFlags();
    return Points;
}

struct Duty {
    enum class Outcome { Fails, Missing, Found };

    Outcome Ends = Outcome::Missing;
    Single Head, Flow, Efficiency;
};

// The duty point on the stored curve of a year: every point and every step, one after the other.
inline Duty DutyPoint(int Year)
{
    const Duty Failed{Duty::Outcome::Fails, 0, 0, 0};
    Array1<Single, 6> H, F;
    ClearArithmeticFlags();
    for (int p = 1; p <= 6; ++p) {
        H[p] = wPumpCurve[3 * p - 2] * HeadFactor;
        F[p] = wPumpCurve[3 * p - 1] * FlowFactor;
        if (std::isnan(H[p]) || std::isnan(F[p])) return Failed;
    }
    int Segment = 0;
    for (int i = 1; i <= CurvePoints && Segment == 0; ++i) {
        const double Q = SystemFlowByYear(i, Year);
        const double S = SystemHeadByYear(i, Year);
        if (std::isnan(Q) || std::isnan(S)) return Failed;
        for (int p = 5; p >= 1; --p)
            if (H[p] >= S && H[p + 1] < S && F[p] <= Q && F[p + 1] > Q) Segment = p;
    }
    if (Segment == 0) return {};
    if (Segment == 1) return Failed;

    Array0<Single, 2001> Head, Flow, Efficiency, D;
    const auto Fill = [](Array0<Single, 2001>& List, double From, double To) {
        for (int j = 0; j <= 2000; ++j) List[j] = From + (To - From) * j / 2000;
    };
    Fill(Head, H[Segment], H[Segment + 1]);
    Fill(Flow, F[Segment], F[Segment + 1]);
    Fill(Efficiency, wPumpCurve[3 * Segment], wPumpCurve[3 * Segment + 3]);
    for (int j = 0; j <= 2000; ++j) D[j] = Head[j] - SystemHeadByYear((Segment - 1) * 2000 + j, Year);
    if (ArithmeticFailed()) return Failed;
    for (int j = 0; j < 2000; ++j) {
        if (std::isnan(D[j])) return Failed;
        if (!(D[j] > 0)) continue;
        if (std::isnan(D[j + 1])) return Failed;
        if (!(D[j + 1] < 0)) continue;
        const int At = std::fabs(D[j + 1]) <= D[j] ? j + 1 : j;
        return {Duty::Outcome::Found, Head[At], Flow[At], Efficiency[At]};
    }
    return {};
}

inline bool ClearsHighPoints(int Year, double Q)
{
    Single FrictionSum, SecondarySum;
    for (int i = 1; i <= NodeCount - 1; ++i) {
        FrictionSum += Friction(i, Year, Q);
        SecondarySum += Secondary(i, Q);
        const Single P = UpstreamLevel - ElevationFactor * wElevation[i + 1] - FrictionSum - SecondarySum;
        if (P <= -1) return false;
    }
    return true;
}

// The flows Start - s / 1000000 one after another; the first that clears, or the last at MostTries.
inline Single FlowClearOfHighPoints(int Year, Single Start, int MostTries)
{
    Single Q;
    for (int s = 1; s <= MostTries; ++s) {
        Q = Start - s / 1000000.0;
        if (ClearsHighPoints(Year, Q)) break;
    }
    return Q;
}

struct Bisection {
    bool Fails = false;
    bool BelowGround = false;
    Single Flow;
};

// The flow of the available head, all losses added up row by row in each pass.
inline Bisection FlowOfHead(int Year, Single H)
{
    const Single Least = 1.0 / 1000000;
    Single Low = Least, High = 100, Mid = (Low + High) / 2, Error = 1;
    Bisection Result;
    ClearArithmeticFlags();
    while (Least < Error) {
        Array1<Single, 3> FrictionSum, SecondarySum; // at Low, Mid and High
        Result.BelowGround = false;
        for (int i = 1; i <= NodeCount; ++i) {
            for (int Place = 1; Place <= 3; ++Place) {
                const double Q = Place == 1 ? Low : Place == 2 ? Mid : High;
                FrictionSum[Place] += Friction(i, Year, Q);
                SecondarySum[Place] += Secondary(i, Q);
            }
            const Single P =
                UpstreamLevel - ElevationFactor * wElevation[i + 1] - FrictionSum[2] - SecondarySum[2];
            Result.Fails = Result.Fails || i == 100;
            if (i < NodeCount && P <= -1) Result.BelowGround = true;
            if (i < NodeCount && std::isnan(P)) Result.Fails = true;
        }
        const Single A = FrictionSum[1] + SecondarySum[1];
        const Single C = FrictionSum[2] + SecondarySum[2];
        Error = std::fabs(H - (FrictionSum[2] + SecondarySum[2]));
        if (Result.Fails || ArithmeticFailed() || std::isnan(A + C + H)) return {true, false, 0};

        const std::array Before = {Low.Bits(), Mid.Bits(), High.Bits()};
        const bool Above = A > H || C < H;
        (Above ? Low : High) = Mid;
        Mid = (Low + High) / 2;
        const auto Micro = [](double Q) { return std::nearbyint(Q * 1000000); };
        if (Above ? Micro(Mid) == Micro(High) : Micro(Low) == Micro(Mid)) Error = 1.0 / 1000001;
        if (Micro(Low) == Micro(High) || Before == std::array{Low.Bits(), Mid.Bits(), High.Bits()}) break;
    }
    Result.Flow = Mid;
    return Result;
}

} // namespace velorix::plain
