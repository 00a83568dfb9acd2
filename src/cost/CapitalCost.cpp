// Pipe supply, trenches and the build-up to the total capital cost.
#include "cost/CapitalCost.h"

#include "base/Arithmetic.h"
#include "cost/CostResults.h"
#include "hydraulics/Formulas.h"
#include "model/WorkingSet.h"

#include <cmath>
#include <iterator>
#include <limits>

namespace velorix {

namespace {

constexpr double BlanketOverPipe = 0.1; // m of blanket above the pipe, which backfill then needn't fill
constexpr int MonthsAYear = 12;

#define VELORIX_ADDRESS(Shape, Name, Unit) &Name,
Single* const LayingRates[] = {VELORIX_LAYING_RATES(VELORIX_ADDRESS)};
#undef VELORIX_ADDRESS

// One bracket of a fee scale: up to and including Limit the fee is Base plus Share of what exceeds From.
struct FeeBracket {
    double Limit;
    double From;
    double Base;
    double Share;
};

constexpr double NoLimit = std::numeric_limits<double>::infinity();

// The base of a bracket is the full fee of the brackets below it.
// clang-format off
constexpr FeeBracket CivilBrackets[] = {
    {   800'000,          0,                             0, 0.125},
    { 3'400'000,    800'000,                     100'000.0, 0.1  },
    {13'100'000,  3'400'000,           100'000.0 + 260'000, 0.075},
    {   NoLimit, 13'100'000, 100'000.0 + 260'000 + 727'500, 0.055},
};
constexpr FeeBracket MechanicalElectricalBrackets[] = {
    {   800'000,          0,                                                 0, 0.125},
    { 2'500'000,    800'000,                                         100'000.0, 0.1  },
    { 7'400'000,  2'500'000,                               100'000.0 + 170'000, 0.08 },
    {17'100'000,  7'400'000,                     100'000.0 + 170'000 + 392'000, 0.07 },
    {31'400'000, 17'100'000,           100'000.0 + 170'000 + 392'000 + 679'000, 0.06 },
    {   NoLimit, 31'400'000, 100'000.0 + 170'000 + 392'000 + 679'000 + 858'000, 0.055},
};
// clang-format on

template <std::size_t Count>
double FeeOf(const FeeBracket (&Scale)[Count], double Value)
{
    const FeeBracket* Bracket = Scale;
    while (Bracket != std::end(Scale) - 1 && Ordered(Value) > Bracket->Limit) ++Bracket;
    return Bracket->Base + Bracket->Share * (Value - Bracket->From);
}

// Width of the trench (m) for a bore (m). The bore is compared as the 32 bits that a pipe list would hold, so
// that a bore of just 0.7 m doesn't fall to the wrong side by its last digits.
double TrenchWidth(double Bore)
{
    const Single Size = Ordered(Bore);
    if (Size <= Single(0.7)) return Bore + 0.6;
    if (Size <= Single(1.0)) return Bore + 0.8;
    if (Size <= Single(2.0)) return Bore + 1.0;
    return Bore + 1.2;
}

// The five costs of the trench of section i.
void PriceTrench(int i)
{
    const double Bore = InternalDiameter[i] + LiningLoss;
    const double L = SectionLength[i];
    const Single W = Checked(TrenchWidth(Bore));
    const Single T = Checked(Cover + Bore + BelowInvert); // depth

    ExcavationCost[i] = Checked(T * (RateExcavation * W) * L * (1 - PercentRock / 100) +
                                T * (RateRockExcavation * W) * L * (PercentRock / 100));
    BeddingCost[i] = Checked(RateBeddingTrench * W * BelowInvert * L * (1 - PercentBeddingImport / 100) +
                             RateBeddingImport * W * BelowInvert * L * (PercentBeddingImport / 100));

    // The blanket's trench volume is stored before the room of the pipe comes off.
    const double B = Bore + BlanketOverPipe;
    const double Import = PercentBlanketImport / 100;
    const double Section = Bore * Bore * (Pi / 4);
    BlanketCost[i] =
        Checked(B * (RateBlanketTrench * W) * L * (1 - Import) + B * (RateBlanketImport * W) * L * Import);
    BlanketCost[i] = Checked(BlanketCost[i] - (Section * RateBlanketTrench * L * (1 - Import) +
                                               Section * RateBlanketImport * L * Import));

    const Single Backfill = Checked(RateBackfilling * W * L * (Cover - BlanketOverPipe));
    BackfillCost[i] = Ordered(Backfill) < 0 ? Single(0) : Backfill;
    PipeLayingCost[i] = Checked(RateLaying * L);
}

void PricePipeline()
{
    PipeSupplyCost = 0;
    for (int i = 1; i <= NodeCount; ++i)
        PipeSupplyCost = Checked(PipeSupplyCost + SectionLength[i] * wPipeCost[i]);

    LayingCost = 0;
    for (int i = 1; i < NodeCount; ++i) {
        PriceTrench(i);
        LayingCost = Checked(LayingCost + ExcavationCost[i] + BeddingCost[i] + BlanketCost[i] +
                             BackfillCost[i] + PipeLayingCost[i]);
    }
}

// The construction cost is spent evenly over the months; each month's share is escalated to its own month.
void EscalateConstruction(int Months)
{
    EscalationAmount = 0;
    for (int m = 1; m <= Months; ++m) {
        const double Share = EscalationBase / Months;
        EscalationAmount = Checked(EscalationAmount + (std::pow(1 + wEscalation / 1200, m) * Share - Share));
    }
}

// The cost of some of the works with preliminary and general items, contingencies and its share of the
// escalation.
Single WithEscalation(double Works)
{
    Single Value = Checked((1 + wPG / 100) * Works * (1 + wContingencies / 100));
    Value = Checked(Value + EscalationAmount * Value / EscalationBase);
    return Value;
}

} // namespace

void ReadLayingRates()
{
    for (std::size_t i = 0; i < std::size(LayingRates); ++i)
        *LayingRates[i] = wLaying[static_cast<int>(i) + 1];
}

double CivilFee(double X)
{
    return FeeOf(CivilBrackets, X);
}

double MechanicalElectricalFee(double Y)
{
    return FeeOf(MechanicalElectricalBrackets, Y);
}

void ComputeConstructionCost()
{
    ClearArithmeticFlags();
    PricePipeline();

    const int Years = ConstructionYears();
    const double PipelineCost = LayingCost + PipeSupplyCost;
    EscalationBase =
        Checked((PipelineCost + wElectrical + wMechanical) * (1 + wPG / 100) * (1 + wContingencies / 100));
    EscalateConstruction(Years * MonthsAYear);

    const Single X = WithEscalation(PipelineCost);
    const Single Y = WithEscalation(wMechanical + wElectrical);
    ConsultingFees = Checked(CivilFee(X) + MechanicalElectricalFee(Y));
}

void ComputeTotalCapitalCost(Single Supervision)
{
    ClearArithmeticFlags();
    SupervisionCost = Supervision;
    TotalCapitalCost =
        Checked((EscalationAmount + EscalationBase + ConsultingFees + SupervisionCost) * TaxFactor);

    const int Years = ConstructionYears();
    CapitalSeries.Fill(0);
    for (int t = 1; t <= Years; ++t) CapitalSeries[t] = Checked(TotalCapitalCost / Years);
}

} // namespace velorix
