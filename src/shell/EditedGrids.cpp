// The description of each grid that is edited.
#include "shell/EditedGrids.h"

#include "input/ProfileTable.h"
#include "model/Components.h"
#include "results/PlotState.h"
#include "screens/Lcc.h"
#include "screens/MainWindow.h"
#include "screens/RoughnessScreen.h"

#include <array>

namespace velorix {
namespace {

constexpr std::size_t InputGridCount = 6;

std::vector<std::string> ComponentEntries()
{
    return {ComponentTable.begin(), ComponentTable.begin() + NamedComponents};
}

void AddRowAndGoThere()
{
    ChangeProfileRows(AddProfileRow);
    frmLCC.msgProfile.Select(frmLCC.msgProfile.Rows() - 1, 1);
}

} // namespace

std::span<const CellEditing> EditedGrids()
{
    static const std::array<CellEditing, InputGridCount + 1> Grids = {{
        {.Table = frmLCC.msgProfile,
         .Editor = frmLCC.txtCell,
         .EditableCols = {1, 2, 3, 4, 5, 6},
         .FilteredInGrid = {1, 2, 5, 6},
         .FilteredInEditor = {1, 2, 4},
         .List = &frmLCC.comNode,
         .ListCol = 7,
         .ListEntries = ComponentEntries,
         .EnterOnLastRow = AddRowAndGoThere,
         .Menu = &MDIProject.mnuFGridRows},
        {.Table = frmLCC.msgLaying,
         .Editor = frmLCC.txtLaying,
         .EditableCols = {1},
         .FilteredInGrid = {1},
         .FilteredInEditor = {1}},
        {.Table = frmLCC.msgOperational,
         .Editor = frmLCC.txtCellOperational,
         .EditableCols = {1, 2},
         .FilteredInGrid = {1, 2},
         .FilteredInEditor = {1, 2}},
        {.Table = frmLCC.msgOtherOperational,
         .Editor = frmLCC.txtCellOtherOperational,
         .EditableCols = {1},
         .FilteredInGrid = {1},
         .FilteredInEditor = {1}},
        {.Table = frmLCC.msgDemand,
         .Editor = frmLCC.txtDemand,
         .EditableCols = {1},
         .FilteredInGrid = {1},
         .FilteredInEditor = {1}},
        {.Table = frmLCC.msgPumpDemand,
         .Editor = frmLCC.txtPumpDemand,
         .EditableCols = {1},
         .FilteredInGrid = {1},
         .FilteredInEditor = {1}},
        {.Table = frmRoughness.msgRoughness,
         .Editor = frmRoughness.txtCell,
         .EditableCols = {1, 2, 3, 4, 5},
         .FilteredInGrid = {1, 2, 3, 4, 5},
         .FilteredInEditor = {1, 2, 3, 4, 5},
         .List = &frmRoughness.comAccLength,
         .ListRow = 1,
         .ListEntries = DistanceEntries},
    }};
    return Grids;
}

std::span<const CellEditing> InputGrids()
{
    return EditedGrids().first(InputGridCount);
}

} // namespace velorix
