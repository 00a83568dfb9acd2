// The fields of a project, told once: the record on disk, the working set and the copying follow from here.
#pragma once

// VELORIX_RECORD_FIELDS(INT16, SINGLE, TEXT) expands one of the three for each field, in the order of the
// disk record: INT16(Name, Offset, Count), SINGLE(Name, Offset, Count), TEXT(Name, Offset, Width). Offsets
// and widths are bytes of the disk record, little-endian, without padding. A number stands as it was typed,
// in the unit of its own selector: its index is the field whose name ends in "Units" (LengthUnits for
// AccLength, HeadUnits and FlowUnits for PumpCurve). Money, percentages, PipeCost and Laying have no
// selector.

// clang-format off
#define VELORIX_RECORD_FIELDS(INT16, SINGLE, TEXT)                                                                  \
    INT16(SystemType, 0, 1)            /* 0 gravity, 1 pumping */                                                   \
    INT16(Units, 2, 1)                 /* unit system: 0 metric, 1 US */                                            \
    INT16(Currency, 4, 1)              /* 0 Rand, 1 Dollar */                                                       \
    TEXT(Project, 6, 80)                                                                                            \
    TEXT(Designer, 86, 80)                                                                                          \
    TEXT(Date, 166, 20)                /* in the short date form */                                                 \
    TEXT(Description, 186, 500)                                                                                     \
    SINGLE(Flowrate, 686, 1)           /* fixed demand, or specified flow rate of a gravity system */               \
    INT16(FlowrateUnits, 690, 1)                                                                                    \
    INT16(VaryingDemand, 692, 1)       /* 1: the yearly Demand counts; 0: Flowrate in every year */                 \
    INT16(Life, 694, 1)                /* years analysed, 2 to 100 */                                               \
    INT16(BaseYear, 696, 1)            /* calendar year in which construction and costs start */                    \
    INT16(SupplyStart, 698, 1)         /* calendar year of operating year 1 */                                      \
    SINGLE(Demand, 700, 100)           /* demand of each operating year */                                          \
    INT16(DemandUnits, 1100, 1)                                                                                     \
    SINGLE(TRWL, 1102, 1)              /* water level of the top, or the pump station's, reservoir */               \
    SINGLE(BRWL, 1106, 1)              /* water level of the bottom, or end, reservoir */                           \
    INT16(TRWLUnits, 1110, 1)                                                                                       \
    INT16(BRWLUnits, 1112, 1)                                                                                       \
    INT16(NodeNr, 1114, 500)                                                                                        \
    SINGLE(Elevation, 2114, 500)       /* ground level of a node; UnusedNode past the last */                       \
    SINGLE(AccLength, 4114, 500)       /* length from the start up to a node; UnusedNode past the last */           \
    SINGLE(Diameter, 6114, 500)        /* outside diameter of the pipe that ends at a node */                       \
    SINGLE(PipeCost, 8114, 500)        /* pipe supply cost a metre */                                               \
    SINGLE(SecondaryLoss, 10114, 500)  /* secondary loss coefficient of a node */                                   \
    INT16(NodeDesc, 12114, 500)        /* component at a node: entry NodeDesc + 1 of ComponentTable */              \
    SINGLE(WallThickness, 13114, 500)                                                                               \
    INT16(WallThicknessUnits, 15114, 1)                                                                             \
    INT16(LiningType, 15116, 1)        /* 0 Copon coated, 1 cement mortar or other */                               \
    SINGLE(LiningThickness, 15118, 1)                                                                               \
    INT16(LiningThicknessUnits, 15122, 1)                                                                           \
    SINGLE(KsNew, 15124, 1)            /* absolute roughness of a new pipe */                                       \
    SINGLE(KsOld, 15128, 1)            /* absolute roughness of an old pipe */                                      \
    SINGLE(KsOldYears, 15132, 1)       /* years from KsNew to KsOld */                                              \
    INT16(KsNewUnits, 15136, 1)                                                                                     \
    INT16(KsOldUnits, 15138, 1)                                                                                     \
    INT16(DiameterUnits, 15140, 1)                                                                                  \
    INT16(ElevationUnits, 15142, 1)                                                                                 \
    INT16(LengthUnits, 15144, 1)                                                                                    \
    SINGLE(Laying, 15146, 14)          /* 1 to 8 unit costs, 9 to 13 laying conditions, 14 always 0 */              \
    SINGLE(DiscountRate, 15202, 1)     /* percent a year */                                                         \
    SINGLE(Escalation, 15206, 1)       /* percent a year */                                                         \
    SINGLE(EnergyEscalation, 15210, 1) /* percent a year; 0 for a gravity system */                                 \
    INT16(MMechanical, 15214, 1)       /* maintenance of mechanical works, hundredths of a percent a year */        \
    INT16(MElectrical, 15216, 1)       /* the same of electrical works */                                           \
    INT16(MPipeline, 15218, 1)         /* the same of the pipeline */                                               \
    SINGLE(Reserved1, 15220, 1)        /* read and written back, of no use */                                       \
    SINGLE(WaterSales, 15224, 1)       /* water tariff in the currency per WaterSalesUnits */                       \
    INT16(WaterSalesUnits, 15228, 1)                                                                                \
    SINGLE(StaffPackage, 15230, 8)     /* annual package of each staff row */                                       \
    SINGLE(StaffTime, 15262, 8)        /* percentage of time of each staff row */                                   \
    SINGLE(Expenses, 15294, 5)         /* annual amounts */                                                         \
    SINGLE(Supervision, 15314, 1)      /* project supervision fees */                                               \
    SINGLE(PumpCurve, 15318, 18)       /* six points, each head, flow rate, efficiency in percent */                \
    INT16(HeadUnits, 15390, 1)                                                                                      \
    INT16(FlowUnits, 15392, 1)                                                                                      \
    SINGLE(PumpEfficiency, 15394, 1)   /* percent, at the operating point when no curve is given */                 \
    SINGLE(WaterIncrease, 15398, 1)    /* increase of the water tariff, percent a year */                           \
    SINGLE(Mechanical, 15402, 1)       /* capital cost of mechanical works */                                       \
    SINGLE(Electrical, 15406, 1)       /* capital cost of electrical works */                                       \
    SINGLE(PG, 15410, 1)               /* preliminary and general allowance, percent */                             \
    SINGLE(Contingencies, 15414, 1)    /* contingencies allowance, percent */                                       \
    INT16(PumpDetails, 15418, 1)       /* 0 operating flow rate given, 1 pump curve given */                        \
    INT16(Summer, 15420, 1)            /* number of summer months, 0 to 12 */                                       \
    SINGLE(SPeak, 15422, 1)            /* energy rates in the currency a kWh: summer ... */                         \
    SINGLE(SStandard, 15426, 1)                                                                                     \
    SINGLE(SOffpeak, 15430, 1)                                                                                      \
    SINGLE(WPeak, 15434, 1)            /* ... and winter */                                                         \
    SINGLE(WStandard, 15438, 1)                                                                                     \
    SINGLE(WOffpeak, 15442, 1)                                                                                      \
    INT16(SummerHour, 15446, 24)       /* rate class of each hour of the day: 0 off-peak, 1 standard, 2 peak */     \
    INT16(WinterHour, 15494, 24)                                                                                    \
    SINGLE(PumpOperatingFlowrate, 15542, 1)                                                                         \
    INT16(PumpOperatingFlowrateUnits, 15546, 1)                                                                     \
    INT16(PumpingHours, 15548, 1)      /* the most hours a day that the pump may run, 1 to 24 */                    \
    TEXT(Pumptype, 15550, 100)                                                                                      \
    TEXT(PumpDescription, 15650, 1000)
// clang-format on
