// The working variables and their filling from the record.
#include "project/WorkingSet.h"

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

template <int Width>
void Copy(const FixedText<Width>& From, std::string& To)
{
    To = TextOf(From);
}

template <typename T>
void Copy(const T& From, T& To)
{
    To = From;
}

} // namespace

#define VELORIX_COPY(Name) Copy(ProjectRecord.Name, w##Name)

void CopyRecordToWorkingSet()
{
    VELORIX_COPY(SystemType);
    VELORIX_COPY(Currency);
    VELORIX_COPY(Units);
    VELORIX_COPY(PG);
    VELORIX_COPY(Contingencies);
    VELORIX_COPY(Project);
    VELORIX_COPY(Designer);
    VELORIX_COPY(Date);
    VELORIX_COPY(Description);
    VELORIX_COPY(Life);
    VELORIX_COPY(BaseYear);
    VELORIX_COPY(SupplyStart);
    VELORIX_COPY(Supervision);
    VELORIX_COPY(WallThicknessUnits);

    VELORIX_COPY(Flowrate);
    VELORIX_COPY(FlowrateUnits);
    VELORIX_COPY(VaryingDemand);
    VELORIX_COPY(Demand);
    VELORIX_COPY(DemandUnits);
    VELORIX_COPY(TRWL);
    VELORIX_COPY(BRWL);
    VELORIX_COPY(TRWLUnits);
    VELORIX_COPY(BRWLUnits);

    VELORIX_COPY(NodeNr);
    VELORIX_COPY(Elevation);
    VELORIX_COPY(AccLength);
    VELORIX_COPY(Diameter);
    VELORIX_COPY(PipeCost);
    VELORIX_COPY(SecondaryLoss);
    VELORIX_COPY(NodeDesc);
    VELORIX_COPY(WallThickness);
    VELORIX_COPY(LiningType);
    VELORIX_COPY(LiningThickness);
    VELORIX_COPY(LiningThicknessUnits);
    VELORIX_COPY(KsNew);
    VELORIX_COPY(KsOld);
    VELORIX_COPY(KsOldYears);
    VELORIX_COPY(KsNewUnits);
    VELORIX_COPY(KsOldUnits);
    VELORIX_COPY(DiameterUnits);
    VELORIX_COPY(ElevationUnits);
    VELORIX_COPY(LengthUnits);
    VELORIX_COPY(Laying);
    VELORIX_COPY(DiscountRate);
    VELORIX_COPY(Escalation);
    VELORIX_COPY(EnergyEscalation);
    VELORIX_COPY(MMechanical);
    VELORIX_COPY(MElectrical);
    VELORIX_COPY(MPipeline);
    VELORIX_COPY(Mechanical);
    VELORIX_COPY(Electrical);
    VELORIX_COPY(WaterSales);
    VELORIX_COPY(WaterSalesUnits);
    VELORIX_COPY(WaterIncrease);
    VELORIX_COPY(StaffPackage);
    VELORIX_COPY(StaffTime);
    VELORIX_COPY(Expenses);

    if (wSystemType != 1) return;
    VELORIX_COPY(PumpDetails);
    VELORIX_COPY(PumpOperatingFlowrate);
    VELORIX_COPY(PumpOperatingFlowrateUnits);
    VELORIX_COPY(PumpEfficiency);
    VELORIX_COPY(Pumptype);
    VELORIX_COPY(PumpDescription);
    VELORIX_COPY(Summer);
    VELORIX_COPY(PumpingHours);
    VELORIX_COPY(SPeak);
    VELORIX_COPY(SStandard);
    VELORIX_COPY(SOffpeak);
    VELORIX_COPY(WPeak);
    VELORIX_COPY(WStandard);
    VELORIX_COPY(WOffpeak);
    VELORIX_COPY(SummerHour);
    VELORIX_COPY(WinterHour);
    VELORIX_COPY(PumpCurve);
    VELORIX_COPY(HeadUnits);
    VELORIX_COPY(FlowUnits);
}

#undef VELORIX_COPY

void ResetWorkingSet()
{
#define VELORIX_FIELD(Name, Offset, Count) w##Name = {};
    VELORIX_RECORD_FIELDS(VELORIX_FIELD, VELORIX_FIELD, VELORIX_FIELD)
#undef VELORIX_FIELD
    NodeCount = 0;
}

} // namespace velorix
