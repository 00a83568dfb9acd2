// A whole project from the screen to its file and back: which control stores which field.
#include "ProjectTest.h"
#include "base/NumberText.h"
#include "input/CostTables.h"
#include "input/FileCommands.h"
#include "model/Components.h"
#include "model/EveryEntry.h"
#include "model/ProjectFile.h"

#include <functional>
#include <map>

namespace velorix {
namespace {

using RoundTripTest = ProjectTest;

enum Kind { Gravity, Pumping, Both };

// A value on the screen: how it is typed, how it shows, and the entry of the record that it belongs to.
struct Place {
    Kind System;
    std::string Entry; // "KsNew 1"
    std::function<void(int)> Type;
    std::function<std::string()> Shown;
};

constexpr int Life = 7;
constexpr int Nodes = 5;

// A value of its own into the control, and never the one of a new project.
void Type(Control& Shown, int Number)
{
    constexpr std::array<Color, 3> Classes = {PeakColor, StandardColor, OffpeakColor};
    if (auto* Box = dynamic_cast<TextBox*>(&Shown)) Box->Text = std::to_string(Number) + ".25";
    if (auto* Selector = dynamic_cast<ComboBox*>(&Shown))
        Selector->ListIndex = 1 + Number % (static_cast<int>(Selector->List.Get().size()) - 1);
    if (auto* Bar = dynamic_cast<ScrollBar*>(&Shown))
        Bar->Value = Bar->Min + Number % (Bar->Max - Bar->Min + 1);
    if (auto* Option = dynamic_cast<OptionButton*>(&Shown)) Option->Value = true;
    if (auto* Picker = dynamic_cast<DatePicker*>(&Shown)) Picker->Value = Date{2011, 11, 9};
    if (auto* Hour = dynamic_cast<Label*>(&Shown))
        Hour->BackColor = Classes.at(static_cast<std::size_t>(Number * Number % 7 % 3));
}

std::string ValueOf(const Control& Shown)
{
    if (const auto* Box = dynamic_cast<const TextBox*>(&Shown)) return Box->Text;
    if (const auto* Selector = dynamic_cast<const ComboBox*>(&Shown))
        return std::to_string(Selector->ListIndex);
    if (const auto* Bar = dynamic_cast<const ScrollBar*>(&Shown)) return std::to_string(Bar->Value);
    if (const auto* Option = dynamic_cast<const OptionButton*>(&Shown)) return Option->Value ? "1" : "0";
    if (const auto* Picker = dynamic_cast<const DatePicker*>(&Shown)) return ShortDate(Picker->Value);
    const Color Class = dynamic_cast<const Label&>(Shown).BackColor;
    return Class == PeakColor ? "2" : Class == StandardColor ? "1" : Class == OffpeakColor ? "0" : "?";
}

std::string TextOf(Single Value)
{
    return GeneralText(Value);
}

std::string TextOf(std::int16_t Value)
{
    return std::to_string(Value);
}

class Places : public std::vector<Place> {
public:
    void Add(Kind System, Control& Shown, const std::string& Field, int Entry = 1)
    {
        push_back({System, Field + " " + std::to_string(Entry), [&](int Number) { Type(Shown, Number); },
                   [&] { return ValueOf(Shown); }});
    }

    // A column of a grid, from FirstRow on, and the field's entries from First on.
    void AddCells(Kind System, Grid& Table, int Col, int FirstRow, int Count, const std::string& Field,
                  int First = 1)
    {
        for (int Row = FirstRow; Row < FirstRow + Count; ++Row)
            push_back({System, Field + " " + std::to_string(First + Row - FirstRow),
                       [&Table, Row, Col](int Number) {
                           Table.SetText(Row, Col,
                                         Col == 0 ? std::to_string(Row) : std::to_string(Number) + ".5");
                       },
                       [&Table, Row, Col] { return Table.Text(Row, Col); }});
    }

