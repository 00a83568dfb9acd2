// Headline figures.
#include "results/Headlines.h"

#include "base/Format.h"
#include "cost/CostResults.h"
#include "input/InputScreen.h"
#include "model/WorkingSet.h"
#include "screens/Results.h"

#include <cmath>

namespace velorix {

namespace {

// A figure that is no number leaves its label empty.
void ShowFigure(Label& Target, const std::string& Before, Single Figure, const char* Pattern,
                const std::string& Behind = {})
{
    Target.Caption =
        std::isfinite(Figure.Float()) ? Before + Format(Figure, Pattern) + Behind : std::string();
}

} // namespace

void ShowHeadlines()
{
    frmResults.lblDesignLife.Caption = std::to_string(wLife) + " years";
    ShowFigure(frmResults.lblNPVE, CurrencySign(), NpvCost, "#,###,###,###,###,000");
    ShowFigure(frmResults.lblNPVI, CurrencySign(), NpvIncome, "#,###,###,###,###,000");
    ShowFigure(frmResults.lblIRR, "IRR = ", Irr, "#0.000", " %");
}

} // namespace velorix
