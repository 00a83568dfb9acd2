// Headline figures.
#include "results/Headlines.h"

#include "base/Format.h"
#include "cost/PresentValue.h"
#include "cost/RateOfReturn.h"
#include "project/InputScreen.h"
#include "project/WorkingSet.h"
#include "screens/Results.h"

namespace velorix {

void ShowHeadlines()
{
    frmResults.lblDesignLife.Caption = std::to_string(wLife) + " years";
    frmResults.lblNPVE.Caption = CurrencySign() + Format(NpvCost, "#,###,###,###,###,000");
    frmResults.lblNPVI.Caption = CurrencySign() + Format(NpvIncome, "#,###,###,###,###,000");
    frmResults.lblIRR.Caption = "IRR = " + Format(Irr, "#0.000") + " %";
}

} // namespace velorix
