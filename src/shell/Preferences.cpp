// Handlers of frmPref.
#include "shell/Preferences.h"

#include "base/Arithmetic.h"
#include "input/CostTables.h"
#include "input/InputScreen.h"
#include "input/KeyFilters.h"
#include "input/ViewState.h"
#include "model/WorkingSet.h"
#include "screens/Dialogs.h"
#include "shell/Help.h"

#include <cmath>

namespace velorix {
namespace {

// The bar counts hundredths of a percent. A foreign file may hold anything: the bar is held at its range.
void SetBar(ScrollBar& Bar, Single Percent)
{
    const double Least = Bar.Min;
    const double Most = Bar.Max;
    const double Hundredths = std::fmin(std::fmax(Percent * 100.0, Least), Most); // Least for a NaN
    Bar.Value = static_cast<int>(RoundEven(Hundredths));
}

void ShowAllowances()
{
    frmPref.lblPG.Caption = PercentCaption(frmPref.hsbPG.Value);
    frmPref.lblContingencies.Caption = PercentCaption(frmPref.hsbContingencies.Value);
}

void LeaveDialog()
{
    frmPref.Unload(); // its hint goes with it
    RestoreScreens();
}

} // namespace

void ConnectPreferences()
{
    frmPref.Load = PreferencesLoad;
    frmPref.Close = PreferencesCancelled;
    for (ScrollBar* Each : {&frmPref.hsbPG, &frmPref.hsbContingencies}) {
        Each->Change = ShowAllowances;
        TellBounds(*Each, PercentCaption);
    }
    frmPref.sscOK.Click = PreferencesAccepted;
    frmPref.sscCancel.Click = PreferencesCancelled;
    HelpOn(frmPref.sscHelp, 4000);
}

void PreferencesLoad()
{
    HideScreens();
    (UsesUSUnits() ? frmPref.optUS : frmPref.optMetric).Value = true;
    (PaysInDollars() ? frmPref.optDollars : frmPref.optRand).Value = true;
    SetBar(frmPref.hsbPG, wPG);
    SetBar(frmPref.hsbContingencies, wContingencies);
    ShowAllowances();
}

void PreferencesAccepted()
{
    wUnits = frmPref.optMetric.Value ? 0 : 1;
    wCurrency = frmPref.optDollars.Value ? 1 : 0;
    wContingencies = frmPref.hsbContingencies.Value / 100.0;
    wPG = frmPref.hsbPG.Value / 100.0;
    ShowCurrencySigns();
    FillCostHeadings();
    LeaveDialog();
}

void PreferencesCancelled()
{
    LeaveDialog();
}

} // namespace velorix
