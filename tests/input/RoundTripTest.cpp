// A whole project from the screen to its file and back.
#include "ProjectTest.h"
#include "input/CostTables.h"
#include "input/FileCommands.h"
#include "input/ProfileTable.h"
#include "model/ProjectFile.h"

#include <algorithm>

namespace velorix {
namespace {

using RoundTripTest = ProjectTest;

// Whether a project of this kind stores what the control holds. The controls of one kind stand together.
bool IsStored(const Control* Each)
{
    const auto Among = [Each](const Control& First, const Control& Last) {
        const auto Place = [](const Control* Sought) {
            return std::find(frmLCC.Controls.begin(), frmLCC.Controls.end(), Sought);
        };
        return Place(Each) >= Place(&First) && Place(Each) <= Place(&Last);
    };
    if (!Each->Visible) return false; // the floating editors
    if (Each == &frmLCC.comVaryingDemandUnits) return true;
    if (Each == &frmLCC.comPumpVaryingDemandUnits) return false; // shows the unit of the other
    if (IsPumping()) return !Among(frmLCC.fraGravityOption, frmLCC.comBRWLUnits);
    return !Among(frmLCC.fraPumpOption, frmLCC.sscOK) && !Among(frmLCC.fraSummer, frmLCC.lblPumpingHours);
}

void TypeIntoGrid(Grid& Table, int Base)
{
    for (int Row = Table.FixedRows; Row < Table.Rows(); ++Row)
        for (int Col = Table.FixedCols; Col < Table.Cols(); ++Col)
            if (&Table != &frmLCC.msgLaying || (Row != 9 && Row != 10)) // headings in the middle
                Table.SetText(Row, Col, std::to_string(Base + 10 * Row + Col) + ".5");
}

// A value of its own into every control, so that the two selectors over one field differ.
void TypeEverything()
{
    for (OptionButton* Each :
         {&frmLCC.optGCalculatedFlowrate, &frmLCC.optPumpVarying, &frmLCC.optPumpDetails, &frmLCC.optMortar})
        Each->Value = true;
    wLife = 7;
    FillDemandGrid(frmLCC.msgDemand);
    FillDemandGrid(frmLCC.msgPumpDemand);
    frmLCC.msgProfile.SetRows(6);
    int Number = 0;
    for (Control* Each : frmLCC.Controls) {
        ++Number;
        if (auto* Box = dynamic_cast<TextBox*>(Each))
            Box->Text = std::to_string(Number) + ".25";
        else if (auto* Selector = dynamic_cast<ComboBox*>(Each); Selector && Selector != &frmLCC.comNode)
            Selector->ListIndex = 1 + (IsStored(Selector) ? Number : Number + 1) %
                                          (static_cast<int>(Selector->List.Get().size()) - 1);
        else if (auto* Bar = dynamic_cast<ScrollBar*>(Each))
            Bar->Value = Bar->Min + Number % (Bar->Max - Bar->Min + 1);
        else if (auto* Table = dynamic_cast<Grid*>(Each))
            TypeIntoGrid(*Table, 1000 * Number);
    }
    frmLCC.hscLife.Value = 7;
    frmLCC.dtpDate.Value = Date{2011, 11, 9};
    for (int Row = 1; Row < 6; ++Row) {
        frmLCC.msgProfile.SetText(Row, 0, std::to_string(Row));
        frmLCC.msgProfile.SetText(Row, 7, ComponentTable[Row + 2]);
    }
    const std::array<Color, 3> Classes = {PeakColor, StandardColor, OffpeakColor};
    for (std::size_t Hour = 0; Hour < 24; ++Hour) {
        frmLCC.lblSummerHour[static_cast<int>(Hour)].BackColor = Classes.at(Hour % 3);
        frmLCC.lblWinterHour[static_cast<int>(Hour)].BackColor = Classes.at(Hour / 8);
    }
}

std::string ShownBy(const Control& Each)
{
    if (const auto* Box = dynamic_cast<const TextBox*>(&Each)) return Box->Text;
    if (const auto* Selector = dynamic_cast<const ComboBox*>(&Each)) return Selector->Text();
    if (const auto* Bar = dynamic_cast<const ScrollBar*>(&Each)) return std::to_string(Bar->Value);
    if (const auto* Option = dynamic_cast<const OptionButton*>(&Each)) return Option->Value ? "set" : "";
    if (const auto* Picker = dynamic_cast<const DatePicker*>(&Each)) return ShortDate(Picker->Value);
    std::string Cells;
    if (const auto* Table = dynamic_cast<const Grid*>(&Each))
        for (int Row = 0; Row < Table->Rows(); ++Row)
            for (int Col = 0; Col < Table->Cols(); ++Col) Cells += Table->Text(Row, Col) + "|";
    return Cells;
}

// What the user sees of the project, control by control.
std::vector<std::string> ShownProject()
{
    std::vector<std::string> Shown;
    for (const Control* Each : frmLCC.Controls)
        if (const std::string Value = ShownBy(*Each); IsStored(Each) && !Value.empty())
            Shown.push_back(Each->ToolTip + ": " + Value);
    for (int Hour = 0; IsPumping() && Hour < 24; ++Hour)
        for (const auto* Season : {&frmLCC.lblSummerHour, &frmLCC.lblWinterHour}) {
            const Color Class = (*Season)[Hour].BackColor;
            Shown.push_back(Class == PeakColor ? "peak" : Class == StandardColor ? "standard" : "off-peak");
        }
    return Shown;
}

TEST_F(RoundTripTest, EveryFieldComesBackAsTyped)
{
    for (const int SystemType : {0, 1}) {
        const std::filesystem::path File = Folder / (std::to_string(SystemType) + ".vlx");
        StartNew(SystemType);
        TypeEverything();
        const std::vector<std::string> Typed = ShownProject();
        Windows.Files = {File};
        SaveCommand(); // no file yet, so the dialog asks for one
        EXPECT_EQ(ShownProject(), Typed);

        ResetProjectRecord();
        ResetWorkingSet();
        ResetSession();
        UnloadScreens();
        StartNew(1 - SystemType);
        OpenProjectFile(File);
        EXPECT_EQ(ShownProject(), Typed);
        EXPECT_EQ(MDIProject.lblSystem.Caption.Get(), IsPumping() ? "Pumping system" : "Gravity system");
        EXPECT_EQ(frmLCC.sstInput.TabVisible.Get()[2], IsPumping());
        EXPECT_EQ(frmLCC.fraPumpcurve.Visible, IsPumping());
        EXPECT_EQ(frmLCC.fraPumpVaryingDemand.Visible, IsPumping());
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
