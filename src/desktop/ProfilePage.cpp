// The page of the pipeline profile: unit selectors, table of the nodes, lining and roughness.
#include "desktop/FormRows.h"
#include "desktop/GridView.h"
#include "desktop/Icons.h"
#include "desktop/InputLayout.h"
#include "desktop/Views.h"
#include "screens/Lcc.h"
#include "screens/MainWindow.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyledItemDelegate>
#include <QToolButton>

#include <array>

namespace velorix {
namespace {

constexpr int Digits = 12;            // of lengths
constexpr int LeastTableHeight = 150; // a heading and some nodes
constexpr int RowFromDigits = 150;    // table and cards stand side by side where so many digits fit

QWidget* UnitSelector(const QString& Name, ComboBox& Record)
{
    QLabel* const Caption = Text(Name);
    QWidget* const Selector = View(Record);
    TieCaption(Caption, Selector);
    NameField(Selector, Name + ", units");
    return InRow({Caption, Selector});
}

QWidget* UnitStrip()
{
    return InRow({UnitSelector("Elevation", frmLCC.comElevationUnits),
                  UnitSelector("Length", frmLCC.comLengthUnits),
                  UnitSelector("Diameter", frmLCC.comDiameterUnits),
                  UnitSelector("Wall thickness", frmLCC.comWallThicknessUnits), nullptr});
}

// Draws each component's symbol beside its name in the opened list.
class ComponentEntries : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* Entry, const QModelIndex& Index) const override
    {
        QStyledItemDelegate::initStyleOption(Entry, Index);
        if (Index.row() >= static_cast<int>(Symbols.size())) return;
        Entry->icon = DrawnIcon(Symbols.at(static_cast<std::size_t>(Index.row())));
        Entry->features |= QStyleOptionViewItem::HasDecoration;
        Entry->decorationSize = QSize(SymbolSize, SymbolSize);
    }

private:
    static constexpr int SymbolSize = 20;
    static constexpr std::array<const char*, 10> Symbols = {
        "node",      "reservoir", "pump-station", "isolating-valve", "non-return-valve",
        "air-valve", "bend-90",   "bend-45",      "bend-22",         "t-junction"};
};

// The list is as wide as its cell, its entries with their symbols may need more.
void DrawSymbols(QComboBox& List)
{
    constexpr int WidestEntry = 180;
    List.setItemDelegate(new ComponentEntries(&List));
    List.view()->setMinimumWidth(WidestEntry);
}

QWidget* TableArea()
{
    GridView* const Table = View(frmLCC.msgProfile, frmLCC.txtCell, &frmLCC.comNode);
    PopUpOver(*Table, MDIProject.mnuFGridRows,
              {&MDIProject.mnuFGridAddRow, &MDIProject.mnuFGridInsRow, &MDIProject.mnuFGridDelRow,
               &MDIProject.mnuFGridExtrRow});
    Table->setMinimumHeight(LeastTableHeight);
    NameField(Table, "Pipeline profile");
    DrawSymbols(*Table->ListView());

    QWidget* const Area =
        InColumn({UnitStrip(), Table,
                  InRow({View(frmLCC.sscAdd), View(frmLCC.sscDelete), nullptr, View(frmLCC.sscLaying),
                         View(frmLCC.sscViewProfile), ToolView(frmLCC.sscHelp1, "help")})});
    static_cast<QBoxLayout*>(Area->layout())->setStretchFactor(Table, 1);
    return Area;
}

QWidget* LiningCard()
{
    QGroupBox* const Card = View(frmLCC.fraReservoir);
    FormRows Rows(Card);
    Rows.AddWide(View(frmLCC.optCopon));
    Rows.AddWide(View(frmLCC.optMortar));
    Rows.Add(View(frmLCC.Label51), DigitsWide(NumberView(frmLCC.txtLiningThickness), Digits),
             View(frmLCC.comLiningThicknessUnits));
    Rows.Close();
    return Card;
}

QWidget* RoughnessCard()
{
    auto* const Card = new QGroupBox("Absolute roughness");
    FormRows Rows(Card);
    Rows.Add("New pipe (Ks)", DigitsWide(NumberView(frmLCC.txtKsNew), Digits), View(frmLCC.comKsNewUnits));
    Rows.Add("Old pipe (Ks)", DigitsWide(NumberView(frmLCC.txtKsOld), Digits), View(frmLCC.comKsOldUnits));
    Rows.Add("Reached after", DigitsWide(NumberView(frmLCC.txtKsOldYears), Digits), Text("years"));
    Rows.Close();
    return Card;
}

// The cards under the table; beside it, at the top, where the window is wide.
QWidget* Content()
{
    auto* const Box = new TurningBox(RowFromDigits);
    auto* const Cards = new TurningBox(*Box);
    Cards->Add(LiningCard());
    Cards->Add(RoughnessCard());
    Box->Add(TableArea(), 1);
    Box->Add(Cards, 0, Qt::AlignTop);
    return Box;
}

} // namespace

QWidget* ProfilePage()
{
    QWidget* const Profile = Content();
    QWidget* const Pane = LayingPane();
    StandInFor(Pane, Profile, Pane->findChild<GridView*>());
    return InColumn({Profile, Pane});
}

} // namespace velorix
