// Filling, reading and the row operations of the profile table.
#include "input/ProfileTable.h"

#include "base/NumberText.h"
#include "base/Text.h"
#include "input/GridReading.h"
#include "model/Components.h"
#include "model/WorkingSet.h"
#include "platform/Platform.h"
#include "screens/Lcc.h"

#include <algorithm>

namespace velorix {
namespace {

constexpr int FirstDataCol = 1;
constexpr int LastNumberCol = 6;
constexpr int SecondaryLossCol = 6;
constexpr int ComponentCol = 7;

constexpr std::array<const char*, 8> Headings = {"Node nr",         "Elevation",      "Accumulated length",
                                                 "Pipe diameter",   "Wall thickness", "Pipe cost/metre",
                                                 "Secondary loss ", "Description"};

void CopyCells(int From, int To, int FirstCol, int LastCol)
{
    for (int Col = FirstCol; Col <= LastCol; ++Col)
        frmLCC.msgProfile.SetText(To, Col, frmLCC.msgProfile.Text(From, Col));
}

void ClearCells(int Row)
{
    for (int Col = FirstDataCol; Col <= ComponentCol; ++Col) frmLCC.msgProfile.SetText(Row, Col, "");
}

bool HoldsData(int Row)
{
    for (int Col = FirstDataCol; Col <= ComponentCol; ++Col)
        if (!frmLCC.msgProfile.Text(Row, Col).empty()) return true;
    return false;
}

bool MayDelete(int Row)
{
    if (frmLCC.msgProfile.Rows() - 1 <= LeastNodes) return false;
    return !HoldsData(Row) ||
           Confirm("There is data in row" + std::to_string(Row) + " ! Do you want to delete the row anyway?",
                   "Velorix : Delete row!");
}

int AppendRow()
{
    Grid& Table = frmLCC.msgProfile;
    Table.SetRows(Table.Rows() + 1);
    const int Last = Table.Rows() - 1;
    Table.SetText(Last, 0, std::to_string(Last));
    return Last;
}

void RowsChanged()
{
    frmLCC.txtCell.Visible = false;
    ReadProfileGrid();
}

} // namespace

Array1<Single, 500>& ProfileColumn(int Col)
{
    switch (Col) {
    case 1: return wElevation;
    case 2: return wAccLength;
    case 3: return wDiameter;
    case 4: return wWallThickness;
    case 5: return wPipeCost;
    default: return wSecondaryLoss;
    }
}

void FillProfileGrid()
{
    NodeCount = CountNodes();
    Grid& Table = frmLCC.msgProfile;
    Table.SetRows(NodeCount + 1);
    for (int Col = 0; Col <= ComponentCol; ++Col)
        Table.SetText(0, Col, Headings.at(static_cast<std::size_t>(Col)));
    for (int Row = 1; Row <= NodeCount; ++Row) {
        Table.SetText(Row, 0, std::to_string(Row));
        for (int Col = FirstDataCol; Col <= LastNumberCol; ++Col)
            Table.SetText(Row, Col, GeneralText(ProfileColumn(Col)[Row]));
        Table.SetText(Row, ComponentCol, ComponentText(wNodeDesc[Row]));
    }
    Table.Select(1, 1);
}

void ReadProfileGrid()
{
    for (int Row = 1; Row <= wNodeNr.LastIndex; ++Row) wNodeNr[Row] = static_cast<std::int16_t>(Row);
    wElevation.Fill(UnusedNode);
    wAccLength.Fill(UnusedNode);
    for (int Col = 3; Col <= LastNumberCol; ++Col) ProfileColumn(Col).Fill(0.0);
    wNodeDesc.Fill(0);

    Grid& Table = frmLCC.msgProfile;
    NodeCount = Table.Rows() - 1;
    const int Readable = std::min<int>(NodeCount, wNodeNr.LastIndex);
    for (int Row = 1; Row <= Readable; ++Row) {
        ReadCell(Table, Row, 0, wNodeNr[Row]);
        for (int Col = FirstDataCol; Col <= LastNumberCol; ++Col)
            ReadCell(Table, Row, Col, ProfileColumn(Col)[Row]);
        wNodeDesc[Row] = ComponentIndex(Table.Text(Row, ComponentCol));
    }
    Table.Select(1, 1);
}

// The source of the copied cells hangs on the row that was current, not on the row before the new one.
void AddProfileRow()
{
    Grid& Table = frmLCC.msgProfile;
    const int Before = Table.Row();
    const int New = AppendRow();
    Table.Select(New, Table.Col());
    if (New >= 2) {
        CopyCells(Before - 1, New, 3, SecondaryLossCol);
        Table.SetText(New, ComponentCol, "Node");
    } else {
        CopyCells(Before + 1, New, 3, SecondaryLossCol);
    }
    RowsChanged();
}

void InsertProfileRow()
{
    Grid& Table = frmLCC.msgProfile;
    const int New = Table.Row();
    const int Last = AppendRow();
    for (int Row = Last; Row > New; --Row) CopyCells(Row - 1, Row, FirstDataCol, ComponentCol);
    ClearCells(New);
    CopyCells(New > 1 ? New - 1 : New + 1, New, 3, 5);
    Table.SetText(New, SecondaryLossCol, "0");
    const std::string AtStart = IsPumping() ? "Pumpstation" : "Reservoir";
    Table.SetText(New, ComponentCol, New == 1 ? AtStart : "Node");
    RowsChanged();
}

void DeleteProfileRow()
{
    Grid& Table = frmLCC.msgProfile;
    const int Gone = Table.Row();
    if (!MayDelete(Gone)) return;
    for (int Row = Gone; Row < Table.Rows() - 1; ++Row) CopyCells(Row + 1, Row, FirstDataCol, ComponentCol);
    if (Gone == Table.Rows() - 1) Table.Select(Gone - 1, Table.Col());
    Table.SetRows(Table.Rows() - 1);
    RowsChanged();
}

void DeleteLastProfileRow()
{
    Grid& Table = frmLCC.msgProfile;
    const int Last = Table.Rows() - 1;
    if (!MayDelete(Last)) return;
    if (Table.Row() == Last) Table.Select(Last - 1, Table.Col());
    Table.SetRows(Last);
    RowsChanged();
}

} // namespace velorix
