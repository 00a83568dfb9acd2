// Handlers of frmDeleteRow.
#include "shell/DeleteRow.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "input/ProfileTable.h"
#include "platform/Platform.h"
#include "screens/Dialogs.h"
#include "screens/Lcc.h"
#include "shell/GridEditor.h"
#include "shell/Help.h"

namespace velorix {
namespace {

constexpr int RowHelp = 3060;

void Confirmed()
{
    try {
        ChangeProfileRows(DeleteProfileRow);
    } catch (const Failure&) {
        Warn("Could not delete the row.", "Error !");
    }
    frmDeleteRow.Unload();
}

} // namespace

void ConnectDeleteRow()
{
    frmDeleteRow.sscYes.Click = Confirmed;
    frmDeleteRow.sscNo.Click = [] { frmDeleteRow.Unload(); };
    HelpOn(frmDeleteRow.sscHelp, RowHelp);
}

void AskToDeleteRow()
{
    const Grid& Table = frmLCC.msgProfile;
    frmDeleteRow.lblNode.Caption = Table.Text(Table.Row(), 0);
    for (int Field = 0; Field <= frmDeleteRow.lblDelete.LastIndex; ++Field)
        frmDeleteRow.lblDelete[Field].Caption = Trim(Table.Text(Table.Row(), Field + 1));
    System().ShowModal(frmDeleteRow);
}

} // namespace velorix
