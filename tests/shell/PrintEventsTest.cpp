// The selection of what to print, its runs, and the print buttons, on a printer that answers from a list.
#include "ShellTest.h"
#include "base/Failure.h"
#include "hydraulics/HydraulicResults.h"
#include "model/SampleRecords.h"
#include "reports/PageFrame.h"
#include "reports/ResultReports.h"
#include "reports/Sections.h"
#include "results/PlotState.h"
#include "screens/Viewers.h"
#include "shell/ViewerEvents.h"

#include <algorithm>

namespace velorix {
namespace {

// Its file can't be written.
class FullDisk : public ScriptedPlatform {
public:
    int Tries = 0;
    void EndPrintRun() override
    {
        ++Tries;
        throw FileFailure("The disk is full.");
    }
};

class PrintEventsTest : public ShellTest {
protected:
    void Open(const ProjectFields& Record)
    {
        ProjectRecord = Record;
        NewProject = 1;
        LoadProject();
    }

    void Analyse(const ProjectFields& Record)
    {
        Open(Record);
        Windows.ModalScripts["frmAnalyse"] = [] {
            Fire(frmAnalyse.tmrStopMatrix);
            frmAnalyse.sscAnalyse.Click();
            frmAnalyse.sscAnalyse.Click();
        };
        MDIProject.mnuAnalyse.Click();
        ASSERT_EQ(Analysed, 1);
        Windows.Messages.clear();
    }

    // Opens the selection and does that in it.
    void InSelection(ScriptedPlatform& System, const std::function<void()>& Script)
    {
        System.ModalScripts["frmPrint"] = [Script] {
            Fire(frmPrint.tmrCheck);
            Script();
        };
        MDIProject.mnuPrint.Click();
    }
    void InSelection(const std::function<void()>& Script) { InSelection(Windows, Script); }

    static void TickAllAndPrint()
    {
        for (const PrintSection& Each : PrintSections())
            if (Each.Box.Enabled) Each.Box.Value = true;
        frmPrint.sscPrint.Click();
    }

