// Handlers of frmAnalyse.
#include "analysis/AnalyseDialog.h"

#include "analysis/AnalyseProject.h"
#include "input/Session.h"
#include "platform/Platform.h"
#include "results/PlotState.h"
#include "screens/Analyse.h"
#include "screens/Lcc.h"
#include "screens/Results.h"

namespace velorix {
namespace {

// The state of the dialog while an analysis runs. Whatever the outcome, the button comes back as "Continue".
class Running {
public:
    Running()
    {
        System().SetPointer(PointerShape::Hourglass);
        for (Control* Each :
             std::initializer_list<Control*>{&frmAnalyse.proBar, &frmAnalyse.lbl100, &frmAnalyse.lbl0})
            Each->Visible = true;
        frmAnalyse.sscAnalyse.Enabled = false;
    }
    ~Running()
    {
        System().SetPointer(PointerShape::Default);
        if (!frmAnalyse.IsLoaded()) return;
        frmAnalyse.sscAnalyse.Caption = "&Continue";
        frmAnalyse.sscAnalyse.Enabled = true;
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
};

void ShowResults()
{
    RefreshResults();
    frmAnalyse.Visible = false;
    frmResults.Visible = true;
    frmAnalyse.Unload();
}

} // namespace

void AnalyseDialogLoads()
{
    frmAnalyse.sscAnalyse.ToolTip = frmAnalyse.AnalyseHint;
    frmAnalyse.tmrMatrix.Enabled = true;
    frmAnalyse.tmrStopMatrix.Enabled = true;
    if (frmResults.IsLoaded()) frmResults.Unload(); // after a failed analysis too
    Analysed = 0;
}

void EndDecoration()
{
    frmAnalyse.tmrMatrix.Enabled = false;
    frmAnalyse.tmrStopMatrix.Enabled = false;
    for (Control* Each : std::initializer_list<Control*>{
             &frmAnalyse.lblAnalyse, &frmAnalyse.proBar, &frmAnalyse.sscAnalyse, &frmAnalyse.sscCancel,
             &frmAnalyse.sscHelp, &frmAnalyse.lbl0, &frmAnalyse.lbl100})
        Each->Visible = true;
}

void AnalysePressed()
{
    if (Analysed == 1) return ShowResults();

    {
        const Running Dialog;
        PlotYear = 1;
        AnalyseProject(Tables::Filled);
    }
    if (Analysed == 1) frmAnalyse.sscAnalyse.ToolTip = frmAnalyse.ContinueHint;
    // A disabled button gives the focus away, and Enter must not press Cancel now.
    if (frmAnalyse.IsLoaded()) System().SetFocus(frmAnalyse.sscAnalyse);
}

void AnalyseCancelled()
{
    Analysed = 0;
    frmAnalyse.Unload();
    if (ProjectOpen != 1) return;
    frmLCC.Enabled = true;
    frmLCC.Visible = true;
}

} // namespace velorix
