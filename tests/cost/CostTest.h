// The start from which every test of the costs begins.
#pragma once

#include "cost/AnnualCosts.h"
#include "cost/CapitalCost.h"
#include "cost/CostResults.h"
#include "cost/PresentValue.h"
#include "cost/RateOfReturn.h"
#include "model/WorkingSet.h"

#include <gtest/gtest.h>

namespace velorix {

class CostTest : public ::testing::Test {
protected:
    CostTest()
    {
        ResetWorkingSet();
        ResetResults();
    }

    static void BuildFor(int Years)
    {
        wBaseYear = 2005;
        wSupplyStart = static_cast<std::int16_t>(2005 + Years);
    }
};

} // namespace velorix
