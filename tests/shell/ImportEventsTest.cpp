// The steps of the import wizard, from the menu to the profile table.
#include "ShellTest.h"

#include "base/Failure.h"
#include "input/ProfileTable.h"
#include "screens/ImportWizard.h"
#include "tools/ProfileImport.h"

namespace velorix {
namespace {

class ImportEventsTest : public ShellTest {
protected:
    // Opens the wizard by its command, for what a user does in it.
    void InWizard(const std::function<void()>& Steps)
    {
        Windows.ModalScripts["frmImport"] = Steps;
        MDIProject.mnuImport.Click();
    }

    static int StepShown()
    {
        const Frame* const Steps[] = {&frmImport.fraStep1, &frmImport.fraStep2, &frmImport.fraStep3};
        int Shown = 0;
        for (int Step = 1; Step <= 3; ++Step)
            if (Steps[Step - 1]->Visible) Shown = Shown * 10 + Step;
        return Shown;
    }

    static void Next() { frmImport.sscNext.Click(); }

    void Paste(const std::string& Text)
    {
        Windows.Clipboard = Text;
        frmImport.sscPaste.Click();
    }
};

TEST_F(ImportEventsTest, APastedProfileIsReviewedAndReplacesTheOldOne)
{
    Analysed = 1;
    frmResults.LoadHidden();
    InWizard([this] {
        EXPECT_FALSE(frmLCC.Visible);
        EXPECT_EQ(StepShown(), 1);
        EXPECT_FALSE(frmImport.sscPrevious.Visible);
        Next();
        Paste("10\t0\t600\r\n20\t5\t600\r\n30\t9\t600\r\n");
        EXPECT_TRUE(frmImport.lblPaste.Visible);
        Next();
        EXPECT_EQ(StepShown(), 3);
        EXPECT_EQ(frmImport.sscNext.Caption.Get(), "&Finish");
        EXPECT_FALSE(frmImport.lblAdvice.Visible);
        const Grid& Table = frmImport.msgFImport;
        EXPECT_EQ(Table.Rows(), 4);
        EXPECT_EQ(Table.Text(0, 4), "Pipe wall thickness");
        EXPECT_EQ(Table.Text(2, 0) + "," + Table.Text(2, 1) + "," + Table.Text(2, 7), ",20,Node");
        for (const int Step : {2, 1}) {
            frmImport.sscPrevious.Click();
            EXPECT_EQ(StepShown(), Step);
            EXPECT_EQ(frmImport.sscNext.Caption.Get(), "&Next");
        }
        for (int Step = 1; Step <= 3; ++Step) Next(); // needs no second paste
    });
    EXPECT_FALSE(frmImport.IsLoaded());
    EXPECT_TRUE(frmLCC.Visible);
    EXPECT_EQ(frmLCC.msgProfile.Text(3, 2), "9");
    EXPECT_EQ(Saved, 0);
    EXPECT_EQ(Analysed, 0);
    EXPECT_FALSE(frmResults.IsLoaded());
    EXPECT_TRUE(Windows.Messages.empty());
}

// With what the review shows then. The earlier count stays in force.
TEST_F(ImportEventsTest, ARefusedPasteIsToldAndGoesOnToTheReview)
{
    const std::string Row = "1\t2\t3\t4\t5\t6";
    struct Case {
        std::string Text;
        const char* Message;
        bool PasteStands;
    };
    std::string TooMany;
    for (int Line = 0; Line < 101; ++Line) TooMany += Row + "\r\n";
    const Case Cases[] = {
        {"", "There was no data on the clipboard to paste.  Select the data and click on the paste button.",
         false},
        {Row + "\t7\r\n", "The table selection made in the spreadsheet has more than five columns", false},
        {TooMany,
         "Nothing could be pasted please check that your copied data is as specified in the help file.",
         true}};
    ImportRows = 1;
    for (const Case& Each : Cases)
        InWizard([&] {
            Next();
            Paste(Each.Text);
            if (Each.Text.empty()) {
                EXPECT_EQ(LastMessage(), "There was nothing on the clipboard to paste");
                EXPECT_EQ(Windows.Messages.back().Title, "Velorix: Error");
                EXPECT_EQ(Windows.Messages.back().Icon, MessageIcon::Question);
            }
            Next();
            EXPECT_EQ(LastMessage(), Each.Message);
            EXPECT_EQ(Windows.Messages.back().Title, "Error !");
            EXPECT_EQ(frmImport.lblPaste.Visible, Each.PasteStands);
            EXPECT_EQ(StepShown(), 3);
            EXPECT_TRUE(frmImport.lblAdvice.Visible);
            EXPECT_EQ(frmImport.msgFImport.Rows(), 2);
            frmImport.CloseByFrame();
        });
    EXPECT_TRUE(frmLCC.Visible);
    EXPECT_EQ(Saved, 1);
}

TEST_F(ImportEventsTest, TheAnimationsRunRoundAndOnce)
{
    InWizard([this] {
        std::string Seen;
        for (int Tick = 0; Tick < 20; ++Tick) {
            Fire(frmImport.tmrWizard);
            Seen += frmImport.imgWizard.Picture.Get();
        }
        EXPECT_EQ(Seen, "w1w2w3w4w5w6w7w8w9w10w11w12w13w14w15w16w17w18w19w1");
        Next();
        EXPECT_FALSE(frmImport.tmrWizard.Enabled);
        Paste("1");
        int Ticks = 0;
        for (; frmImport.tmrPaste.Enabled && Ticks < 100; ++Ticks) Fire(frmImport.tmrPaste);
        EXPECT_EQ(Ticks, 19);
        EXPECT_EQ(frmImport.imgWizard2.Picture.Get(), "w19");
    });
}

} // namespace
} // namespace velorix