    static std::string PageNumber(const PrintedPage& Page)
    {
        std::string Before;
        for (const DisplayItem& Each : Page.Print.Items)
            if (const auto* Text = std::get_if<TextItem>(&Each)) {
                if (Before == "Page ") return Text->Text;
                Before = Text->Text;
            }
        return "none";
    }
};

TEST_F(PrintEventsTest, WhatStandsCanBeTickedOnceTheTimerHasRun)
{
    for (const bool Pumping : {false, true})
        for (const bool Results : {false, true}) {
            const ProjectFields Record = Pumping ? PumpCurveRecord() : GravityRecord();
            if (Results)
                Analyse(Record);
            else
                Open(Record);
            InSelection([&] {
                EXPECT_FALSE(frmPrint.tmrCheck.Enabled || frmLCC.Visible || frmResults.Visible);
                int Index = 0;
                for (const PrintSection& Each : PrintSections()) {
                    const bool Stand = &Each.Box == &frmPrint.chkEnergy ? Pumping : Index < 4 || Results;
                    EXPECT_EQ(Each.Box.Enabled, Stand) << Each.Name;
                    ++Index;
                }
                frmPrint.chkIRR.MouseMove();
                EXPECT_EQ(MDIProject.StatusText.Caption.Get(), "Select the components to print");
                frmPrint.sscCancel.Click();
            });
            EXPECT_FALSE(frmPrint.IsLoaded());
            EXPECT_TRUE(frmLCC.Visible);
        }
}

TEST_F(PrintEventsTest, NothingOrTheIncomeGraphAloneIsNoChoice)
{
    Analyse(GravityRecord());
    InSelection([this] {
        for (const bool Income : {false, true}) {
            frmPrint.chkIncome.Value = Income;
            frmPrint.sscPrint1.Click();
            EXPECT_EQ(LastMessage(), "Select what to print !");
            EXPECT_EQ(Windows.Messages.back().Title, "Print Error !");
            EXPECT_TRUE(frmPrint.IsLoaded() && frmPrint.Enabled);
        }
        frmPrint.chkCost.Value = true;
        Windows.Prints = {PrintChoice{}};
        frmPrint.sscPrint.Click();
    });
    ASSERT_EQ(Windows.Pages.size(), 2U);
    EXPECT_EQ(Windows.Pages[0].Section, "Cost analysis");
    EXPECT_EQ(Windows.Pages[1].Section, "Income and expenditure graph");
    EXPECT_EQ(Windows.PrintRuns, 1);
}

TEST_F(PrintEventsTest, CancelIsTheFailureOfTheFirstSection)
{
    Analyse(GravityRecord());
    InSelection([] {
        frmPrint.chkRates.Value = true;
        frmPrint.sscSetup.Click(); // stays, chosen or not
        EXPECT_TRUE(frmPrint.IsLoaded());
        frmPrint.sscPrint.Click();
        EXPECT_FALSE(frmPrint.IsLoaded());
    });
    ASSERT_EQ(Windows.PrintDialogs.size(), 2U);
    EXPECT_TRUE(Windows.PrintDialogs[0].Setup && !Windows.PrintDialogs[1].Setup);
    EXPECT_EQ(Windows.Messages.size(), 1U);
    EXPECT_EQ(LastMessage(), "Could not print the General Data ! Check the input data.");
    EXPECT_TRUE(Windows.Messages.back().Detail.empty());
    EXPECT_TRUE(frmLCC.Visible && Windows.Pages.empty() && Windows.PrintRuns == 0);
}

TEST_F(PrintEventsTest, CopiesRepeatTheWholeRunFromItsFirstPageOn)
{
    Analyse(PumpCurveRecord());
    Windows.Prints = {PrintChoice{2}};
    InSelection(TickAllAndPrint);
    const std::size_t Count = Windows.Pages.size() / 2;
    ASSERT_GE(Count, 12U);
    std::string Last;
    std::size_t Section = 0;
    for (std::size_t Index = 0; Index < Count; ++Index) {
        EXPECT_EQ(Windows.Pages[Index], Windows.Pages[Count + Index]) << Index;
        EXPECT_EQ(PageNumber(Windows.Pages[Index]), std::to_string(Index + 1));
        if (Windows.Pages[Index].Section == Last) continue;
        Last = Windows.Pages[Index].Section;
        EXPECT_EQ(Last, PrintSections()[Section++].Title);
    }
    EXPECT_EQ(Section, 12U);
    EXPECT_TRUE(Windows.Messages.empty() && Windows.PrintRuns == 1 && frmLCC.Visible);
    EXPECT_FALSE(frmIRRView.IsLoaded());
}

// At every page of the run. The printer that has failed works again in the next run, from a fresh page.
TEST_F(PrintEventsTest, AFailingPrinterEndsTheRunAtItsSection)
{
    Analyse(PumpCurveRecord());
    Windows.Prints = {PrintChoice{}};
    InSelection(TickAllAndPrint);
    const std::vector<PrintedPage> Whole = std::exchange(Windows.Pages, {});
    for (std::size_t Printed = 0; Printed < Whole.size(); ++Printed) {
        Windows.Pages.clear();
        Windows.PrintRuns = 0;
        Windows.Prints = {PrintChoice{}};
        Windows.PagesUntilPrinterFails = Printed;
        PlotYear = 3;
        InSelection(TickAllAndPrint);
        const auto Failing =
            std::find_if(PrintSections().begin(), PrintSections().end(),
                         [&](const PrintSection& Each) { return Each.Title == Whole[Printed].Section; });
        EXPECT_EQ(LastMessage(), Failing->Failure);
        EXPECT_EQ(Windows.Messages.back().Detail, "The printer is out of paper.");
        EXPECT_TRUE(std::equal(Windows.Pages.begin(), Windows.Pages.end(), Whole.begin()));
        EXPECT_EQ(Windows.Pages.size(), Printed);
        EXPECT_EQ(Windows.PrintRuns, 1);
        EXPECT_TRUE(PageNo == 0 && PlotYear == 3 && frmLCC.Visible &&
                    Windows.Pointer == PointerShape::Default);
        EXPECT_FALSE(frmPrint.IsLoaded() || frmIRRView.IsLoaded());
    }
}

TEST_F(PrintEventsTest, AFileThatCantBeWrittenIsToldOnceWithItsReason)
{
    Open(GravityRecord());
    FullDisk Disk;
    InstallPlatform(&Disk);
    Disk.Prints = {PrintChoice{}};
    InSelection(Disk, TickAllAndPrint);
    ASSERT_EQ(Disk.Messages.size(), 1U);
    EXPECT_EQ(Disk.Messages[0].Text, "Could not print the Rates & Sales Data ! Check the input data.");
    EXPECT_EQ(Disk.Messages[0].Detail, "The disk is full.");
    EXPECT_TRUE(Disk.Tries == 1 && frmLCC.Visible);
    InstallPlatform(&Windows);
}

TEST_F(PrintEventsTest, TheYearIsAskedForWhenTheHydraulicReportIsTicked)
{
    Analyse(GravityRecord());
    Windows.ModalScripts["frmSelectYear"] = [] {
        EXPECT_EQ(frmSelectYear.comYear.List.Get().size(), static_cast<std::size_t>(wLife));
        EXPECT_EQ(frmSelectYear.comYear.Text(), "Year 2003");
        frmSelectYear.comYear.ListIndex = 4;
        frmSelectYear.sscOK.Click();
    };
    DisplayList Drawn;
    InSelection([&] {
        frmPrint.chkTextHydraulic.Value = true;
        EXPECT_EQ(PrintYear, 5);
        Windows.ModalScreens.clear();
        frmPrint.chkTextHydraulic.Value = false;
        EXPECT_EQ(PrintYear, 1);
        EXPECT_TRUE(Windows.ModalScreens.empty());
        frmPrint.chkTextHydraulic.Value = true;
        frmPrint.chkHydraulic.Value = true;
        Windows.Prints = {PrintChoice{}};
        frmPrint.sscPrint.Click();
    });
    EXPECT_EQ(PlotYear, 1);
    EXPECT_EQ(HydraulicYearDrawn, 5);
    EXPECT_EQ(Windows.Pages.back().Drawings[0].Drawn, frmResults.picHydraulic.Image());

    frmSelectYear1.LoadHidden();
    frmSelectYear1.comYear.ListIndex = 2;
    frmSelectYear1.sscOK.Click();
    EXPECT_TRUE(PrintGraphYear == 3 && PrintYear == 5);
}

// Each in two copies, cancelled, and on a printer that fails: the told page numbers, and one message for all.
TEST_F(PrintEventsTest, AButtonPrintsItsGraphByItself)
{
    Analyse(PumpCurveRecord());
    frmResults.sscDutypoint.Click();
    frmResults.sscIRR.Click();
    frmIRRView.hsbBegin.Value = 2000; // the graph follows with its print
    ViewPumpCurve();
    for (ProfileViewer* Each : std::initializer_list<ProfileViewer*>{&frmView, &frmViewRoughness}) {
        Each->LoadHidden();
        FillDistances(Each->comBegin, Each->comEnd);
    }
    const std::vector<std::string> FirstPages = {"2", "1", "2", "2", "1", "1", "1"};
    std::size_t Index = 0;
    for (const DirectPrint& Each : DirectPrints()) {
        SCOPED_TRACE(Each.Title);
        Windows.Messages.clear();
        Windows.Pages.clear();
        Windows.PagesUntilPrinterFails.reset();
        Windows.Prints = {PrintChoice{2}};
        Each.Button.Click();
        const std::size_t Count = Windows.Pages.size() / 2;
        ASSERT_GE(Count, 1U);
        EXPECT_TRUE(Windows.Messages.empty());
        EXPECT_EQ(PageNumber(Windows.Pages[0]), FirstPages[Index++]);
        EXPECT_EQ(Windows.Pages[0], Windows.Pages[Count]);
        EXPECT_EQ(Windows.Pages[0].Section, Each.Title);
        EXPECT_EQ(PageNo, 0);

        for (const bool Cancelled : {true, false}) {
            Windows.Prints = {Cancelled ? std::nullopt : std::optional(PrintChoice{})};
            Windows.PagesUntilPrinterFails = Windows.Pages.size();
            Each.Button.Click();
            EXPECT_EQ(LastMessage(), "You cancelled the print box !");
            EXPECT_EQ(Windows.Messages.back().Detail.empty(), Cancelled);
            EXPECT_EQ(Windows.Pages.size(), 2 * Count);
            EXPECT_EQ(PageNo, 0);
        }
    }
    EXPECT_EQ(Windows.Pages.back().Drawings[0].Drawn, frmIRRView.picIRR.Image());
    EXPECT_EQ(Index, FirstPages.size());
}

} // namespace
} // namespace velorix
