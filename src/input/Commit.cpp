// The steps of a commit in their order.
#include "input/Commit.h"

#include "input/CommitChecks.h"
#include "input/CommitFields.h"
#include "input/CostTables.h"
#include "input/Session.h"
#include "model/ProjectFile.h"
#include "model/WorkingSet.h"
#include "screens/MainWindow.h"

namespace velorix {

void CommitProject()
{
    Committing = 1;
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
