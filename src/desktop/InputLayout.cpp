// The frame around the pages of the input screen.
#include "desktop/InputLayout.h"

#include "desktop/FormRows.h"
#include "desktop/Views.h"
#include "screens/Lcc.h"

#include <QLabel>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

namespace velorix {
namespace {

QWidget* TitleLine()
{
    QLabel* const Title = WithRole(Text(QString::fromStdString(frmLCC.Caption).trimmed()), "screen");
    QLabel* const FileName = Elided(WithRole(View(frmLCC.lblFileName), "muted"));
    FileName->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    auto* const Line = new QWidget;
    auto* const Layout = new QHBoxLayout(Line);
    Layout->setContentsMargins(2 * Gap, Gap / 2, 2 * Gap, Gap / 2);
    Layout->setSpacing(2 * Gap);
    Layout->addWidget(Title);
    Layout->addWidget(FileName, 1);
    return Line;
}

} // namespace

QWidget* InputScreenLayout()
{
    QTabWidget* const Tabs =
        View(frmLCC.sstInput, std::vector<QWidget*>{Page(GeneralPage()), Page(ProfilePage()),
                                                    Page(EnergyPage()), Page(RatesPage())});
    NameField(Tabs, "Input data");

    auto* const Screen = new QWidget;
    auto* const Layout = new QVBoxLayout(Screen);
    Layout->setContentsMargins(0, 0, 0, 0);
    Layout->setSpacing(0);
    Layout->addWidget(TitleLine());
    Layout->addWidget(Tabs, 1);
    return Screen;
}

} // namespace velorix
