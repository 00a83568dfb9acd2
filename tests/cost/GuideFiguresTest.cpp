// The tables of the guide hold the program's own figures, to the last digit shown.
#include "base/Format.h"
#include "cost/CostResults.h"
#include "cost/Figures.h"
#include "model/ProjectFile.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <functional>

namespace velorix {
namespace {

using Row = std::vector<std::string>;
using Table = std::vector<Row>; // its headings first

// The cells of a line "| a | b |".
Row CellsOf(const std::string& Line)
{
    Row Cells;
    for (std::size_t At = 1, End; (End = Line.find('|', At)) != std::string::npos; At = End + 1) {
        const std::string Cell = Line.substr(At, End - At);
        const std::size_t First = Cell.find_first_not_of(' ');
        Cells.push_back(
            First == std::string::npos ? "" : Cell.substr(First, Cell.find_last_not_of(' ') - First + 1));
    }
    return Cells;
}

// The table whose headings begin with those.
Table TableOf(const std::string& Headings)
{
    std::ifstream Text(GUIDE_TEXT);
    Table Found;
    for (std::string Line; std::getline(Text, Line);) {
        if (Found.empty() ? Line.rfind("| " + Headings, 0) == 0 : Line.rfind('|', 0) == 0) {
            if (Line.rfind("|:", 0) != 0 && Line.rfind("|-", 0) != 0) Found.push_back(CellsOf(Line));
        } else if (!Found.empty())
            break;
    }
    EXPECT_GT(Found.size(), 1u) << Headings;
    return Found;
}

// The same without its headings.
Table LinesOf(const std::string& Headings)
{
    Table Found = TableOf(Headings);
    if (!Found.empty()) Found.erase(Found.begin());
    return Found;
}

double NumberIn(std::string Cell)
{
    std::erase(Cell, ',');
    std::erase(Cell, 'R');
    return std::stod(Cell);
}

// As the screens show it, with the cell's decimals.
void ExpectShown(const std::string& Cell, Single Figure, const std::string& What)
{
    const std::size_t First = Cell.find_first_of("0123456789");
    const std::string Number = Cell.substr(First, Cell.find_first_not_of("0123456789.,", First) - First);
    const std::size_t Point = Number.find('.');
    const std::string Decimals =
        Point == std::string::npos ? "" : "." + std::string(Number.size() - Point - 1, '0');
    EXPECT_EQ(Number, Format(Figure, ("###,###,###,##0" + Decimals).c_str())) << What;
}

// The cells of a row from First on.
void ExpectRow(const Row& Cells, std::size_t First, const std::vector<Single>& Figures)
{
    ASSERT_EQ(Cells.size(), First + Figures.size()) << Cells[0];
    for (std::size_t i = 0; i < Figures.size(); ++i) ExpectShown(Cells[First + i], Figures[i], Cells[0]);
}

class GuideFiguresTest : public testing::Test {
protected:
    void Analyse(const std::function<void(ProjectFields&)>& Change = {})
    {
        ProjectFields Record = ReadProjectFile(GUIDE_EXAMPLE);
        if (Change) Change(Record);
        OpenRecord(Record);
        ASSERT_TRUE(ComputeFigures(Tables::LeftOut));
    }

