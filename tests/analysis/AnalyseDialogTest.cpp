// The analysis dialog.
#include "analysis/AnalyseDialog.h"

#include "AnalysisTest.h"

namespace velorix {
namespace {

class AnalyseDialogTest : public AnalysisTest {
protected:
    // Opens the dialog and waits its decoration out.
    static void OpenDialog()
    {
        frmAnalyse.LoadHidden();
        AnalyseDialogLoads();
        frmAnalyse.Visible = true;
        EndDecoration();
        EXPECT_FALSE(frmAnalyse.tmrMatrix.Enabled);
        EXPECT_FALSE(frmAnalyse.tmrStopMatrix.Enabled);
    }
};

// The supervision fee is read as it stands on the screen.
TEST_F(AnalyseDialogTest, RunsUntilAnAnalysisStandsAndThenShowsIt)
{
    Open(GravityRecord());
    OpenDialog();
    frmLCC.txtSupervision.Text = "";
    AnalysePressed();
    EXPECT_EQ(frmAnalyse.sscAnalyse.Caption.Get(), "&Continue");
    EXPECT_TRUE(frmAnalyse.sscAnalyse.Enabled);
    EXPECT_EQ(Windows.Pointer, PointerShape::Default);
    EXPECT_EQ(frmAnalyse.proBar.Value, 70);
    EXPECT_EQ(Analysed, 0);

    frmLCC.txtSupervision.Text = "0";
    AnalysePressed();
    EXPECT_EQ(Analysed, 1);
    EXPECT_FALSE(frmResults.Visible);
    EXPECT_EQ(frmResults.comEnd.Text(), "0.000"); // chainages of the plot before, there being none
    AnalysePressed();
    EXPECT_TRUE(frmResults.Visible);
    EXPECT_FALSE(frmAnalyse.IsLoaded());
    EXPECT_EQ(frmResults.comEnd.Text(), "6000.000");
}

TEST_F(AnalyseDialogTest, OpeningAndCancelDropEarlierResults)
{
    Analyse(GravityRecord());
    OpenDialog();
    EXPECT_EQ(Analysed, 0);
    EXPECT_FALSE(frmResults.IsLoaded());

    AnalysePressed();
    frmLCC.Visible = false;
    AnalyseCancelled();
    EXPECT_EQ(Analysed, 0);
    EXPECT_FALSE(frmAnalyse.IsLoaded());
    EXPECT_TRUE(frmLCC.Visible);
}

} // namespace
} // namespace velorix
