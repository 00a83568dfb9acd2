// Filling the input screen, and what its options show.
#include "input/InputScreen.h"

#include "base/Failure.h"
#include "base/Format.h"
#include "base/NumberText.h"
#include "input/CostTables.h"
#include "input/InputFields.h"
#include "model/WorkingSet.h"
#include "screens/MainWindow.h"

#include <cmath>

namespace velorix {
namespace {

constexpr int EnergyPage = 2;

bool HoldsNumber(const TextBox& Box)
{
    try {
        ParseSingle(Box.Text.Get());
        return true;
    } catch (const Failure&) { // an end of its own: the answer is no
        return false;
    }
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

} // namespace

void FillInputScreen()
{
    HideOptionFrames();
    ShowKindOfSystem();
    ShowCurrencySigns();
    FillCostHeadings();
    for (const InputField& Each : InputFields)
        if (Each.When.IsShown()) Each.Show();
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
    for (const InputField& Each : InputFields) {
        const OptionButton* const Option = Each.Asked.Under;
        if (!Each.Number || !Each.When.IsTaken() || !Option || Option->Value || HoldsNumber(*Each.Box))
            continue;
        Each.Box->Text = GeneralText(std::isfinite(Each.Number->Float()) ? *Each.Number : Single(0.0));
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
