// The selection of what to print, its runs, and the print buttons, on a printer that answers from a list.
#include "ShellTest.h"
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

class PrintEventsTest : public ShellTest {
protected:
    // Opens the selection, does that in it, and looks at what is left.
    template <typename Action>
    void InSelection(Action Script)
    {
        Windows.ModalScripts["frmPrint"] = [Script] {
            EXPECT_FALSE(frmLCC.Visible || frmResults.Visible);
            Fire(frmPrint.tmrCheck);
            Script();
            EXPECT_FALSE(frmPrint.IsLoaded());
        };
        MDIProject.mnuPrint.Click();
        EXPECT_TRUE(frmLCC.Visible && PageNo == 0 && Windows.Pointer == PointerShape::Default);
        EXPECT_FALSE(frmIRRView.IsLoaded());
    }

    static void PrintAll()
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
            const ProjectFields& Record = Pumping ? PumpCurveRecord() : GravityRecord();
            Results ? Analyse(Record) : Open(Record);
            InSelection([&] {
                EXPECT_FALSE(frmPrint.tmrCheck.Enabled);
                for (int Index = 0; Index < SectionCount; ++Index)
                    EXPECT_EQ(PrintSections()[static_cast<std::size_t>(Index)].Box.Enabled,
                              Index == 2 ? Pumping : Index < 4 || Results)
                        << Index;
                frmPrint.sscCancel.Click();
            });
        }
}

// Nor is there one in nothing. A cancel is the failure of the first section, whatever is ticked.
TEST_F(PrintEventsTest, TheIncomeGraphAloneIsNoChoice)
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
        frmPrint.sscSetup.Click(); // stays, chosen or not
        frmPrint.chkCost.Value = true;
        frmPrint.sscPrint.Click();
    });
    ASSERT_EQ(Windows.PrintDialogs.size(), 2U);
    EXPECT_TRUE(Windows.PrintDialogs[0].Setup && !Windows.PrintDialogs[1].Setup);
    EXPECT_EQ(LastMessage(), "Could not print the General Data ! Check the input data.");
    EXPECT_TRUE(Windows.Messages.back().Detail.empty() && Windows.Pages.empty() && Windows.PrintRuns == 0);
}

// At every page of a run, which goes well in two copies first. The next run begins with a fresh page.
TEST_F(PrintEventsTest, AFailingPrinterEndsTheRunAtItsSection)
{
    Analyse(PumpCurveRecord());
    Windows.Prints = {PrintChoice{2}};
    InSelection(PrintAll);
    EXPECT_TRUE(Windows.Messages.empty());
    const std::vector<PrintedPage> Whole = std::exchange(Windows.Pages, {});
    const std::size_t Count = Whole.size() / 2;
    ASSERT_TRUE(Count >= SectionCount && std::equal(&Whole[0], &Whole[Count], &Whole[Count]));
    auto Section = PrintSections().begin();
    for (std::size_t Printed = 0; Printed < Count; ++Printed) {
        if (Section->Title != Whole[Printed].Section) ++Section;
        EXPECT_EQ(Section->Title, Whole[Printed].Section);
        EXPECT_EQ(PageNumber(Whole[Printed]), std::to_string(Printed + 1));
        Windows.Pages.clear();
        Windows.PrintRuns = 0;
        Windows.Prints = {PrintChoice{}};
        Windows.PagesUntilPrinterFails = Printed;
        PlotYear = 3;
        InSelection(PrintAll);
        EXPECT_EQ(LastMessage(), Section->Failure);
        EXPECT_EQ(Windows.Messages.back().Detail, "The printer is out of paper.");
        EXPECT_TRUE(std::equal(Windows.Pages.begin(), Windows.Pages.end(), Whole.begin()));
        EXPECT_TRUE(Windows.Pages.size() == Printed && Windows.PrintRuns == 1 && PlotYear == 3);
    }
    Windows.PrintRunsFail = true; // a file that can't be written is told once, and not tried again
    for (const char* Reasons : {"The printer is out of paper.\nThe disk is full.", "The disk is full."}) {
        Windows.Messages.clear();
        Windows.Pages.clear();
        Windows.PrintRuns = 0;
        Windows.Prints = {PrintChoice{}};
        InSelection(PrintAll);
        ASSERT_TRUE(Windows.Messages.size() == 1 && Windows.PrintRuns == 1);
        EXPECT_EQ(LastMessage(), Section->Failure);
        EXPECT_EQ(Windows.Messages.back().Detail, Reasons);
        Windows.PagesUntilPrinterFails.reset();
    }
}

