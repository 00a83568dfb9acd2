// The grid as a table of accessible cells.
#include "desktop/GridAccess.h"

#include "desktop/GridView.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include <map>

namespace velorix {
namespace {

// Assistive tools may ask for any place; outside the table there is no text.
QString TextAt(const Grid& Table, int Row, int Col)
{
    if (Row < 0 || Row >= Table.Rows() || Col < 0 || Col >= Table.Cols()) return {};
    return QString::fromStdString(Table.Text(Row, Col)).trimmed();
}

// What a cell is called: the heading of its column and that of its row.
QString NameAt(const Grid& Table, int Row, int Col)
{
    QStringList Parts;
    if (Row >= Table.FixedRows && Table.FixedRows > 0) Parts += TextAt(Table, Table.FixedRows - 1, Col);
    if (Col >= Table.FixedCols && Table.FixedCols > 0) Parts += TextAt(Table, Row, Table.FixedCols - 1);
    Parts += TextAt(Table, Row, Col);
    Parts.removeAll(QString());
    return Parts.join(", ");
}

class CellAccess : public QAccessibleInterface, public QAccessibleTableCellInterface {
public:
    CellAccess(GridView* Shown, int CellRow, int CellCol)
        : View(Shown)
        , Row(CellRow)
        , Col(CellCol)
    {
    }

    bool isValid() const override { return View && Row < Table().Rows(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return parent() ? parent()->window() : nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(View); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void setText(QAccessible::Text, const QString&) override {}

    QString text(QAccessible::Text Wanted) const override
    {
        if (!isValid()) return {};
        if (Wanted == QAccessible::Name) return NameAt(Table(), Row, Col);
        return Wanted == QAccessible::Value ? TextAt(Table(), Row, Col) : QString();
    }

    QRect rect() const override
    {
        if (!isValid()) return {};
        const QRect Place = View->CellRect(Row, Col);
        return {View->viewport()->mapToGlobal(Place.topLeft()), Place.size()};
    }

    QAccessible::Role role() const override
    {
        if (!isValid() || !IsFixedCell(Table(), Row, Col)) return QAccessible::Cell;
        return Row < Table().FixedRows ? QAccessible::ColumnHeader : QAccessible::RowHeader;
    }

    QAccessible::State state() const override
    {
        QAccessible::State Now;
        if (!isValid()) return Now;
        Now.focusable = true;
        Now.focused = isSelected() && View->hasFocus();
        Now.selectable = true;
        Now.selected = isSelected();
        Now.disabled = !View->isEnabled();
        return Now;
    }

    void* interface_cast(QAccessible::InterfaceType Type) override
    {
        return Type == QAccessible::TableCellInterface ? static_cast<QAccessibleTableCellInterface*>(this)
                                                       : nullptr;
    }

    bool isSelected() const override { return isValid() && Table().Row() == Row && Table().Col() == Col; }
    QList<QAccessibleInterface*> columnHeaderCells() const override { return Headers(Row > 0, 0, Col); }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return Headers(Col > 0, Row, 0); }
    int columnIndex() const override { return Col; }
    int rowIndex() const override { return Row; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

private:
    const Grid& Table() const { return View->Table(); }
    QList<QAccessibleInterface*> Headers(bool Wanted, int HeaderRow, int HeaderCol) const;

    const QPointer<GridView> View;
    const int Row;
    const int Col;
};

class GridAccess : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit GridAccess(GridView* Shown)
        : QAccessibleWidget(Shown, QAccessible::Table)
        , View(*Shown)
    {
    }
    ~GridAccess() override { Forget(); }
    GridAccess(const GridAccess&) = delete;
    GridAccess& operator=(const GridAccess&) = delete;

    void Forget()
    {
        for (const auto& [Index, Id] : Known) QAccessible::deleteAccessibleInterface(Id);
        Known.clear();
    }

    int childCount() const override { return Table().Rows() * Table().Cols(); }

    QAccessibleInterface* child(int Index) const override
    {
        if (Index < 0 || Index >= childCount()) return nullptr;
        if (const auto Found = Known.find(Index); Found != Known.end())
            return QAccessible::accessibleInterface(Found->second);
        auto* const Cell = new CellAccess(&View, Index / Table().Cols(), Index % Table().Cols());
        Known[Index] = QAccessible::registerAccessibleInterface(Cell);
        return Cell;
    }

    int indexOfChild(const QAccessibleInterface* Child) const override
    {
        const auto* const Cell = dynamic_cast<const CellAccess*>(Child);
        return Cell ? Cell->rowIndex() * Table().Cols() + Cell->columnIndex() : -1;
    }

    QAccessibleInterface* childAt(int X, int Y) const override
    {
        const GridView::Place Cell = View.CellAt(View.viewport()->mapFromGlobal(QPoint(X, Y)));
        return Cell.Row < Table().Rows() && Cell.Col < Table().Cols() ? cellAt(Cell.Row, Cell.Col) : nullptr;
    }

    QAccessibleInterface* focusChild() const override { return cellAt(Table().Row(), Table().Col()); }

    void* interface_cast(QAccessible::InterfaceType Type) override
    {
        return Type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(Type);
    }

    QAccessibleInterface* cellAt(int Row, int Col) const override
    {
        return child(Row * Table().Cols() + Col);
    }
    int rowCount() const override { return Table().Rows(); }
    int columnCount() const override { return Table().Cols(); }
    QString columnDescription(int Col) const override
    {
        return Table().Rows() > 0 ? TextAt(Table(), 0, Col) : QString();
    }
    QString rowDescription(int Row) const override { return TextAt(Table(), Row, 0); }
    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }

    // The current cell alone counts as selected, and a tool can't select whole rows and columns.
    int selectedCellCount() const override { return focusChild() ? 1 : 0; }
    QList<QAccessibleInterface*> selectedCells() const override
    {
        QList<QAccessibleInterface*> Cells = {focusChild()};
        Cells.removeAll(nullptr);
        return Cells;
    }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override { Forget(); }

private:
    const Grid& Table() const { return View.Table(); }

    GridView& View;
    mutable std::map<int, QAccessible::Id> Known;
};

QList<QAccessibleInterface*> CellAccess::Headers(bool Wanted, int HeaderRow, int HeaderCol) const
{
    QAccessibleInterface* const Owner = Wanted ? parent() : nullptr;
    if (!Owner || !Owner->tableInterface()) return {};
    return {Owner->tableInterface()->cellAt(HeaderRow, HeaderCol)};
}

QAccessibleInterface* MakeGridAccess(const QString&, QObject* Object)
{
    auto* const View = dynamic_cast<GridView*>(Object);
    return View ? new GridAccess(View) : nullptr;
}

} // namespace

void ServeGridAccess()
{
    QAccessible::installFactory(MakeGridAccess); // takes each factory once
}

void AnnounceCell(GridView& View)
{
    if (!QAccessible::isActive()) return;
    QAccessibleEvent Moved(&View, QAccessible::Focus);
    Moved.setChild(View.Table().Row() * View.Table().Cols() + View.Table().Col());
    QAccessible::updateAccessibility(&Moved);
}

void AnnounceRows(GridView& View)
{
    if (!QAccessible::isActive()) return;
    QAccessibleTableModelChangeEvent Changed(&View, QAccessibleTableModelChangeEvent::ModelReset);
    QAccessible::updateAccessibility(&Changed);
}

} // namespace velorix
