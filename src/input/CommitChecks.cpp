// The boxes that must be filled, in the order in which they are asked for.
#include "input/CommitChecks.h"

#include "base/Text.h"
#include "input/CostTables.h"
#include "input/ProfileTable.h"
#include "model/WorkingSet.h"
#include "platform/Platform.h"
#include "screens/Lcc.h"

namespace velorix {
namespace {

// One step of the check: a box that must be filled, or something to be done in between.
struct Check {
    Check(bool (*When)(), TextBox& MustBeFilled, const char* IfEmpty)
        : Applies(When)
        , Box(&MustBeFilled)
        , Message(IfEmpty)
    {
    }
    Check(bool (*When)(), void (*ToDo)())
        : Applies(When)
        , Act(ToDo)
    {
    }

    bool (*Applies)();
    TextBox* Box = nullptr;
    const char* Message = "";
    void (*Act)() = nullptr;
};

bool Always()
{
    return true;
}

bool Gravity()
{
    return !IsPumping();
}

bool PumpingAFixedDemand()
{
    return IsPumping() && wVaryingDemand == 0;
}

bool PumpingAVaryingDemand()
{
    return IsPumping() && wVaryingDemand != 0;
}

bool PumpCurveGiven()
{
    return IsPumping() && wPumpDetails == 1;
}

bool OperatingPointGiven()
{
    return IsPumping() && wPumpDetails == 0;
}

bool FlowSpecified()
{
    return Gravity() && wVaryingDemand == 0;
}

bool FlowCalculated()
{
    return Gravity() && wVaryingDemand != 0;
}

bool MortarLining()
{
    return frmLCC.optMortar.Value;
}

bool IsEmpty(const TextBox& Box)
{
    return Trimmed(Box.Text.Get()).empty();
}

// A project needs no description, but its box is never left empty.
void FillDescription()
{
    if (IsEmpty(frmLCC.txtDescription)) frmLCC.txtDescription.Text = " ";
}

using Checks = std::vector<Check>;

Checks GeneralChecks()
{
    return {
        {Always, frmLCC.txtProject, "Enter the project name !"},
        {Always, frmLCC.txtDesigner, "Enter the designer !"},
        {Always, FillDescription},
        {PumpingAFixedDemand, frmLCC.txtPFlowrate, "Enter the fixed demand (must be greater than zero) !"},
        {PumpingAVaryingDemand, ReadPumpDemandGrid},
        {IsPumping, frmLCC.txtPPRWL, "Enter the pumpstation reservoir water level !"},
        {IsPumping, frmLCC.txtPERWL, "Enter the end reservoir water level !"},
    };
}

// Point by point.
Checks PumpCurveChecks()
{
    Checks All;
    for (int Point = 0; Point < frmLCC.txtH.Count; ++Point) {
        All.emplace_back(PumpCurveGiven, frmLCC.txtH[Point], "Enter the pump head !");
        All.emplace_back(PumpCurveGiven, frmLCC.txtQ[Point], "Enter the Flow rate !");
        All.emplace_back(PumpCurveGiven, frmLCC.txtEfficiency[Point], "Enter the pump efficiency !");
    }
    return All;
}

Checks PipelineChecks()
{
    return {
        {OperatingPointGiven, frmLCC.txtPumpOperatingFlowrate,
         "Enter the operating Flow rate (must be greater than zero) !"},
        {OperatingPointGiven, frmLCC.txtPumpEfficiency,
         "Enter the pump efficiency at the operating point(must be greater than zero) !"},
        {FlowSpecified, frmLCC.txtGFlowrate, "Enter the fixed demand (must be greater than zero) !"},
        {FlowCalculated, ReadDemandGrid},
        {Gravity, frmLCC.txtTRWL, "Enter the top reservoir water level !"},
        {Gravity, frmLCC.txtBRWL, "Enter the bottom reservoir water level !"},
        {Always, frmLCC.txtKsNew, "Enter absolute roughness value of a new pipe !"},
        {Always, frmLCC.txtKsOld, "Enter absolute roughness value of an old pipe !"},
        {Always, frmLCC.txtKsOldYears,
         "Enter the number of years it will take the pipeline to deteriorate !"},
        {MortarLining, frmLCC.txtLiningThickness, "Enter cement mortar lining thickness !"},
        {Always, ReadProfileGrid},
        {Always, ReadLayingGrid},
    };
}

Checks RateChecks()
{
    return {
        {IsPumping, frmLCC.txtSPeak, "Enter the peak summer demand rate !"},
        {IsPumping, frmLCC.txtSStandard, "Enter the standard summer demand rate !"},
        {IsPumping, frmLCC.txtSOffpeak, "Enter the off-peak summer demand rate !"},
        {IsPumping, frmLCC.txtWPeak, "Enter the peak winter demand rate !"},
        {IsPumping, frmLCC.txtWStandard, "Enter the standard winter demand rate !"},
        {IsPumping, frmLCC.txtWOffpeak, "Enter the off-peak winter demand rate !"},
        {Always, frmLCC.txtEscalation, "Enter the estimated escalation rate !"},
        {Always, frmLCC.txtDiscountRate, "Enter the estimated discount rate !"},
        {Always, frmLCC.txtWaterSales, "Enter the current cost of water !"},
        {Always, frmLCC.txtWaterIncrease, "Enter the annual increase in water tarriffs !"},
        {Always, frmLCC.txtElectrical, "Enter the estimated electrical works cost !"},
        {Always, frmLCC.txtMechanical, "Enter the estimated mechanical works cost !"},
        {Always, frmLCC.txtSupervision, "Enter the estimated supervision cost !"},
        {IsPumping, frmLCC.txtEnergyEscalation, "Enter the estimated energy escalation rate !"},
    };
}

bool Passed(const Checks& All)
{
    for (const Check& Each : All) {
        if (!Each.Applies()) continue;
        if (Each.Act)
            Each.Act();
        else if (IsEmpty(*Each.Box)) {
            PointOut(*Each.Box, Each.Message);
            return false;
        }
    }
    return true;
}

} // namespace

bool InputIsComplete()
{
    return Passed(GeneralChecks()) && Passed(PumpCurveChecks()) && Passed(PipelineChecks()) &&
           Passed(RateChecks());
}

void PointOut(TextBox& Box, const std::string& Problem)
{
    Warn(Problem, "Error !");
    frmLCC.Visible = true;
    System().SetFocus(Box);
}

} // namespace velorix
