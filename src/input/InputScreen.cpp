// The order in which the input screen is filled, page by page.
#include "input/InputScreen.h"

#include "base/Failure.h"
#include "base/Format.h"
#include "base/NumberText.h"
#include "input/CommitFields.h"
#include "input/CostTables.h"
#include "input/HourPattern.h"
#include "input/ProfileTable.h"
#include "model/WorkingSet.h"
#include "screens/MainWindow.h"

#include <cmath>

namespace velorix {
namespace {

constexpr int EnergyPage = 2;

void ShowNumber(TextBox& Box, Single Value)
{
    Box.Text = GeneralText(Value);
}

bool HoldsNumber(const TextBox& Box)
{
    try {
        ParseSingle(Box.Text.Get());
        return true;
    } catch (const Failure&) {
        return false;
    }
}

// The working set takes what the bar can hold, ahead of the bar: a bar that shows what is stored already
// hasn't been moved by the user.
void ShowInBar(ScrollBar& Bar, std::int16_t& Value)
{
    Value = static_cast<std::int16_t>(Bar.Value.Fit(Value));
    Bar.Value = Value;
}

void HideOptionFrames()
{
    for (Frame* Each :
         {&frmLCC.fraGravityOption, &frmLCC.fraGravityFlowrate, &frmLCC.fraGravityReservoirs,
          &frmLCC.fraVaryingDemand, &frmLCC.fraPumpOption, &frmLCC.FraPumpingOption,
          &frmLCC.fraPumpingFlowrate, &frmLCC.fraPumpReservoir, &frmLCC.FraPumpFixedDemand,
          &frmLCC.fraPumpVaryingDemand, &frmLCC.fraPumpcurve, &frmLCC.fraPumpDetails, &frmLCC.fraLaying})
        Each->Visible = false;
}

void ShowKindOfSystem()
{
    MDIProject.lblSystem.Caption = IsPumping() ? "Pumping system" : "Gravity system";
    std::vector<bool> Pages = frmLCC.sstInput.TabVisible;
    Pages[EnergyPage] = IsPumping();
    if (!IsPumping() && frmLCC.sstInput.Tab == EnergyPage) frmLCC.sstInput.Tab = 0; // while the page is there
    frmLCC.sstInput.TabVisible = Pages;
    frmLCC.txtEnergyEscalation.Visible = IsPumping();
    frmLCC.lblEnergyEscalation.Visible = IsPumping();
    frmLCC.lblEnergyEscalationUnit.Visible = IsPumping();
}

void FillGeneralPage()
{
    frmLCC.txtProject.Text = wProject;
    frmLCC.txtDesigner.Text = wDesigner;
    if (const std::optional<Date> Found = ParseDate(wDate)) frmLCC.dtpDate.Value = *Found;
    frmLCC.txtDescription.Text = wDescription;
    ShowInBar(frmLCC.hscLife, wLife);
    ShowInBar(frmLCC.hscBaseYear, wBaseYear);
    ShowInBar(frmLCC.hscSupplyStart, wSupplyStart);
    frmLCC.lblLife.Caption = std::to_string(wLife);
    frmLCC.lblBaseYear.Caption = std::to_string(wBaseYear);
    frmLCC.lblSupplyStart.Caption = std::to_string(wSupplyStart);
}

void FillPumpCurve()
{
    for (int Point = 0; Point < 6; ++Point) {
        ShowNumber(frmLCC.txtH[Point], wPumpCurve[3 * Point + 1]);
        ShowNumber(frmLCC.txtQ[Point], wPumpCurve[3 * Point + 2]);
        ShowNumber(frmLCC.txtEfficiency[Point], wPumpCurve[3 * Point + 3]);
    }
}

// Both kinds of system have level and demand selectors of their own, over the same fields.
void FillDemandAndLevelUnits()
{
    frmLCC.comTRWLUnits.ListIndex = wTRWLUnits;
    frmLCC.comBRWLUnits.ListIndex = wBRWLUnits;
    frmLCC.comPPRWLUnits.ListIndex = wTRWLUnits;
    frmLCC.comPERWLUnits.ListIndex = wBRWLUnits;
    frmLCC.comGFlowrateUnits.ListIndex = wFlowrateUnits;
    frmLCC.comPFlowrateUnits.ListIndex = wFlowrateUnits;
    frmLCC.comVaryingDemandUnits.ListIndex = wDemandUnits;
    frmLCC.comPumpVaryingDemandUnits.ListIndex = wDemandUnits;
}

void FillEnergyPage()
{
    ShowInBar(frmLCC.fsbSummer, wSummer);
    frmLCC.lblSummer.Caption = std::to_string(wSummer);
    ShowInBar(frmLCC.fsbPumpingHours, wPumpingHours);
    frmLCC.lblPumpingHours.Caption = std::to_string(wPumpingHours);
    ShowNumber(frmLCC.txtSPeak, wSPeak);
    ShowNumber(frmLCC.txtSStandard, wSStandard);
    ShowNumber(frmLCC.txtSOffpeak, wSOffpeak);
    ShowNumber(frmLCC.txtWPeak, wWPeak);
    ShowNumber(frmLCC.txtWStandard, wWStandard);
    ShowNumber(frmLCC.txtWOffpeak, wWOffpeak);
    FillHourPattern();
}

void FillPumpingSystem()
{
    (wVaryingDemand == 1 ? frmLCC.optPumpVarying : frmLCC.optPumpFixed).Value = true;
    (wPumpDetails != 0 ? frmLCC.optPumpDetails : frmLCC.optFlowrate).Value = true;
    frmLCC.fraPumpOption.Visible = true;
    frmLCC.FraPumpingOption.Visible = true;
    frmLCC.fraPumpReservoir.Visible = true;
    ReadOptions();
    ShowPumpDemandOption();
    ShowPumpingOption();

    ShowNumber(frmLCC.txtPumpOperatingFlowrate, wPumpOperatingFlowrate);
    ShowNumber(frmLCC.txtPPRWL, wTRWL);
    ShowNumber(frmLCC.txtPERWL, wBRWL);
    FillDemandAndLevelUnits();
    frmLCC.comPumpOperatingFlowrateUnits.ListIndex = wPumpOperatingFlowrateUnits;
    frmLCC.comHeadUnits.ListIndex = wHeadUnits;
    frmLCC.comFlowUnits.ListIndex = wFlowUnits;
    FillDemandGrid(frmLCC.msgPumpDemand);
    ShowNumber(frmLCC.txtPFlowrate, wFlowrate);
    ShowNumber(frmLCC.txtPumpEfficiency, wPumpEfficiency);
    frmLCC.txtPumptype.Text = wPumptype;
    frmLCC.txtPumpDescription.Text = wPumpDescription;
    FillPumpCurve();
    FillEnergyPage();
}

void FillGravitySystem()
{
    (wVaryingDemand == 1 ? frmLCC.optGCalculatedFlowrate : frmLCC.optGSpecifiedFlowrate).Value = true;
    ReadOptions();
    frmLCC.fraGravityOption.Visible = true;
    frmLCC.fraGravityFlowrate.Visible = true;
    frmLCC.fraVaryingDemand.Visible = true;
    frmLCC.fraGravityReservoirs.Visible = true;
    ShowGravityDemandOption();

    ShowNumber(frmLCC.txtGFlowrate, wFlowrate);
    ShowNumber(frmLCC.txtTRWL, wTRWL);
    ShowNumber(frmLCC.txtBRWL, wBRWL);
    FillDemandAndLevelUnits();
    FillDemandGrid(frmLCC.msgDemand);
    FillPumpCurve();
}

void FillProfilePage()
{
    (wLiningType == 1 ? frmLCC.optMortar : frmLCC.optCopon).Value = true;
    ShowLiningOption();
    ShowNumber(frmLCC.txtLiningThickness, wLiningThickness);
    frmLCC.comLiningThicknessUnits.ListIndex = wLiningThicknessUnits;
    ShowNumber(frmLCC.txtKsNew, wKsNew);
    ShowNumber(frmLCC.txtKsOld, wKsOld);
    ShowNumber(frmLCC.txtKsOldYears, wKsOldYears);
    frmLCC.comKsNewUnits.ListIndex = wKsNewUnits;
    frmLCC.comKsOldUnits.ListIndex = wKsOldUnits;
    frmLCC.comDiameterUnits.ListIndex = wDiameterUnits;
    frmLCC.comElevationUnits.ListIndex = wElevationUnits;
    frmLCC.comLengthUnits.ListIndex = wLengthUnits;
    frmLCC.comWallThicknessUnits.ListIndex = wWallThicknessUnits;
    FillProfileGrid();
    FillLayingGrid();
}

void FillRatesPage()
{
    ShowNumber(frmLCC.txtDiscountRate, wDiscountRate);
    ShowNumber(frmLCC.txtEscalation, wEscalation);
    if (IsPumping()) ShowNumber(frmLCC.txtEnergyEscalation, wEnergyEscalation);
    ShowInBar(frmLCC.hscMMechanical, wMMechanical);
    ShowInBar(frmLCC.hscMElectrical, wMElectrical);
    ShowInBar(frmLCC.hscMPipeline, wMPipeline);
    frmLCC.lblMMechanical.Caption = PercentCaption(wMMechanical);
    frmLCC.lblMElectrical.Caption = PercentCaption(wMElectrical);
    frmLCC.lblMPipeline.Caption = PercentCaption(wMPipeline);
    ShowNumber(frmLCC.txtElectrical, wElectrical);
    ShowNumber(frmLCC.txtMechanical, wMechanical);
    ShowNumber(frmLCC.txtSupervision, wSupervision);
    ShowNumber(frmLCC.txtWaterSales, wWaterSales);
    frmLCC.comWaterSalesUnits.ListIndex = wWaterSalesUnits;
    ShowNumber(frmLCC.txtWaterIncrease, wWaterIncrease);
    FillStaffGrid();
    FillExpensesGrid();
}

} // namespace

void FillInputScreen()
{
    HideOptionFrames();
    ShowKindOfSystem();
    ShowCurrencySigns();
    FillCostHeadings();
    FillGeneralPage();
    if (IsPumping())
        FillPumpingSystem();
    else
        FillGravitySystem();
    FillProfilePage();
    FillRatesPage();
}

void ShowGravityDemandOption()
{
    const bool Fixed = frmLCC.optGSpecifiedFlowrate.Value;
    for (Control* Each : std::initializer_list<Control*>{
             &frmLCC.fraGravityFlowrate, &frmLCC.comGFlowrateUnits, &frmLCC.txtGFlowrate, &frmLCC.Label52})
        Each->Enabled = Fixed;
    for (Control* Each : std::initializer_list<Control*>{&frmLCC.fraVaryingDemand, &frmLCC.msgDemand,
                                                         &frmLCC.Label53, &frmLCC.comVaryingDemandUnits})
        Each->Enabled = !Fixed;
}

void ShowPumpDemandOption()
{
    frmLCC.FraPumpFixedDemand.Visible = frmLCC.optPumpFixed.Value;
    frmLCC.fraPumpVaryingDemand.Visible = !frmLCC.optPumpFixed.Value;
}

void ShowPumpingOption()
{
    frmLCC.fraPumpingFlowrate.Visible = frmLCC.optFlowrate.Value;
    frmLCC.fraPumpcurve.Visible = !frmLCC.optFlowrate.Value;
}

void ShowLiningOption()
{
    for (Control* Each : std::initializer_list<Control*>{&frmLCC.txtLiningThickness,
                                                         &frmLCC.comLiningThicknessUnits, &frmLCC.Label51})
        Each->Enabled = frmLCC.optMortar.Value;
}

void FillUnusedBoxes()
{
    const auto Fill = [](TextBox& Box, Single Value) {
        if (!HoldsNumber(Box)) ShowNumber(Box, std::isfinite(Value.Float()) ? Value : Single(0.0));
    };
    if (!frmLCC.optGSpecifiedFlowrate.Value) Fill(frmLCC.txtGFlowrate, wFlowrate);
    if (!frmLCC.optPumpFixed.Value) Fill(frmLCC.txtPFlowrate, wFlowrate);
    if (frmLCC.optPumpDetails.Value) {
        Fill(frmLCC.txtPumpOperatingFlowrate, wPumpOperatingFlowrate);
        Fill(frmLCC.txtPumpEfficiency, wPumpEfficiency);
        return;
    }
    for (int Point = 0; Point < 6; ++Point) {
        Fill(frmLCC.txtH[Point], wPumpCurve[3 * Point + 1]);
        Fill(frmLCC.txtQ[Point], wPumpCurve[3 * Point + 2]);
        Fill(frmLCC.txtEfficiency[Point], wPumpCurve[3 * Point + 3]);
    }
}

void ShowCurrencySigns()
{
    for (Label& Each : frmLCC.lblCurrency) Each.Caption = CurrencySign();
    for (Label& Each : frmLCC.lblUnit) Each.Caption = CurrencySign();
}

std::string CurrencySign()
{
    return PaysInDollars() ? "$" : "R";
}

std::string PercentCaption(int Hundredths)
{
    return Format(Hundredths / 100.0, "#0.00") + "%";
}

} // namespace velorix
