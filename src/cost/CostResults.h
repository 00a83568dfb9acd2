// What the costs leave behind, told once: declaration, definition, reset and output follow from here.
#pragma once

#include "hydraulics/HydraulicResults.h"

namespace velorix {

constexpr int MaxCostYears = 2 * MaxYears; // construction years and operating years
constexpr int MaxRates = 200000;           // room for rates of return; LastRate tells those that are tried

// The shapes beyond those of the hydraulics. Years are counted from the base year here.
struct ByConstructionYear : Array1<Single, MaxYears> {};
using ByCostYear = Array1<Single, MaxCostYears>;
using ByRate = BoundedArray<Single, 0, MaxRates>;
using ByRateInFull = BoundedArray<double, 0, MaxRates>;

// clang-format off
// Laying rates and laying conditions, in the order of wLaying.
#define VELORIX_LAYING_RATES(RATE)                                                                                  \
    RATE(Single, RateLaying, "money/m")            /* joining included */                                           \
    RATE(Single, RateExcavation, "money/m3")                                                                        \
    RATE(Single, RateRockExcavation, "money/m3")                                                                    \
    RATE(Single, RateBeddingImport, "money/m3")                                                                     \
    RATE(Single, RateBeddingTrench, "money/m3")    /* bedding won from the trench */                                \
    RATE(Single, RateBlanketImport, "money/m3")                                                                     \
    RATE(Single, RateBlanketTrench, "money/m3")    /* blanket won from the trench */                                \
    RATE(Single, RateBackfilling, "money/m3")                                                                       \
    RATE(Single, PercentRock, "%")                 /* of the excavation */                                          \
    RATE(Single, PercentBeddingImport, "%")        /* of the bedding */                                             \
    RATE(Single, PercentBlanketImport, "%")        /* of the blanket */                                             \
    RATE(Single, Cover, "m")                       /* over the pipe */                                              \
    RATE(Single, BelowInvert, "m")                 /* excavation, filled with bedding, below the pipe */

// One line for each quantity, as in the table of the hydraulics.
#define VELORIX_COST_RESULTS(RESULT, INNER)                                                                         \
    VELORIX_LAYING_RATES(INNER)                                                                                     \
    /* What the pipeline costs to build; trenches by section */                                                     \
    RESULT(Single, PipeSupplyCost, "money")        /* of all rows */                                                \
    RESULT(ByRow, ExcavationCost, "money")                                                                          \
    RESULT(ByRow, BeddingCost, "money")                                                                             \
    RESULT(ByRow, BlanketCost, "money")            /* below zero where the pipe takes more room than the blanket */ \
    RESULT(ByRow, BackfillCost, "money")                                                                            \
    RESULT(ByRow, PipeLayingCost, "money")                                                                          \
    RESULT(Single, LayingCost, "money")            /* sum of the five over all sections */                          \
    RESULT(Single, EscalationBase, "money")        /* construction cost ahead of escalation */                      \
    RESULT(Single, EscalationAmount, "money")      /* escalation over the months of construction */                 \
    RESULT(Single, ConsultingFees, "money")        /* on civil, mechanical and electrical work */                   \
    RESULT(Single, SupervisionCost, "money")       /* administration and management */                              \
    RESULT(Single, TotalCapitalCost, "money")      /* tax included */                                               \
    RESULT(ByConstructionYear, CapitalSeries, "money") /* TotalCapitalCost in equal parts, then 0 */                \
    /* Operating years: year 1 is priced at today's money, each series rises from there by its own rate */          \
    RESULT(ByYear, IncomeSeries, "money")          /* from water sales */                                           \
    RESULT(ByYear, MaintPipeline, "money")         /* maintenance of the pipeline, laid */                          \
    RESULT(ByYear, MaintMechanical, "money")       /* maintenance of the mechanical works */                        \
    RESULT(ByYear, MaintElectrical, "money")       /* maintenance of the electrical works */                        \
    RESULT(ByYear, MaintTotal, "money")            /* the three together */                                         \
    RESULT(ByYear, OperationalCost, "money")       /* staff and expenses */                                         \
    INNER(ByYear, EnergyCostWork, "money")         /* energy being worked out; a gravity system leaves it alone */  \
    RESULT(ByYear, EnergyCost, "money")            /* energy, 0 for a gravity system */                             \
    /* At the base year */                                                                                          \
    RESULT(Single, NpvCost, "money")               /* present value of all costs */                                 \
    RESULT(Single, NpvIncome, "money")             /* present value of the income */                                \
    RESULT(ByCostYear, CostSeries, "money")        /* cost of each year, the construction years first */            \
    RESULT(Single, Irr, "%")                       /* internal rate of return */                                    \
    INNER(ByRate, IrrRate, "%")                    /* rate k; the scan fills 0 to LastRate */                       \
    INNER(ByRateInFull, IrrDifference, "money")    /* present value of income less costs at rate k */
// clang-format on

#define VELORIX_DECLARE(Shape, Name, Unit) extern Shape Name;
VELORIX_COST_RESULTS(VELORIX_DECLARE, VELORIX_DECLARE)
#undef VELORIX_DECLARE

// Calls Visit(ResultInfo or InnerInfo, variable) for each quantity of both tables, the hydraulics first.
template <typename Visitor>
void ForEachResult(Visitor&& Visit)
{
    ForEachHydraulicResult(Visit);
    VELORIX_COST_RESULTS(VELORIX_VISIT_RESULT, VELORIX_VISIT_INNER)
}

void ResetResults();

} // namespace velorix
