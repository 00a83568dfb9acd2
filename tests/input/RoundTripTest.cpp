// A whole project from the screen to its file and back: which control stores which field.
#include "ProjectTest.h"
#include "base/NumberText.h"
#include "input/CostTables.h"
#include "input/FileCommands.h"
#include "input/InputFields.h"
#include "model/Components.h"
#include "model/ProjectFile.h"

#include <algorithm>
#include <map>

namespace velorix {
namespace {

using RoundTripTest = ProjectTest;

enum Kind { Gravity, Pumping, Both };

struct StoredControl {
    Kind System;
    Control& Shown;
    std::string Field;
    int Entry = 1;
};

// Rows of a grid's column, and the field's entries from First on.
struct StoredCells {
    Kind System;
    Grid& Shown;
    int Col;
    int FirstRow;
    int LastRow;
    std::string Field;
    int First = 1;
};

bool IsUsed(Kind System)
{
    return System == Both || (System == Pumping) == IsPumping();
}

// Of the two selectors over DemandUnits the one of the gravity frame counts.
std::vector<StoredControl> StoredControls()
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
    std::vector<StoredControl> All;
    for (const auto& [Shown, Field] : OfBoth) All.push_back({Both, *Shown, Field});
    for (const auto& [Shown, Field] : OfGravity) All.push_back({Gravity, *Shown, Field});
    for (const auto& [Shown, Field] : OfPumping) All.push_back({Pumping, *Shown, Field});
    for (int Point = 0; Point < 6; ++Point) {
        All.push_back({Pumping, S.txtH[Point], "PumpCurve", 3 * Point + 1});
        All.push_back({Pumping, S.txtQ[Point], "PumpCurve", 3 * Point + 2});
        All.push_back({Pumping, S.txtEfficiency[Point], "PumpCurve", 3 * Point + 3});
    }
    for (int Hour = 0; Hour < 24; ++Hour) {
        All.push_back({Pumping, S.lblSummerHour[Hour], "SummerHour", Hour + 1});
        All.push_back({Pumping, S.lblWinterHour[Hour], "WinterHour", Hour + 1});
    }
    return All;
}

constexpr int Life = 7;
constexpr int Nodes = 5;

std::vector<StoredCells> StoredGrids()
{
    LccScreen& S = frmLCC;
    return {{Gravity, S.msgDemand, 1, 1, Life, "Demand"},
            {Pumping, S.msgPumpDemand, 1, 1, Life, "Demand"},
            {Both, S.msgProfile, 0, 1, Nodes, "NodeNr"},
            {Both, S.msgProfile, 1, 1, Nodes, "Elevation"},
            {Both, S.msgProfile, 2, 1, Nodes, "AccLength"},
            {Both, S.msgProfile, 3, 1, Nodes, "Diameter"},
            {Both, S.msgProfile, 4, 1, Nodes, "WallThickness"},
            {Both, S.msgProfile, 5, 1, Nodes, "PipeCost"},
            {Both, S.msgProfile, 6, 1, Nodes, "SecondaryLoss"},
            {Both, S.msgProfile, 7, 1, Nodes, "NodeDesc"},
            {Both, S.msgLaying, 1, 1, 8, "Laying"},
            {Both, S.msgLaying, 1, 11, 15, "Laying", 9},
            {Both, S.msgOperational, 1, 1, 8, "StaffPackage"},
            {Both, S.msgOperational, 2, 1, 8, "StaffTime"},
            {Both, S.msgOtherOperational, 1, 1, 5, "Expenses"}};
}

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

void TypeEverything()
{
    int Number = 0;
    for (const StoredControl& Each : StoredControls()) Type(Each.Shown, ++Number);
    frmLCC.hscLife.Value = wLife = Life;
    FillDemandGrid(frmLCC.msgDemand);
    FillDemandGrid(frmLCC.msgPumpDemand);
    frmLCC.msgProfile.SetRows(Nodes + 1);
    for (const StoredCells& Each : StoredGrids())
        for (int Row = Each.FirstRow; Row <= Each.LastRow; ++Row)
            Each.Shown.SetText(Row, Each.Col,
                               Each.Col == 0   ? std::to_string(Row)
                               : Each.Col == 7 ? ComponentTable[Row + 2]
                                               : std::to_string(++Number) + ".5");
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

using Values = std::map<std::string, std::string>; // by field and entry

Values ShownValues()
{
    Values Shown;
    for (const StoredControl& Each : StoredControls())
        if (IsUsed(Each.System)) Shown[Each.Field + " " + std::to_string(Each.Entry)] = ValueOf(Each.Shown);
    for (const StoredCells& Each : StoredGrids())
        for (int Row = Each.FirstRow; IsUsed(Each.System) && Row <= Each.LastRow; ++Row) {
            const std::string& Cell = Each.Shown.Text(Row, Each.Col);
            Shown[Each.Field + " " + std::to_string(Each.First + Row - Each.FirstRow)] =
                Each.Col == 7 ? std::to_string(ComponentIndex(Cell)) : Cell;
        }
    return Shown;
}

std::string TextFor(std::int16_t Value)
{
    return std::to_string(Value);
}

std::string TextFor(Single Value)
{
    return GeneralText(Value);
}

// What the file holds of those values.
Values StoredValues(const Values& Sought)
{
    Values Stored;
    const ProjectFields Record = ReadProjectFile(FileName);
    const auto Note = [&](const std::string& Name, const std::string& Value) {
        if (Sought.count(Name)) Stored[Name] = Value;
    };
    ForEachField(Record, [&]<typename T>(const FieldRule& Rule, const T& Field) {
        const std::string Name = std::string(Rule.Name) + " ";
        if constexpr (requires { Field.Bytes; })
            Note(Name + "1", TextOf(Field));
        else if constexpr (requires { Field.LastIndex; })
            for (int Entry = 1; Entry <= Field.LastIndex; ++Entry)
                Note(Name + std::to_string(Entry), TextFor(Field[Entry]));
        else
            Note(Name + "1", TextFor(Field));
    });
    return Stored;
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
        EXPECT_EQ(StoredValues(Typed), Typed);
        EXPECT_EQ(ShownValues(), Typed);

        ResetProjectRecord();
        ResetWorkingSet();
        ResetSession();
        for (Screen* Each : std::initializer_list<Screen*>{&frmLCC, &MDIProject}) Each->Unload();
        StartNew(1 - SystemType);
        OpenProjectFile(File);
        EXPECT_EQ(ShownValues(), Typed);
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