    // Rows that begin with a year.
    static void ExpectYears(const std::string& Headings,
                            const std::function<std::vector<Single>(int)>& FiguresOf)
    {
        SCOPED_TRACE(Headings);
        for (const Row& Each : LinesOf(Headings))
            ExpectRow(Each, 1, FiguresOf(std::stoi(Each[0]) - wSupplyStart + 1));
    }
};

TEST_F(GuideFiguresTest, YearsAndHeadlines)
{
    Analyse();
    ExpectYears("Year | Flow rate", [](int y) -> std::vector<Single> {
        return {PumpFlow[y], PumpHead[y], PumpEfficiencyByYear[y]};
    });
    ExpectYears("Year | Yield", [](int y) -> std::vector<Single> {
        return {Flow[y] * wPumpingHours / 24 / DemandFactor, wDemand[y] - Shortage[y], Shortage[y],
                PumpingHours[y]};
    });
    ExpectYears("Year | Pumping hours", [](int y) -> std::vector<Single> {
        return {PumpingHours[y], HoursOffpeakS[y], HoursStandardS[y], HoursPeakS[y], EnergyCost[y]};
    });
    ExpectYears("Year | Income", [](int y) -> std::vector<Single> {
        return {IncomeSeries[y], CostSeries[y + ConstructionYears()], MaintTotal[y], OperationalCost[y],
                EnergyCost[y]};
    });

    const ByYear* const Annual[] = {&OperationalCost, &MaintPipeline, &MaintMechanical, &MaintElectrical,
                                    &EnergyCost};
    const Table Costs = TableOf("Description | Year 1");
    for (std::size_t Line = 1; Line < Costs.size(); ++Line)
        for (std::size_t Column = 1; Column < Costs[0].size(); ++Column)
            ExpectShown(Costs[Line][Column], (*Annual[Line - 1])[std::stoi(Costs[0][Column].substr(5))],
                        Costs[Line][0]);

    const Single Figures[] = {Single(wLife), NpvCost, NpvIncome, Irr};
    const Table Headlines = LinesOf("Figure | Value");
    for (std::size_t Line = 0; Line < Headlines.size(); ++Line)
        ExpectRow(Headlines[Line], 1, {Figures[Line]});
}

// Sums are stored in seven digits, so the guide's lines agree with plain sums to a few units.
TEST_F(GuideFiguresTest, CapitalCost)
{
    Analyse();
    const double Pipeline = LayingCost + PipeSupplyCost;
    const double Works = Pipeline + wMechanical + wElectrical;
    const double Allowed = (1 + wPG / 100) * Works;
    const double Raised = (1 + wContingencies / 100) * Allowed + EscalationAmount;
    const double All = Raised + ConsultingFees + SupervisionCost;
    // clang-format off
    const double Lines[] = {
        Pipeline, wMechanical, wElectrical, Works, wPG / 100 * Works, Allowed, wContingencies / 100 * Allowed,
        EscalationAmount, Raised, ConsultingFees, SupervisionCost, All, 0.14 * All, TotalCapitalCost};
    // clang-format on
    const Table Found = LinesOf("Description | Amount");
    ASSERT_EQ(Found.size(), std::size(Lines));
    for (std::size_t Line = 0; Line < std::size(Lines); ++Line)
        EXPECT_NEAR(NumberIn(Found[Line][1]), Lines[Line], 8) << Found[Line][0];
}

TEST_F(GuideFiguresTest, Alternatives)
{
    for (const Row& Pipe : LinesOf("Pipe (mm)")) {
        Analyse([&](ProjectFields& Record) {
            for (int Node = 1; Record.Diameter[Node] == 508; ++Node) {
                Record.Diameter[Node] = NumberIn(Pipe[0]);
                Record.PipeCost[Node] = NumberIn(Pipe[1]);
            }
        });
        ExpectRow(Pipe, 2, {TotalCapitalCost, NpvCost, NpvIncome, Irr, PumpingHours[wLife]});
    }

    // In the order of the guide's lines; the number stands in the line.
    using Change = void (*)(ProjectFields&, double);
    const Change Rate = [](ProjectFields& Record, double To) { Record.DiscountRate = To; };
    const Change Energy = [](ProjectFields& Record, double To) { Record.EnergyEscalation = To; };
    const Change Roughness = [](ProjectFields& Record, double To) { Record.KsOld = To; };
    const Change Demand = [](ProjectFields& Record, double By) {
        for (Single& Each : Record.Demand) Each = std::round(Each * (100 - By)) / 100; // to the hundredth
    };
    const Change Tariff = [](ProjectFields& Record, double To) { Record.WaterSales = To; };
    const Change None = [](ProjectFields&, double) {};
    const Change Changes[] = {None, Rate, Rate, Energy, Energy, Roughness, Roughness, Demand, Tariff};
    const Table WhatIf = LinesOf("Change");
    ASSERT_EQ(WhatIf.size(), std::size(Changes));
    for (std::size_t Line = 0; Line < WhatIf.size(); ++Line) {
        const std::string& Told = WhatIf[Line][0];
        const std::size_t Number = Told.find_first_of("0123456789");
        Analyse([&](ProjectFields& Record) {
            Changes[Line](Record, Number == std::string::npos ? 0 : std::stod(Told.substr(Number)));
        });
        ExpectRow(WhatIf[Line], 1, {NpvCost, NpvIncome, Irr});
    }
}

} // namespace
} // namespace velorix
