// The steps of a commit in their order.
#include "project/Commit.h"

#include "project/CommitChecks.h"
#include "project/CommitFields.h"
#include "project/CostTables.h"
#include "project/ProjectFile.h"
#include "project/Session.h"
#include "project/WorkingSet.h"
#include "screens/MainWindow.h"

namespace velorix {

void CommitProject()
{
    Committing = 1;
    PointedOut = nullptr;
    ReadOptions();
    if (!InputIsComplete()) return;
    ReadStaffGrid();
    ReadExpensesGrid();
    if (!ReadFields()) return;
    CopyWorkingSetToRecord();
    MDIProject.proProgressBar.Value = 70;
    Committing = 0;
    if (SaveAs == 1) return;

    WriteProjectFile(FileName, ProjectRecord, ShortFile::Fails);
    LoadProject();
}

} // namespace velorix
