// Income from water sales, maintenance, staff and expenses, and the energy bill of a two-season tariff.
#include "cost/AnnualCosts.h"

#include "base/Arithmetic.h"
#include "cost/CostResults.h"
#include "model/WorkingSet.h"

#include <cmath>

namespace velorix {

namespace {

constexpr double MotorEfficiency = 0.95;
constexpr double UnitWeight = 9.81; // of water (kN/m3)

// What a first-year amount has risen by in year y, at a rate in percent a year.
double Escalated(double Rate, int y)
{
    return std::pow(1 + Rate / 100, y - 1);
}

// Water that year y sells (m3/s).
double WaterSold(int y)
{
    double Supply = Flow[y];
    if (IsPumping()) Supply = PumpingHours[y] * Flow[y] / 24;
    const double Demand = wVaryingDemand == 1 ? DemandFactor * wDemand[y] : wFlowrate * DemandFactor;
    return Ordered(Checked(Demand)) >= Ordered(Checked(Supply)) ? Supply : Demand;
}

void ComputeMaintenance(int y)
{
    const double Rise = Escalated(wEscalation, y);
    MaintPipeline[y] = Checked(Rise * (LayingCost + PipeSupplyCost) * wMPipeline / 10000);
    MaintMechanical[y] = Checked(Rise * wMMechanical / 10000 * wMechanical);
    MaintElectrical[y] = Checked(Rise * wMElectrical / 10000 * wElectrical);
    MaintTotal[y] = Checked(MaintPipeline[y] + MaintMechanical[y] + MaintElectrical[y]);
}

void ComputeOperation()
{
    Single StaffTotal;
    for (int Row = 1; Row <= wStaffPackage.LastIndex; ++Row)
        StaffTotal = Checked(StaffTotal + wStaffPackage[Row] * wStaffTime[Row] / 100);
    Single ExpenseTotal;
    for (int Row = 1; Row <= wExpenses.LastIndex; ++Row)
        ExpenseTotal = Checked(ExpenseTotal + wExpenses[Row]);

    for (int y = 1; y <= wLife; ++y)
        OperationalCost[y] = Checked(Escalated(wEscalation, y) * (ExpenseTotal + StaffTotal));
}

// What a kilowatt drawn in the pumping hours of year y costs in that year, ahead of escalation.
Single KilowattCost(int y)
{
    const double Winter =
        wWStandard * HoursStandardW[y] + wWOffpeak * HoursOffpeakW[y] + wWPeak * HoursPeakW[y];
    const double Summer =
        wSStandard * HoursStandardS[y] + wSOffpeak * HoursOffpeakS[y] + wSPeak * HoursPeakS[y];
    return Checked(Winter * 365 * (12 - wSummer) / 12 + Summer * 365 * wSummer / 12);
}

// Without a pump curve the power follows the demand, though the hours follow the pump's flow.
void ComputeEnergy(int y)
{
    const Single C = KilowattCost(y);
    const Single G = Checked(Gradeline(1, y) - ElevationFactor * wTRWL); // the level as entered (m)
    const double Q = wPumpDetails != 0 ? Flow[y] : DemandFlow[y];
    const double Percent = wPumpDetails != 0 ? Efficiency[y] : wPumpEfficiency;

    EnergyCostWork[y] = Checked(G * (Q * UnitWeight) * C / (Percent / 100 * MotorEfficiency));
    EnergyCostWork[y] = Checked(EnergyCostWork[y] * Escalated(wEnergyEscalation, y));
    EnergyCost[y] = EnergyCostWork[y];
}

} // namespace

void ComputeIncome()
{
    ClearArithmeticFlags();
    for (int y = 1; y <= wLife; ++y)
        IncomeSeries[y] = Checked(Escalated(wWaterIncrease, y) * WaterSold(y) * WaterSalesFactor *
                                  wWaterSales * 3600 * 24 * 365);
}

void ComputeAnnualCosts()
{
    ClearArithmeticFlags();
    for (int y = 1; y <= wLife; ++y) ComputeMaintenance(y);
    ComputeOperation();
    for (int y = 1; y <= wLife; ++y) {
        if (IsPumping())
            ComputeEnergy(y);
        else
            EnergyCost[y] = 0;
    }
}

} // namespace velorix
