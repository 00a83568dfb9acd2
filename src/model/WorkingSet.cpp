// The working variables, and the copying between them and the record.
#include "model/WorkingSet.h"

#include "base/Text.h"

#include <algorithm>

namespace velorix {

#define VELORIX_INT16(Name, Offset, Count) FieldOf<std::int16_t, Count> w##Name{};
#define VELORIX_SINGLE(Name, Offset, Count) FieldOf<Single, Count> w##Name{};
#define VELORIX_TEXT(Name, Offset, Width) std::string w##Name;
VELORIX_RECORD_FIELDS(VELORIX_INT16, VELORIX_SINGLE, VELORIX_TEXT)
#undef VELORIX_INT16
#undef VELORIX_SINGLE
#undef VELORIX_TEXT

int NodeCount = 0;

namespace {

// clang-format off
// What both kinds of system use.
#define VELORIX_COMMON_FIELDS(FIELD)                                                                        \
    FIELD(SystemType) FIELD(Currency) FIELD(Units) FIELD(PG) FIELD(Contingencies)                           \
    FIELD(Project) FIELD(Designer) FIELD(Date) FIELD(Description)                                           \
    FIELD(Life) FIELD(BaseYear) FIELD(SupplyStart) FIELD(Supervision) FIELD(WallThicknessUnits)             \
    FIELD(Flowrate) FIELD(FlowrateUnits) FIELD(VaryingDemand) FIELD(Demand) FIELD(DemandUnits)              \
    FIELD(TRWL) FIELD(BRWL) FIELD(TRWLUnits) FIELD(BRWLUnits)                                               \
    FIELD(NodeNr) FIELD(Elevation) FIELD(AccLength) FIELD(Diameter) FIELD(PipeCost)                         \
    FIELD(SecondaryLoss) FIELD(NodeDesc) FIELD(WallThickness)                                               \
    FIELD(LiningType) FIELD(LiningThickness) FIELD(LiningThicknessUnits)                                    \
    FIELD(KsNew) FIELD(KsOld) FIELD(KsOldYears) FIELD(KsNewUnits) FIELD(KsOldUnits)                         \
    FIELD(DiameterUnits) FIELD(ElevationUnits) FIELD(LengthUnits) FIELD(Laying)                             \
    FIELD(DiscountRate) FIELD(Escalation) FIELD(EnergyEscalation)                                           \
    FIELD(MMechanical) FIELD(MElectrical) FIELD(MPipeline) FIELD(Mechanical) FIELD(Electrical)              \
    FIELD(WaterSales) FIELD(WaterSalesUnits) FIELD(WaterIncrease)                                           \
    FIELD(StaffPackage) FIELD(StaffTime) FIELD(Expenses)

// What only a pumping system uses, PumpEfficiency apart.
#define VELORIX_PUMPING_FIELDS(FIELD)                                                                       \
    FIELD(PumpDetails) FIELD(PumpOperatingFlowrate) FIELD(PumpOperatingFlowrateUnits)                       \
    FIELD(Pumptype) FIELD(PumpDescription) FIELD(Summer) FIELD(PumpingHours)                                \
    FIELD(SPeak) FIELD(SStandard) FIELD(SOffpeak) FIELD(WPeak) FIELD(WStandard) FIELD(WOffpeak)             \
    FIELD(SummerHour) FIELD(WinterHour) FIELD(PumpCurve) FIELD(HeadUnits) FIELD(FlowUnits)
// clang-format on

// Every field is copied but Reserved1, which stays in the record. PumpEfficiency has a rule of its own.
#define VELORIX_COUNT(...) +1
static_assert(2 VELORIX_COMMON_FIELDS(VELORIX_COUNT) VELORIX_PUMPING_FIELDS(VELORIX_COUNT) ==
                  0 VELORIX_RECORD_FIELDS(VELORIX_COUNT, VELORIX_COUNT, VELORIX_COUNT),
              "a field of the record is copied once");
#undef VELORIX_COUNT

template <int Width>
void Copy(const FixedText<Width>& From, std::string& To)
{
    To = TextOf(From);
}

template <int Width>
void Copy(const std::string& From, FixedText<Width>& To)
{
    SetText(To, Trimmed(From));
}

template <typename T>
void Copy(const T& From, T& To)
{
    To = From;
}

} // namespace

#define VELORIX_LOAD(Name) Copy(ProjectRecord.Name, w##Name);
#define VELORIX_STORE(Name) Copy(w##Name, ProjectRecord.Name);

void CopyRecordToWorkingSet()
{
    VELORIX_COMMON_FIELDS(VELORIX_LOAD)
    if (!IsPumping()) return;
    VELORIX_PUMPING_FIELDS(VELORIX_LOAD)
    VELORIX_LOAD(PumpEfficiency)
}

void CopyWorkingSetToRecord()
{
    VELORIX_COMMON_FIELDS(VELORIX_STORE)
    VELORIX_STORE(PumpEfficiency)
    if (IsPumping()) {
        VELORIX_PUMPING_FIELDS(VELORIX_STORE)
    } else {
        ProjectRecord.EnergyEscalation = 0.0;
    }
}

#undef VELORIX_LOAD
#undef VELORIX_STORE
#undef VELORIX_COMMON_FIELDS
#undef VELORIX_PUMPING_FIELDS

int CountNodes()
{
    constexpr int LeastNodes = 2;
    for (int Row = 1; Row <= wElevation.LastIndex; ++Row) {
        const bool Zero = wElevation[Row] == 0.0 && wAccLength[Row] == 0.0;
        const bool Unused = wElevation[Row] == UnusedNode && wAccLength[Row] == UnusedNode;
        if (Zero || Unused) return std::max(Row - 1, LeastNodes);
    }
    return wElevation.LastIndex - 1;
}

void OpenRecord(const ProjectFields& Record)
{
    ProjectRecord = Record;
    CopyRecordToWorkingSet();
    NodeCount = CountNodes();
}

void ResetWorkingSet()
{
#define VELORIX_FIELD(Name, Offset, Count) w##Name = {};
    VELORIX_RECORD_FIELDS(VELORIX_FIELD, VELORIX_FIELD, VELORIX_FIELD)
#undef VELORIX_FIELD
    NodeCount = 0;
}

} // namespace velorix
