// Cards and tables of the results screen.
#include "desktop/ResultsLayout.h"

#include "desktop/FormRows.h"
#include "desktop/GridView.h"
#include "desktop/ScrollBarView.h"
#include "desktop/Views.h"
#include "screens/Results.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

namespace velorix {
namespace {

QWidget* HeadlineCard(const QString& Name, Label& Figure)
{
    auto* const Card = WithRole(new QFrame, "card");
    auto* const Layout = new QVBoxLayout(Card);
    Layout->setContentsMargins(CardMargin, CardMargin, CardMargin, CardMargin);
    Layout->setSpacing(Gap / 2);
    Layout->addWidget(MutedText(Name));
    Layout->addWidget(WithRole(View(Figure), "figure"));
    return Card;
}

QWidget* Headlines()
{
    return InRow({HeadlineCard("Design life", frmResults.lblDesignLife),
                  HeadlineCard("Net present value of cost", frmResults.lblNPVE),
                  HeadlineCard("Net present value of income", frmResults.lblNPVI),
                  HeadlineCard("Internal rate of return", frmResults.lblIRR)});
}

QWidget* RangeCard()
{
    constexpr int BarWidth = 360;
    auto* const Card = new QGroupBox("Range of the plot");
    FormRows Rows(Card);
    Rows.Add("From", View(frmResults.comBegin));
    Rows.Add("To", View(frmResults.comEnd));
    QWidget* const Year = View(frmResults.hscYears);
    Year->setFixedWidth(BarWidth);
    Rows.AddLong("Year of analysis", InRow({Year, View(frmResults.lblYear), nullptr}));
    NameField(Year, "Year of analysis");
    return Card;
}

QWidget* HydraulicPage()
{
    return InColumn({Snug(RangeCard()), InRow({View(frmResults.sscDutypoint), nullptr}),
                     View(frmResults.fraDuty), nullptr});
}

QWidget* CapitalCard()
{
    auto* const Card = new QGroupBox("Capital cost");
    FormRows Rows(Card);
    QWidget* const Table = View(frmResults.msgCost);
    NameField(Table, "Capital cost");
    Rows.AddWide(Snug(Table));
    return Card;
}

// The bar's own label says which year it stands on.
QWidget* AnnualCard()
{
    auto* const Card = new QGroupBox("Annual cost");
    FormRows Rows(Card);
    QWidget* const Bar = View(frmResults.hsbAnnual);
    NameField(Bar, "Year of the annual cost");
    QLabel* const Year = View(frmResults.lblAnnual);
    Year->setMinimumWidth(Year->fontMetrics().horizontalAdvance("Year : 1000"));
    QWidget* const Choice = InRow({Year, Bar});
    static_cast<QBoxLayout*>(Choice->layout())->setStretchFactor(Bar, 1);
    QWidget* const Table = View(frmResults.msgAnnualCost);
    NameField(Table, "Annual cost of the year");
    Rows.AddWide(Choice);
    Rows.AddWide(Snug(Table));
    return Card;
}

QWidget* CostPage()
{
    auto* const Content = new QWidget;
    auto* const Layout = new QHBoxLayout(Content);
    Layout->setContentsMargins(0, 0, 0, 0);
    Layout->setSpacing(Gap);
    for (QWidget* Each : {CapitalCard(), AnnualCard()}) {
        Layout->addWidget(Snug(Each), 1);
        Layout->setAlignment(Each, Qt::AlignTop);
    }
    return Content;
}

} // namespace

QWidget* ResultsScreenLayout()
{
    QTabWidget* const Tabs = View(
        frmResults.sstResults, std::vector<QWidget*>{Page(HydraulicPage()), new QWidget, Page(CostPage())});
    NameField(Tabs, "Results");
    QLabel* const Title = WithRole(Text(QString::fromStdString(frmResults.Caption).trimmed()), "screen");
    Title->setContentsMargins(2 * Gap, Gap / 2, 2 * Gap, 0);

    auto* const Screen = new QWidget;
    auto* const Layout = new QVBoxLayout(Screen);
    Layout->setContentsMargins(0, 0, 0, 0);
    Layout->setSpacing(0);
    Layout->addWidget(Title);
    Layout->addWidget(Readable(Headlines()));
    Layout->addWidget(Tabs, 1);
    return Screen;
}

} // namespace velorix
