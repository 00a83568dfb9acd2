// The fields of a project, told once: record, working set, the copying between them, the values of a new
// project, and what a number may be follow from here.
#pragma once

// VELORIX_RECORD_FIELDS(INT16, SINGLE, TEXT) expands one of the three for each field, in the order of the
// disk record:
//
//     INT16(Name, Offset, Count, Scope, Range, Default)
//     SINGLE(Name, Offset, Count, Scope, Default)
//     TEXT(Name, Offset, Width, Scope, Default)
//
// Offsets and widths are bytes of the disk record, little-endian, without padding. A scope is one of enum
// Scope, a range one of those of Fields.h, and a default a rule of NewProject.cpp.
//
// A number stands as it was typed, in the unit of its own selector: its index is the field whose name ends in
// "Units" (LengthUnits for AccLength, HeadUnits and FlowUnits for PumpCurve). Money, percentages, PipeCost
// and Laying have no selector.

// clang-format off
#define VELORIX_RECORD_FIELDS(INT16, SINGLE, TEXT)                                                                                      \
    INT16(SystemType, 0, 1, Both, Between(0, 1), AsChosen)             /* 0 gravity, 1 pumping */                                       \
    INT16(Units, 2, 1, Both, Between(0, 1), Kept)                      /* unit system: 0 metric, 1 US */                                \
    INT16(Currency, 4, 1, Both, Between(0, 1), Kept)                   /* 0 Rand, 1 Dollar */                                           \
    TEXT(Project, 6, 80, Both, Blank)                                                                                                   \
    TEXT(Designer, 86, 80, Both, Blank)                                                                                                 \
    TEXT(Date, 166, 20, Both, Today)                                   /* in the short date form */                                     \
    TEXT(Description, 186, 500, Both, Blank)                                                                                            \
    SINGLE(Flowrate, 686, 1, Both, Is(0))                              /* fixed demand, or specified flow rate of a gravity system */   \
    INT16(FlowrateUnits, 690, 1, Both, In(FlowUnitList), ByUnits(3, 4))                                                                 \
    INT16(VaryingDemand, 692, 1, Both, Between(0, 1), Is(0))           /* 1: the yearly Demand counts; 0: Flowrate in every year */     \
    INT16(Life, 694, 1, Both, Between(2, 100), Is(30))                 /* years analysed */                                             \
    INT16(BaseYear, 696, 1, Both, Between(1950, 2500), Is(2001))       /* calendar year in which construction and costs start */        \
    INT16(SupplyStart, 698, 1, Both, Between(1950, 2500), Is(2001))    /* calendar year of operating year 1 */                          \
    SINGLE(Demand, 700, 100, Both, FirstAre(10, 0))                    /* demand of each operating year */                              \
    INT16(DemandUnits, 1100, 1, Both, In(FlowUnitList), ByUnits(0, 4))                                                                  \
    SINGLE(TRWL, 1102, 1, Both, Is(0))                                 /* water level of the top, or the pump station's, reservoir */   \
    SINGLE(BRWL, 1106, 1, Both, Is(0))                                 /* water level of the bottom, or end, reservoir */               \
    INT16(TRWLUnits, 1110, 1, Both, In(DistanceUnitList), ByUnits(0, 2))                                                                \
    INT16(BRWLUnits, 1112, 1, Both, In(DistanceUnitList), ByUnits(0, 2))                                                                \
    INT16(NodeNr, 1114, 500, Both, Between(1, 500), RowNumbers)                                                                         \
    SINGLE(Elevation, 2114, 500, Both, TwoNodes)                       /* ground level of a node; UnusedNode past the last */           \
    SINGLE(AccLength, 4114, 500, Both, TwoNodes)                       /* length from the start up to a node; UnusedNode past the last */\
    SINGLE(Diameter, 6114, 500, Both, Is(0))                           /* outside diameter of the pipe that ends at a node */           \
    SINGLE(PipeCost, 8114, 500, Both, Is(0))                           /* pipe supply cost a metre */                                   \
    SINGLE(SecondaryLoss, 10114, 500, Both, Kept)                      /* secondary loss coefficient of a node */                       \
    INT16(NodeDesc, 12114, 500, Both, Between(0, 20), Is(0))           /* component at a node: entry NodeDesc + 1 of ComponentTable */  \
    SINGLE(WallThickness, 13114, 500, Both, Kept)                                                                                       \
    INT16(WallThicknessUnits, 15114, 1, Both, In(FineLengthUnitList), ByUnits(0, 2))                                                    \
    INT16(LiningType, 15116, 1, Both, Between(0, 1), Is(0))            /* 0 Copon coated, 1 cement mortar or other */                   \
    SINGLE(LiningThickness, 15118, 1, Both, Is(0))                                                                                      \
    INT16(LiningThicknessUnits, 15122, 1, Both, In(FineLengthUnitList), ByUnits(0, 2))                                                  \
    SINGLE(KsNew, 15124, 1, Both, Is(0))                               /* absolute roughness of a new pipe */                           \
    SINGLE(KsOld, 15128, 1, Both, Is(0))                               /* absolute roughness of an old pipe */                          \
    SINGLE(KsOldYears, 15132, 1, Both, Is(0))                          /* years from KsNew to KsOld */                                  \
    INT16(KsNewUnits, 15136, 1, Both, In(FineLengthUnitList), ByUnits(0, 2))                                                            \
    INT16(KsOldUnits, 15138, 1, Both, In(FineLengthUnitList), ByUnits(0, 2))                                                            \
    INT16(DiameterUnits, 15140, 1, Both, In(FineLengthUnitList), ByUnits(0, 2))                                                         \
    INT16(ElevationUnits, 15142, 1, Both, In(DistanceUnitList), ByUnits(0, 2))                                                          \
    INT16(LengthUnits, 15144, 1, Both, In(DistanceUnitList), ByUnits(0, 2))                                                             \
    SINGLE(Laying, 15146, 14, Both, Kept)                              /* 1 to 8 unit costs, 9 to 13 laying conditions, 14 always 0 */  \
    SINGLE(DiscountRate, 15202, 1, Both, Is(8.0))                      /* percent a year */                                             \
    SINGLE(Escalation, 15206, 1, Both, Is(10.0))                       /* percent a year */                                             \
    SINGLE(EnergyEscalation, 15210, 1, Both, Is(7.5))                  /* percent a year; 0 for a gravity system */                     \
    INT16(MMechanical, 15214, 1, Both, Between(0, 1000), Is(25))       /* yearly maintenance, hundredths of a percent */                \
    INT16(MElectrical, 15216, 1, Both, Between(0, 1000), Is(200))      /* the same of electrical works */                               \
    INT16(MPipeline, 15218, 1, Both, Between(0, 2000), Is(25))         /* the same of the pipeline */                                   \
    SINGLE(Reserved1, 15220, 1, Reserved, Kept)                        /* read and written back, of no use */                           \
    SINGLE(WaterSales, 15224, 1, Both, ByUnitsAndCurrency(2.0, 0.5, 0.5, 0.05)) /* water tariff in the currency per WaterSalesUnits */  \
    INT16(WaterSalesUnits, 15228, 1, Both, In(TariffUnitList), ByUnits(0, 2))                                                           \
    SINGLE(StaffPackage, 15230, 8, Both, Are(300000, 200000, 120000, 80000, 70000, 30000, 60000, 130000)) /* annual */                  \
    SINGLE(StaffTime, 15262, 8, Both, Is(0))                           /* percentage of time of each staff row */                       \
    SINGLE(Expenses, 15294, 5, Both, Is(0))                            /* annual amounts */                                             \
    SINGLE(Supervision, 15314, 1, Both, Is(0))                         /* project supervision fees */                                   \
    SINGLE(PumpCurve, 15318, 18, Pumping, Is(0))                       /* six points, each head, flow rate, efficiency in percent */    \
    INT16(HeadUnits, 15390, 1, Pumping, In(HeadUnitList), ByUnits(0, 1))                                                                \
    INT16(FlowUnits, 15392, 1, Pumping, In(PumpFlowUnitList), ByUnits(0, 2))                                                            \
    SINGLE(PumpEfficiency, 15394, 1, LoadedForPumping, Is(70.0))       /* percent, at the operating point when no curve is given */     \
    SINGLE(WaterIncrease, 15398, 1, Both, Is(5.0))                     /* increase of the water tariff, percent a year */               \
    SINGLE(Mechanical, 15402, 1, Both, Is(0))                          /* capital cost of mechanical works */                           \
    SINGLE(Electrical, 15406, 1, Both, Is(0))                          /* capital cost of electrical works */                           \
    SINGLE(PG, 15410, 1, Both, Is(10.0))                               /* preliminary and general allowance, percent */                 \
    SINGLE(Contingencies, 15414, 1, Both, Is(10.0))                    /* contingencies allowance, percent */                           \
    INT16(PumpDetails, 15418, 1, Pumping, Between(0, 1), Is(0))        /* 0 operating flow rate given, 1 pump curve given */            \
    INT16(Summer, 15420, 1, Pumping, Between(0, 12), Is(6))            /* number of summer months */                                    \
    SINGLE(SPeak, 15422, 1, Pumping, Kept)                             /* energy rates in the currency a kWh: summer ... */             \
    SINGLE(SStandard, 15426, 1, Pumping, Kept)                                                                                          \
    SINGLE(SOffpeak, 15430, 1, Pumping, Kept)                                                                                           \
    SINGLE(WPeak, 15434, 1, Pumping, Kept)                             /* ... and winter */                                             \
    SINGLE(WStandard, 15438, 1, Pumping, Kept)                                                                                          \
    SINGLE(WOffpeak, 15442, 1, Pumping, Kept)                                                                                           \
    INT16(SummerHour, 15446, 24, Pumping, Between(0, 2), Kept)         /* rate class of each hour: 0 off-peak, 1 standard, 2 peak */    \
    INT16(WinterHour, 15494, 24, Pumping, Between(0, 2), Kept)                                                                          \
    SINGLE(PumpOperatingFlowrate, 15542, 1, Pumping, Is(0))                                                                             \
    INT16(PumpOperatingFlowrateUnits, 15546, 1, Pumping, In(OperatingFlowUnitList), ByUnits(0, 3))                                      \
    INT16(PumpingHours, 15548, 1, Pumping, Between(1, 24), Is(20))     /* the most hours a day that the pump may run */                 \
    TEXT(Pumptype, 15550, 100, Pumping, Blank)                                                                                          \
    TEXT(PumpDescription, 15650, 1000, Pumping, Blank)
// clang-format on
