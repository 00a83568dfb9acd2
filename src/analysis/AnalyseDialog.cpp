// Handlers of frmAnalyse.
#include "analysis/AnalyseDialog.h"

#include "analysis/AnalyseProject.h"
#include "platform/Platform.h"
#include "project/Session.h"
#include "results/CostTable.h"
#include "results/PlotState.h"
#include "screens/Analyse.h"
#include "screens/Lcc.h"
#include "screens/Results.h"

namespace velorix {
namespace {

// The hourglass for as long as it stands; the pointer comes back whatever happens.
class Busy {
public:
    Busy() { System().SetPointer(PointerShape::Hourglass); }
    ~Busy() { System().SetPointer(PointerShape::Default); }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
};

void ShowResults()
{
    FillCapitalCostTable();
    FillCombos();
    frmAnalyse.Visible = false;
    frmResults.Visible = true;
    frmAnalyse.Unload();
}

} // namespace

void AnalyseDialogLoads()
{
    frmAnalyse.tmrMatrix.Enabled = true;
    frmAnalyse.tmrStopMatrix.Enabled = true;
    if (Analysed == 1) {
        frmResults.Unload();
        Analysed = 0;
    }
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
        const Busy Pointer;
        frmAnalyse.proBar.Visible = true;
        frmAnalyse.lbl100.Visible = true;
        frmAnalyse.lbl0.Visible = true;
        frmAnalyse.sscAnalyse.Enabled = false;
        PlotYear = 1;
        AnalyseProject();
    }
    frmAnalyse.sscAnalyse.Caption = "&Continue";
    frmAnalyse.sscAnalyse.Enabled = true;
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
