// A full grid on the screen, with an editor and a list over it, and a user's hands on it.
#pragma once

#include "desktop/DesktopTest.h"
#include "desktop/GridView.h"
#include "desktop/Views.h"
#include "platform/Keys.h"

namespace velorix {

class GridViewTest : public DesktopTest {
protected:
    GridViewTest()
    {
        Editor.Visible = false;
        List.Visible = false;
        Table.FixedCols = 1;
        Table.HeaderHeight = 500;
        Table.DataRowHeight = 450;
        Table.ColWidth.assign(8, 1200);
        for (int Row = 0; Row < Table.Rows(); ++Row)
            for (int Col = 0; Col < Table.Cols(); ++Col)
                Table.SetText(Row, Col, std::to_string(Row) + "." + std::to_string(Col));
        Table.Select(1, 1);
        Shown = Put(View(Table, Editor, &List));
    }

    void SetUp() override
    {
        ShowHost();
        Shown->setFocus();
    }

    void TearDown() override
    {
        Table.CellView = {};
        DesktopTest::TearDown();
    }

    void Click(int Row, int Col, Qt::MouseButton Button = Qt::LeftButton, Qt::KeyboardModifiers Held = {})
    {
        QTest::mouseClick(Shown->viewport(), Button, Held, Shown->CellRect(Row, Col).center());
    }

    void PressKeys(const std::vector<Qt::Key>& Keys, Qt::KeyboardModifiers Held = {})
    {
        for (Qt::Key Each : Keys) QTest::keyClick(Shown, Each, Held);
    }

    void ClickHeading(int Col, Qt::MouseButton Button = Qt::LeftButton)
    {
        QHeaderView* const Header = Shown->horizontalHeader();
        const int Section = Col - 1;
        const int Middle = Header->sectionViewportPosition(Section) + Header->sectionSize(Section) / 2;
        QTest::mouseClick(Header->viewport(), Button, {}, QPoint(Middle, Header->height() / 2));
    }

    // What the shell does when a cell is opened.
    void OpenEditor()
    {
        Editor.Text = Table.Text(Table.Row(), Table.Col());
        Editor.SelStart = static_cast<int>(Editor.Text.Get().size());
        Editor.Visible = true;
        System().SetFocus(Editor);
    }

    std::string Place() const { return std::to_string(Table.Row()) + "," + std::to_string(Table.Col()); }
    QRect CurrentRect() { return Shown->CellRect(Table.Row(), Table.Col()); }
    bool InSight(const QRect& Cell) const { return Shown->viewport()->rect().contains(Cell); }

    Grid Table{501, 8, "Enter the profile"};
    TextBox Editor;
    ComboBox List{{"Node", "Reservoir"}};
    GridView* Shown = nullptr;
};

} // namespace velorix
