// Bisection of the gravity flow.
#include "hydraulics/GravityFlow.h"

#include "base/Arithmetic.h"
#include "base/Arrays.h"
#include "hydraulics/Formulas.h"
#include "hydraulics/HighPoint.h"
#include "hydraulics/Normalise.h"
#include "model/WorkingSet.h"

#include <cmath>

namespace velorix {
namespace {

using PressureList = Array0<Single, 100>; // pressure head behind each section (m), from entry 1 on

// Losses summed along the pipeline at one flow.
struct LossSums {
    Single Friction;
    Single Secondary;

    void Add(int Row, int Year, double Q)
    {
        const double D = InternalDiameter[Row];
        Friction = Checked(Friction + FrictionHead(Q, D, SectionLength[Row], Lambda(Row, Year)));
        Secondary = Checked(Secondary + SecondaryHead(Q, D, wSecondaryLoss[Row]));
    }

    double Total() const { return Friction + Secondary; }
};

bool SameSixthDecimal(double A, double B)
{
    return RoundToInt32(A * 1000000) == RoundToInt32(B * 1000000);
}

struct Bounds {
    Single Low;
    Single High;
    Single Mid;

    bool operator==(const Bounds& Other) const
    {
        return Low == Other.Low && High == Other.High && Mid == Other.Mid;
    }
};

// Halves the bounds; the half above Mid holds the solution when Above. True when the ends of the new,
// narrower half agree at the sixth decimal.
bool Halve(Bounds& Q, bool Above)
{
    if (Above) {
        Q.Low = Q.Mid;
        Q.Mid = (Q.Mid + Q.High) / 2;
        return SameSixthDecimal(Q.Mid, Q.High);
    }
    Q.High = Q.Mid;
    Q.Mid = (Q.Low + Q.Mid) / 2;
    return SameSixthDecimal(Q.Low, Q.Mid);
}

// P is left as the last pass found it, for the midpoint before its final update.
Single ConvergedFlow(int Year, Single H, PressureList& P)
{
    const Single Tolerance = 1.0 / 1000000;
    Bounds Q{Tolerance, 100, (Tolerance + 100) / 2};
    Single Error = 1;

    while (Tolerance < Error) {
        LossSums AtLow, AtMid, AtHigh; // those at High decide nothing, but may overflow
        for (int i = 1; i <= NodeCount; ++i) {
            AtLow.Add(i, Year, Q.Low);
            AtMid.Add(i, Year, Q.Mid);
            AtHigh.Add(i, Year, Q.High);
            P[i] = Checked(StaticHead(i) - AtMid.Friction - AtMid.Secondary);
        }

        const Bounds Before = Q;
        const double A = Ordered(Checked(AtLow.Total()));
        const double C = Ordered(Checked(AtMid.Total()));
        const bool Agreed = Halve(Q, A > Ordered(H) || C < H);
        Error = Checked(std::fabs(H - AtMid.Total()));
        if (Agreed) Error = 1.0 / 1000001;
        if (SameSixthDecimal(Q.Low, Q.High)) break;
        // From about 0.5 m3/s on, neighbouring numbers lie too far apart to meet the tests above.
        if (Q == Before) break;
    }
    return Q.Mid;
}

// Whether the gradeline passes more than a metre of suction below ground at a row.
bool PassesBelowGround(const PressureList& P)
{
    bool Below = false;
    for (int i = 1; i <= NodeCount - 1; ++i)
        if (Ordered(P[i]) <= -1) Below = true;
    return Below;
}

} // namespace

Single GravityFlow(int Year, Single H)
{
    PressureList P;
    const Single Q = ConvergedFlow(Year, H, P);
    if (!PassesBelowGround(P)) return Q;
    HighPointAdjusted = 1;
    return FlowClearOfHighPoints(Year, Q);
}

} // namespace velorix
