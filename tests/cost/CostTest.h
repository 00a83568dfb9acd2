// The start from which every test of the costs begins.
#pragma once

#include "cost/AnnualCosts.h"
#include "cost/CapitalCost.h"
#include "cost/PresentValue.h"
#include "cost/RateOfReturn.h"
#include "hydraulics/DutyPoint.h"
#include "hydraulics/Flows.h"
#include "hydraulics/YearlySupply.h"
#include "model/WorkingSet.h"
#include "screens/Lcc.h"

#include <gtest/gtest.h>

namespace velorix {

class CostTest : public ::testing::Test {
protected:
    CostTest()
    {
        ResetWorkingSet();
        ResetNormalise();
        ResetFlows();
        ResetDutyPoint();
        ResetYearlySupply();
        ResetCapitalCost();
        ResetAnnualCosts();
        ResetPresentValue();
        ResetRateOfReturn();
        frmLCC.txtSupervision.Text = std::string("0");
    }

    static void BuildFor(int Years)
    {
        wBaseYear = 2005;
        wSupplyStart = static_cast<std::int16_t>(2005 + Years);
    }
};

} // namespace velorix
