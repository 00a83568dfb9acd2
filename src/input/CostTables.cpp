// Filling and reading of the small tables.
#include "input/CostTables.h"

#include "base/NumberText.h"
#include "input/GridReading.h"
#include "input/InputScreen.h"
#include "model/WorkingSet.h"

#include <algorithm>

namespace velorix {
namespace {

constexpr std::array<const char*, 8> LayingRates = {"Laying (including joining)",
                                                    "Excavation",
                                                    "Rock excavation",
                                                    "Bedding import",
                                                    "Bedding trench",
                                                    "Blanket import",
                                                    "Blanket trench",
                                                    "Backfilling"};
constexpr std::array<const char*, 3> LayingPercentages = {"Rock", "Bedding import", "Blanket import"};
constexpr std::array<const char*, 8> StaffRows = {"Manager", "Engineer",  "Technologist",   "Technician",
                                                  "Foreman", "Labourers", "Administration", "Financial"};
constexpr std::array<const char*, 5> ExpenseRows = {"Transport", "Fuel", "Electricity", "Training",
                                                    "Housing"};

constexpr int LayingRateRow = 1;       // Laying entries 1 to 8 stand in rows 1 to 8,
constexpr int LayingConditionRow = 11; // entries 9 to 13 in rows 11 to 15
constexpr int FirstCondition = 9;
constexpr int LastCondition = 13;

template <std::size_t Count>
void FillNames(Grid& Table, int FirstRow, const std::array<const char*, Count>& Names)
{
    int Row = FirstRow;
    for (const char* Each : Names) Table.SetText(Row++, 0, Each);
}

void ReadDemand(const Grid& Table)
{
    wDemand.Fill(0.0);
    const int Years = std::min<int>(wLife, wDemand.LastIndex);
    for (int Year = 1; Year <= Years; ++Year) ReadCell(Table, Year, 1, wDemand[Year]);
}

} // namespace

void FillDemandGrid(Grid& Table)
{
    Table.SetRows(wLife + 1);
    Table.SetText(0, 0, "Year");
    Table.SetText(0, 1, "Demand");
    for (int Year = 1; Year <= wLife; ++Year) {
        Table.SetText(Year, 0, std::to_string(Year));
        Table.SetText(Year, 1, GeneralText(wDemand[Year]));
    }
}

void FillCostHeadings()
{
    const std::string Sign = CurrencySign();
    const bool US = UsesUSUnits();
    frmLCC.msgLaying.SetText(0, 1, "Cost (" + Sign + (US ? "/ft³)" : "/m³)"));
    frmLCC.msgLaying.SetText(14, 0, US ? "Required cover (ft)" : "Required cover (m)");
    frmLCC.msgLaying.SetText(
        15, 0, US ? "Excavation lower than pipe invert (ft)" : "Excavation lower than pipe invert (m)");
    frmLCC.msgOperational.SetText(0, 1, "Annual package (" + Sign + ")");
    frmLCC.msgOtherOperational.SetText(0, 1, "Annual amount (" + Sign + ")");
}

void FillLayingGrid()
{
    Grid& Table = frmLCC.msgLaying;
    Table.SetText(0, 0, "Description");
    FillNames(Table, LayingRateRow, LayingRates);
    Table.SetText(9, 0, "Anticipated laying conditions");
    Table.SetText(9, 1, "Anticipated laying conditions");
    Table.SetText(10, 0, "Description");
    Table.SetText(10, 1, "Percentage expected");
    FillNames(Table, LayingConditionRow, LayingPercentages);
    for (int Entry = 1; Entry < FirstCondition; ++Entry)
        Table.SetText(LayingRateRow + Entry - 1, 1, GeneralText(wLaying[Entry]));
    for (int Entry = FirstCondition; Entry <= LastCondition; ++Entry)
        Table.SetText(LayingConditionRow + Entry - FirstCondition, 1, GeneralText(wLaying[Entry]));
}

void FillStaffGrid()
{
    Grid& Table = frmLCC.msgOperational;
    Table.SetText(0, 0, "Staff");
    Table.SetText(0, 2, "Percentage of time (%)");
    FillNames(Table, 1, StaffRows);
    for (int Row = 1; Row <= wStaffPackage.LastIndex; ++Row) {
        Table.SetText(Row, 1, GeneralText(wStaffPackage[Row]));
        Table.SetText(Row, 2, GeneralText(wStaffTime[Row]));
    }
}

void FillExpensesGrid()
{
    Grid& Table = frmLCC.msgOtherOperational;
    Table.SetText(0, 0, "Description of expenses");
    FillNames(Table, 1, ExpenseRows);
    for (int Row = 1; Row <= wExpenses.LastIndex; ++Row) Table.SetText(Row, 1, GeneralText(wExpenses[Row]));
}

void ReadDemandGrid()
{
    ReadDemand(frmLCC.msgDemand);
}

void ReadPumpDemandGrid()
{
    ReadDemand(frmLCC.msgPumpDemand);
}

void ReadLayingGrid()
{
    wLaying.Fill(0.0);
    for (int Entry = 1; Entry < FirstCondition; ++Entry)
        ReadCell(frmLCC.msgLaying, LayingRateRow + Entry - 1, 1, wLaying[Entry]);
    for (int Entry = FirstCondition; Entry <= LastCondition; ++Entry)
        ReadCell(frmLCC.msgLaying, LayingConditionRow + Entry - FirstCondition, 1, wLaying[Entry]);
}

void ReadStaffGrid()
{
    wStaffPackage.Fill(0.0);
    wStaffTime.Fill(0.0);
    for (int Row = 1; Row <= wStaffPackage.LastIndex; ++Row) {
        ReadCell(frmLCC.msgOperational, Row, 1, wStaffPackage[Row]);
        ReadCell(frmLCC.msgOperational, Row, 2, wStaffTime[Row]);
    }
}

void ReadExpensesGrid()
{
    wExpenses.Fill(0.0);
    for (int Row = 1; Row <= wExpenses.LastIndex; ++Row)
        ReadCell(frmLCC.msgOtherOperational, Row, 1, wExpenses[Row]);
}

} // namespace velorix