// However the option stands before; and in a year that the life has.
TEST_F(PrintEventsTest, AGraphThatCannotBeDrawnIsToldOnceAndTheYearIsOneOfTheProject)
{
    Open(GravityRecord());
    Flow[1] = 1e30;
    for (const bool Switches : {false, true}) {
        frmResults.ssoIncomeExpenditure.Value = Switches;
        Windows.Messages.clear();
        Windows.Prints = {PrintChoice{}};
        PrintYear = static_cast<std::int16_t>(wLife + 1);
        InSelection([] {
            frmPrint.chkDemand.Value = frmPrint.chkHydraulic.Value = true;
            frmPrint.sscPrint.Click();
        });
        ASSERT_EQ(Windows.Messages.size(), 1U);
        EXPECT_EQ(LastMessage(), "Could not show the demand pattern graph.");
        EXPECT_EQ(HydraulicYearDrawn, 1);
    }
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
    InSelection([&] {
        frmPrint.chkTextHydraulic.Value = true;
        EXPECT_EQ(PrintYear, 5);
        frmPrint.chkTextHydraulic.Value = false;
        EXPECT_EQ(PrintYear, 1);
        EXPECT_EQ(std::count(Windows.ModalScreens.begin(), Windows.ModalScreens.end(), "frmSelectYear"), 1);
        frmPrint.chkTextHydraulic.Value = frmPrint.chkHydraulic.Value = true;
        Windows.Prints = {PrintChoice{}};
        frmPrint.sscPrint.Click();
    });
    EXPECT_TRUE(PlotYear == 1 && HydraulicYearDrawn == 5);
    frmSelectYear1.LoadHidden();
    frmSelectYear1.comYear.ListIndex = 2;
    frmSelectYear1.sscOK.Click();
    EXPECT_TRUE(PrintGraphYear == 3 && PrintYear == 5);
}

// In two copies, cancelled, and on a printer that fails. Those that begin at page 2 stand upright.
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
    std::string FirstPages;
    for (const DirectPrint& Each : DirectPrints()) {
        SCOPED_TRACE(Each.Title);
        Windows.Messages.clear();
        Windows.Pages.clear();
        Windows.PagesUntilPrinterFails.reset();
        Windows.Prints = {PrintChoice{2}, std::nullopt, PrintChoice{}};
        Each.Button.Click();
        const std::size_t Count = Windows.Pages.size() / 2;
        ASSERT_TRUE(Count >= 1 && Windows.Messages.empty() && Windows.Pages[0] == Windows.Pages[Count]);
        EXPECT_TRUE(Windows.Pages[Count].BeginsSection); // each copy
        FirstPages += PageNumber(Windows.Pages[0]);
        EXPECT_EQ(Windows.Pages[0].Print.Width < Windows.Pages[0].Print.Height, FirstPages.back() == '2');
        for (const bool Cancelled : {true, false}) {
            Windows.PagesUntilPrinterFails = 2 * Count;
            Each.Button.Click();
            EXPECT_EQ(LastMessage(), "You cancelled the print box !");
            EXPECT_EQ(Windows.Messages.back().Detail.empty(), Cancelled);
            EXPECT_TRUE(Windows.Pages.size() == 2 * Count && PageNo == 0);
        }
    }
    EXPECT_EQ(FirstPages, "2122111"); // hydraulic, system, duty, pump, two profiles, rates
    EXPECT_EQ(Windows.Pages.back().Drawings[0].Drawn, frmIRRView.picIRR.Image());
}

} // namespace
} // namespace velorix
