// The steps of the import wizard, from the menu to the profile table.
#include "ShellTest.h"

#include "screens/ImportWizard.h"
#include "tools/ProfileImport.h"

namespace velorix {
namespace {

class ImportEventsTest : public ShellTest {
protected:
    static void Next() { frmImport.sscNext.Click(); }

    void Paste(const std::string& Text)
    {
        Windows.Clipboard = Text;
        frmImport.sscPaste.Click();
    }

    // The numbers of the frames that are visible, and the caption of the button that goes on.
    static std::string StepShown()
    {
        std::string Steps;
        for (const Frame* Each : {&frmImport.fraStep1, &frmImport.fraStep2, &frmImport.fraStep3})
            if (Each->Visible) Steps += Each->Caption.Get().back();
        return Steps + frmImport.sscNext.Caption.Get();
    }
};

TEST_F(ImportEventsTest, APastedProfileIsReviewedAndReplacesTheOldOne)
{
    Analysed = 1;
    Windows.ModalScripts["frmImport"] = [this] {
        EXPECT_FALSE(frmLCC.Visible || frmImport.sscPrevious.Visible);
        for (int Tick = 0; Tick < 20; ++Tick) Fire(frmImport.tmrWizard);
        EXPECT_EQ(frmImport.imgWizard.Picture.Get(), "w1"); // round once
        Next();
        EXPECT_FALSE(frmImport.tmrWizard.Enabled);
        Paste("10\t0\t600\r\n20\t5\t600\r\n30\t9\t600\r\n");
        int Ticks = 0;
        for (; frmImport.tmrPaste.Enabled && Ticks < 100; ++Ticks) Fire(frmImport.tmrPaste);
        EXPECT_EQ(std::to_string(Ticks) + frmImport.imgWizard2.Picture.Get(), "19w19");
        Next();
        EXPECT_EQ(StepShown(), "3&Finish");
        const Grid& Table = frmImport.msgFImport;
        EXPECT_EQ(Table.Rows(), 4);
        EXPECT_EQ(Table.Text(2, 0) + "," + Table.Text(2, 1) + "," + Table.Text(2, 7), ",20,Node");
        for (const char* Step : {"2&Next", "1&Next"}) {
            frmImport.sscPrevious.Click();
            EXPECT_EQ(StepShown(), Step);
        }
        for (int Step = 1; Step <= 3; ++Step) Next(); // needs no second paste
    };
    MDIProject.mnuImport.Click();
    EXPECT_TRUE(frmLCC.Visible && !frmImport.IsLoaded());
    EXPECT_EQ(frmLCC.msgProfile.Text(3, 2), "9");
    EXPECT_TRUE(Saved == 0 && Analysed == 0);
    EXPECT_TRUE(Windows.Messages.empty());
}

TEST_F(ImportEventsTest, ARefusedPasteIsToldAndGoesOnToTheReview)
{
    struct Case {
        const char* Text;
        const char* Message;
        bool PasteStands;
    };
    const Case Cases[] = {
        {"", "There was no data on the clipboard to paste.  Select the data and click on the paste button.",
         false},
        {"1\t\t\t\t\t\t7\r\n", "The table selection made in the spreadsheet has more than five columns",
         false},
        {"1\r\t\r\n",
         "Nothing could be pasted please check that your copied data is as specified in the help file.",
         true}};
    ImportRows = 1; // the earlier count stays in force
    for (const Case& Each : Cases) {
        Windows.ModalScripts["frmImport"] = [this, &Each] {
            Next();
            frmImport.lblPaste.Visible = true; // an earlier paste; it goes once the user has been told
            Paste(Each.Text);
            EXPECT_EQ(LastMessage(), *Each.Text ? "" : "There was nothing on the clipboard to paste");
            Next();
            EXPECT_EQ(LastMessage() + Windows.Messages.back().Title, Each.Message + std::string("Error !"));
            EXPECT_EQ(frmImport.lblPaste.Visible, Each.PasteStands);
            EXPECT_EQ(StepShown(), "3&Finish");
            EXPECT_TRUE(frmImport.lblAdvice.Visible);
            EXPECT_EQ(frmImport.msgFImport.Rows(), 2);
            frmImport.CloseByFrame();
        };
        MDIProject.mnuImport.Click();
        EXPECT_TRUE(frmLCC.Visible && Saved == 1);
        Windows.Messages.clear();
    }
}

} // namespace
} // namespace velorix
