// What the hydraulics leave behind, told once: declaration, definition, reset and output follow from here.
#pragma once

#include "base/Arrays.h"
#include "base/Single.h"
#include "model/Fields.h"

#include <cstdint>

namespace velorix {

constexpr int MaxRows = Fields::Elevation.Count;
constexpr int MaxYears = Fields::Demand.Count;
constexpr int CurvePoints = 10000; // flows on the system curve's grid

// The shapes. Rows are those of the profile, years the operating years.
using ByRow = Array1<Single, MaxRows>;
using ByYear = Array1<Single, MaxYears>;
using ByRowAndYear = YearTable<Single, 1, MaxRows, MaxYears>;
using ByPointAndYear = YearTable<Single, 0, MaxRows, MaxYears>;
using ByCurvePoint = Array1<Single, CurvePoints>;
using SystemCurves = YearTable<Single, 1, CurvePoints, MaxYears>;

// One line for each quantity: RESULT(Shape, Name, Unit), or INNER for one that is only a step or a picture
// and isn't written out. The order is that of the output within a shape.
// clang-format off
#define VELORIX_HYDRAULIC_RESULTS(RESULT, INNER)                                                                    \
    /* How the solution ended */                                                                                    \
    RESULT(std::int16_t, AnalysisAborted, "")      /* -1 after a year without a duty point */                       \
    RESULT(std::int16_t, HydraulicsFailed, "")     /* 1 after a failure of SolveFlows, 0 after a clean run */       \
    RESULT(std::int16_t, HighPointAdjusted, "")    /* 1 once a year's gravity flow was cut back for a high point */ \
    /* The project in metres and cubic metres a second */                                                           \
    RESULT(Single, UpstreamLevel, "m")             /* water level at the start of the pipeline */                   \
    RESULT(Single, DownstreamLevel, "m")           /* water level at its end */                                     \
    RESULT(std::int16_t, ElevationFactor, "")      /* from the elevation unit to metres: 1, 1000, 0 or 1609 */      \
    RESULT(ByRow, InternalDiameter, "m")           /* bore inside lining and walls */                               \
    RESULT(Single, LiningLoss, "m")                /* twice the lining thickness, 0 without lining */               \
    RESULT(ByRow, SectionLength, "m")              /* from row i to row i + 1; NodeCount - 1 entries are written */ \
    RESULT(Single, KsNewM, "m")                    /* absolute roughness of a new pipe */                           \
    RESULT(Single, KsOldM, "m")                    /* absolute roughness of an old pipe */                          \
    RESULT(Single, DemandFactor, "")               /* from the unit of the demand in use to m3/s */                 \
    INNER(Single, HeadFactor, "")                  /* from the unit of the pump curve's heads to m */               \
    INNER(Single, FlowFactor, "")                  /* from the unit of its flows to m3/s */                         \
    INNER(Single, OperatingFlowFactor, "")         /* from the unit of the given operating flow to m3/s */          \
    RESULT(Single, WaterSalesFactor, "")           /* applied to a flow in m3/s for the unit of the tariff */       \
    /* Flow, losses and heads */                                                                                    \
    RESULT(ByYear, Flow, "m3/s")                   /* flow that the pipeline carries */                             \
    RESULT(ByYear, KsYear, "m")                    /* absolute roughness of the wall */                             \
    RESULT(ByRowAndYear, Lambda, "")               /* Darcy friction factor of row i */                             \
    RESULT(ByRowAndYear, FrictionLoss, "m")        /* friction head loss of section i */                            \
    RESULT(ByRowAndYear, SecondaryHeadLoss, "m")   /* secondary head loss at row i */                               \
    /* Head along the pipeline. Gravity: point 0 is the head at row 1, point i the head just downstream of */       \
    /* section i. Pumping: point i is the head at row i, point 0 the ground at the station. */                      \
    RESULT(ByPointAndYear, Gradeline, "m")                                                                          \
    /* Demand against supply; hours are pumping hours a day, in all and in each rate class of both seasons */       \
    RESULT(ByYear, DemandFlow, "m3/s")                                                                              \
    RESULT(ByYear, Shortage, "unit of the demand") /* demand not met */                                             \
    RESULT(ByYear, PumpingHours, "h/d")                                                                             \
    RESULT(ByYear, HoursOffpeakS, "h/d")                                                                            \
    RESULT(ByYear, HoursStandardS, "h/d")                                                                           \
    RESULT(ByYear, HoursPeakS, "h/d")                                                                               \
    RESULT(ByYear, HoursOffpeakW, "h/d")                                                                            \
    RESULT(ByYear, HoursStandardW, "h/d")                                                                           \
    RESULT(ByYear, HoursPeakW, "h/d")                                                                               \
    INNER(Single, CntOffpeakS, "h/d")              /* hours of the day in each rate class of the summer ... */      \
    INNER(Single, CntStandardS, "h/d")                                                                              \
    INNER(Single, CntPeakS, "h/d")                                                                                  \
    INNER(Single, CntOffpeakW, "h/d")              /* ... and the winter pattern */                                 \
    INNER(Single, CntStandardW, "h/d")                                                                              \
    INNER(Single, CntPeakW, "h/d")                                                                                  \
    /* The pump; by year with a pump curve only */                                                                  \
    RESULT(ByYear, Efficiency, "%")                                                                                 \
    RESULT(ByYear, PumpHead, "m")                  /* over the ground at the pump station */                        \
    RESULT(ByYear, PumpFlow, "m3/s")                                                                                \
    RESULT(ByYear, PumpEfficiencyByYear, "%")                                                                       \
    INNER(std::int16_t, AnalysisYear, "")          /* the year being solved, later the year of the duty plot */     \
    INNER(Single, OperatingFlow, "m3/s")           /* the given flow, or the duty flow of the year solved */        \
    INNER(Single, DutyHead, "m")                   /* the point picked: head, */                                    \
    INNER(Single, DutyFlow, "m3/s")                /* flow */                                                       \
    INNER(Single, DutyEfficiencyPoint, "%")        /* and efficiency */                                             \
    INNER(Single, DutyEfficiency, "%")             /* of the last year solved */                                    \
    INNER(ByCurvePoint, SystemHead, "m")           /* system head of the year being solved */                       \
    INNER(SystemCurves, SystemHeadByYear, "m")                                                                      \
    INNER(SystemCurves, SystemFlowByYear, "m3/s")
// clang-format on

#define VELORIX_DECLARE(Shape, Name, Unit) extern Shape Name;
VELORIX_HYDRAULIC_RESULTS(VELORIX_DECLARE, VELORIX_DECLARE)
#undef VELORIX_DECLARE

// What is told of a quantity beside its value.
struct ResultInfo {
    const char* Name;
    const char* Unit; // "" for a bare number
};
struct InnerInfo : ResultInfo {};

#define VELORIX_VISIT_RESULT(Shape, Name, Unit) Visit(ResultInfo{#Name, Unit}, Name);
#define VELORIX_VISIT_INNER(Shape, Name, Unit) Visit(InnerInfo{{#Name, Unit}}, Name);

// Calls Visit(ResultInfo or InnerInfo, variable) for each quantity of the table, in its order.
template <typename Visitor>
void ForEachHydraulicResult(Visitor&& Visit)
{
    VELORIX_HYDRAULIC_RESULTS(VELORIX_VISIT_RESULT, VELORIX_VISIT_INNER)
}

// Puts a quantity back to the program's start, whatever its shape.
template <typename Shape>
void SetToZero(Shape& Value)
{
    if constexpr (requires { Value.Fill(0); })
        Value.Fill(0);
    else
        Value = 0;
}

} // namespace velorix