    void AddComponent(int Row)
    {
        push_back({Both, "NodeDesc " + std::to_string(Row),
                   [Row](int) { frmLCC.msgProfile.SetText(Row, 7, ComponentTable[Row + 2]); },
                   [Row] { return std::to_string(ComponentIndex(frmLCC.msgProfile.Text(Row, 7))); }});
    }
};

// Of the two selectors over DemandUnits the one of the gravity frame counts.
Places AllPlaces()
{
    LccScreen& S = frmLCC;
    using Pairs = std::vector<std::pair<Control*, std::string>>;
    // clang-format off
#define BOX(Field) {&S.txt##Field, #Field}
#define UNITS(Field) {&S.com##Field##Units, #Field "Units"}
#define BAR(Field) {&S.hsc##Field, #Field}
    const Pairs OfBoth = {
        BOX(Project), BOX(Designer), {&S.dtpDate, "Date"}, BOX(Description), BAR(Life), BAR(BaseYear),
        BAR(SupplyStart), {&S.comVaryingDemandUnits, "DemandUnits"}, {&S.optMortar, "LiningType"},
        BOX(LiningThickness), UNITS(LiningThickness), BOX(KsNew), UNITS(KsNew), BOX(KsOld), UNITS(KsOld),
        BOX(KsOldYears), UNITS(Diameter), UNITS(Elevation), UNITS(Length), UNITS(WallThickness),
        BOX(Escalation), BOX(DiscountRate), BOX(Mechanical), BOX(Electrical), BOX(Supervision),
        BAR(MPipeline), BAR(MMechanical), BAR(MElectrical), BOX(WaterSales), UNITS(WaterSales),
        BOX(WaterIncrease)};
    const Pairs OfGravity = {
        {&S.optGCalculatedFlowrate, "VaryingDemand"}, {&S.txtGFlowrate, "Flowrate"},
        {&S.comGFlowrateUnits, "FlowrateUnits"}, BOX(TRWL), UNITS(TRWL), BOX(BRWL), UNITS(BRWL)};
    const Pairs OfPumping = {
        {&S.optPumpVarying, "VaryingDemand"}, {&S.txtPFlowrate, "Flowrate"},
        {&S.comPFlowrateUnits, "FlowrateUnits"}, {&S.txtPPRWL, "TRWL"}, {&S.comPPRWLUnits, "TRWLUnits"},
        {&S.txtPERWL, "BRWL"}, {&S.comPERWLUnits, "BRWLUnits"}, {&S.optPumpDetails, "PumpDetails"},
        BOX(PumpOperatingFlowrate), UNITS(PumpOperatingFlowrate), BOX(PumpEfficiency), UNITS(Head),
        UNITS(Flow), BOX(Pumptype), BOX(PumpDescription), {&S.fsbSummer, "Summer"},
        {&S.fsbPumpingHours, "PumpingHours"}, BOX(SPeak), BOX(SStandard), BOX(SOffpeak), BOX(WPeak),
        BOX(WStandard), BOX(WOffpeak), BOX(EnergyEscalation)};
#undef BOX
#undef UNITS
#undef BAR
    // clang-format on
    Places All;
    for (const auto& [Shown, Field] : OfBoth) All.Add(Both, *Shown, Field);
    for (const auto& [Shown, Field] : OfGravity) All.Add(Gravity, *Shown, Field);
    for (const auto& [Shown, Field] : OfPumping) All.Add(Pumping, *Shown, Field);
    for (int Point = 0; Point < 6; ++Point) {
        All.Add(Pumping, S.txtH[Point], "PumpCurve", 3 * Point + 1);
        All.Add(Pumping, S.txtQ[Point], "PumpCurve", 3 * Point + 2);
        All.Add(Pumping, S.txtEfficiency[Point], "PumpCurve", 3 * Point + 3);
    }
    for (int Hour = 0; Hour < 24; ++Hour) {
        All.Add(Pumping, S.lblSummerHour[Hour], "SummerHour", Hour + 1);
        All.Add(Pumping, S.lblWinterHour[Hour], "WinterHour", Hour + 1);
    }
    All.AddCells(Gravity, S.msgDemand, 1, 1, Life, "Demand");
    All.AddCells(Pumping, S.msgPumpDemand, 1, 1, Life, "Demand");
    int Col = 0;
    for (const char* Field :
         {"NodeNr", "Elevation", "AccLength", "Diameter", "WallThickness", "PipeCost", "SecondaryLoss"})
        All.AddCells(Both, S.msgProfile, Col++, 1, Nodes, Field);
    for (int Row = 1; Row <= Nodes; ++Row) All.AddComponent(Row);
    All.AddCells(Both, S.msgLaying, 1, 1, 8, "Laying");
    All.AddCells(Both, S.msgLaying, 1, 11, 5, "Laying", 9);
    All.AddCells(Both, S.msgOperational, 1, 1, 8, "StaffPackage");
    All.AddCells(Both, S.msgOperational, 2, 1, 8, "StaffTime");
    All.AddCells(Both, S.msgOtherOperational, 1, 1, 5, "Expenses");
    return All;
}

void TypeEverything()
{
    wLife = Life;
    FillDemandGrid(frmLCC.msgDemand);
    FillDemandGrid(frmLCC.msgPumpDemand);
    frmLCC.msgProfile.SetRows(Nodes + 1);
    int Number = 0;
    for (const Place& Each : AllPlaces()) Each.Type(++Number);
    frmLCC.hscLife.Value = Life;
}

using Values = std::map<std::string, std::string>; // by entry

Values ShownValues()
{
    Values Shown;
    for (const Place& Each : AllPlaces())
        if (Each.System == Both || (Each.System == Pumping) == IsPumping()) Shown[Each.Entry] = Each.Shown();
    return Shown;
}

// What the file holds of those values.
Values StoredValues(const Values& Sought)
{
    Values Stored;
    const ProjectFields Record = ReadProjectFile(FileName);
    ForEachField(Record, [&](const FieldRule& Rule, const auto& Field) {
        ForEachEntry(Field, [&](int Entry, const auto& Value) {
            const std::string Name = Rule.Name + (" " + std::to_string(Entry));
            if (Sought.count(Name)) Stored[Name] = TextOf(Value);
        });
    });
    return Stored;
}

void ExpectSame(const Values& Found, const Values& Typed)
{
    for (const auto& [Entry, Value] : Typed) EXPECT_EQ(Found.at(Entry), Value) << Entry;
}

TEST_F(RoundTripTest, EveryControlStoresItsFieldAndShowsItAgain)
{
    for (const int SystemType : {0, 1}) {
        const std::filesystem::path File = Folder / (std::to_string(SystemType) + ".vlx");
        StartNew(SystemType);
        TypeEverything();
        const Values Typed = ShownValues();
        Windows.Files = {File};
        SaveCommand(); // no file yet, so the dialog asks for one
        ExpectSame(StoredValues(Typed), Typed);
        ExpectSame(ShownValues(), Typed);

        StartAfresh();
        StartNew(1 - SystemType);
        OpenProjectFile(File);
        ExpectSame(ShownValues(), Typed);
        EXPECT_EQ(MDIProject.lblSystem.Caption.Get(), IsPumping() ? "Pumping system" : "Gravity system");
        EXPECT_EQ(frmLCC.sstInput.TabVisible.Get()[2], IsPumping());
        EXPECT_EQ(frmLCC.fraPumpcurve.Visible, IsPumping());
        EXPECT_EQ(frmLCC.fraPumpVaryingDemand.Visible, IsPumping());
        EXPECT_TRUE(!IsPumping() || frmLCC.comPumpVaryingDemandUnits.ListIndex == wDemandUnits);
        EXPECT_EQ(frmLCC.fraGravityOption.Visible, !IsPumping());
    }
    frmLCC.txtWOffpeak.Text = "0.123456789"; // more digits than are stored
    MarkChanged();
    SaveCommand();
    EXPECT_EQ(Windows.FileDialogs.size(), 2U); // in its file
    EXPECT_EQ(frmLCC.txtWOffpeak.Text.Get(), "0.12345679");
    EXPECT_EQ(ReadProjectFile(FileName).WOffpeak, Single(0.123456789));
    EXPECT_EQ(Saved, 1);
    EXPECT_TRUE(Windows.Messages.empty());
}

} // namespace
} // namespace velorix
