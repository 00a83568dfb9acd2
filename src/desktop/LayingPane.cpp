// The pane of the pipe laying: its rates and conditions beside a drawing of the trench.
#include "desktop/FormRows.h"
#include "desktop/GridView.h"
#include "desktop/Icons.h"
#include "desktop/InputLayout.h"
#include "desktop/Views.h"
#include "screens/Lcc.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QToolButton>

namespace velorix {

QWidget* LayingPane()
{
    constexpr int PictureWidth = 310;
    constexpr int WidestTable = 620;

    QWidget* const Table = View(frmLCC.msgLaying, frmLCC.txtLaying);
    Table->setMaximumWidth(WidestTable);
    NameField(Table, "Pipe laying costs and conditions");
    auto* const Picture =
        new PictureView("laying", PictureWidth, "Trench with pipe, bedding, blanket and backfill");
    QWidget* const Buttons = InRow({nullptr, View(frmLCC.sscHideLaying), View(frmLCC.sscCancelLaying),
                                    ToolView(frmLCC.sscHelp3, "help")});

    QGroupBox* const Pane = View(frmLCC.fraLaying);
    auto* const Layout = new QHBoxLayout(Pane);
    Layout->setContentsMargins(CardMargin, 2, CardMargin, CardMargin / 2);
    Layout->setSpacing(2 * Gap);
    Layout->addWidget(Snug(Table), 1, Qt::AlignTop);
    Layout->addWidget(InColumn({Picture, nullptr, Buttons}));
    return Pane;
}

} // namespace velorix
