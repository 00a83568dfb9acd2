// What a new project starts with.
#include "base/Date.h"
#include "input/Session.h"
#include "model/ProjectRecord.h"
#include "model/WorkingSet.h"
#include "platform/Platform.h"
#include "screens/Lcc.h"

namespace velorix {
namespace {

constexpr std::array<double, 8> StaffPackages = {300000, 200000, 120000, 80000, 70000, 30000, 60000, 130000};

void SetGeneralDefaults()
{
    ProjectFields& New = ProjectRecord;
    New.PG = 10.0;
    New.Contingencies = 10.0;
    New.SystemType = wSystemType;
    SetText(New.Project, "");
    SetText(New.Designer, "");
    SetText(New.Description, "");
    SetText(New.Pumptype, "");
    SetText(New.PumpDescription, "");
    SetText(New.Date, ShortDate(System().Today()));
    New.Life = 30;
    New.BaseYear = 2001;
    New.SupplyStart = 2001;
    New.VaryingDemand = 0;
    for (int Year = 1; Year <= 10; ++Year) New.Demand[Year] = 0.0; // the later years keep theirs
    New.MMechanical = 25;
    New.MPipeline = 25;
    New.MElectrical = 200;
    New.Flowrate = 0.0;
    New.LiningType = 0;
    New.LiningThickness = 0.0;
    New.KsNew = 0.0;
    New.KsOld = 0.0;
    New.KsOldYears = 0.0;
    New.TRWL = 0.0;
    New.BRWL = 0.0;
    New.Mechanical = 0.0;
    New.Electrical = 0.0;
    New.Supervision = 0.0;
}

void SetRateDefaults()
{
    ProjectFields& New = ProjectRecord;
    New.WaterIncrease = 5.0;
    New.Escalation = 10.0;
    New.EnergyEscalation = 7.5;
    New.DiscountRate = 8.0;
    New.Summer = 6;
    New.PumpingHours = 20;
    for (int Row = 1; Row <= 8; ++Row)
        New.StaffPackage[Row] = StaffPackages.at(static_cast<std::size_t>(Row - 1));
    New.StaffTime.Fill(0.0);
    New.Expenses.Fill(0.0);
}

// By the units of the record, but the currency of the working set.
void SetUnitDefaults()
{
    ProjectFields& New = ProjectRecord;
    const bool US = New.Units == 1;
    const bool Dollar = PaysInDollars();

    for (std::int16_t* Length :
         {&New.TRWLUnits, &New.BRWLUnits, &New.ElevationUnits, &New.LengthUnits, &New.KsNewUnits,
          &New.KsOldUnits, &New.LiningThicknessUnits, &New.DiameterUnits, &New.WallThicknessUnits})
        *Length = US ? 2 : 0;
    New.DemandUnits = US ? 4 : 0;
    New.FlowrateUnits = US ? 4 : 3;
    New.WaterSalesUnits = US ? 2 : 0;
    New.HeadUnits = US ? 1 : 0;
    New.FlowUnits = US ? 2 : 0;
    New.PumpOperatingFlowrateUnits = US ? 3 : 0;
    if (US)
        New.WaterSales = Dollar ? 0.05 : 0.5;
    else
        New.WaterSales = Dollar ? 0.5 : 2.0;
}

void SetProfileDefaults()
{
    ProjectFields& New = ProjectRecord;
    for (int Row = 1; Row <= New.NodeNr.LastIndex; ++Row) New.NodeNr[Row] = static_cast<std::int16_t>(Row);
    New.Elevation.Fill(UnusedNode);
    New.AccLength.Fill(UnusedNode);
    New.Diameter.Fill(0.0);
    New.PipeCost.Fill(0.0);
    New.NodeDesc.Fill(0);
    for (int Row = 1; Row <= 2; ++Row) New.Elevation[Row] = New.AccLength[Row] = 0.0;
}

void SetPumpDefaults()
{
    ProjectFields& New = ProjectRecord;
    New.PumpDetails = 0;
    New.PumpCurve.Fill(0.0);
    New.PumpEfficiency = 70.0;
    New.PumpOperatingFlowrate = 0.0;
}

} // namespace

void NewProjectDefaults()
{
    NewProject = 1;
    SaveAs = 0;
    frmLCC.lblFileName.Caption = NewProjectCaption;

    SetGeneralDefaults();
    SetRateDefaults();
    SetUnitDefaults();
    SetProfileDefaults();
    SetPumpDefaults();
    LoadProject();
}

} // namespace velorix
