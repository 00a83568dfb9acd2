// How rows, pages and turning boxes are laid out.
#include "desktop/FormRows.h"

#include "desktop/ScrollBarView.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QScrollArea>
#include <QSpinBox>
#include <QStackedWidget>
#include <QStyle>
#include <QTabWidget>

#include <algorithm>
#include <memory>

namespace velorix {
namespace {

// Columns of the rows.
constexpr int CaptionColumn = 0;
constexpr int SignColumn = 1;
constexpr int FieldColumn = 2;
constexpr int UnitColumn = 3;
constexpr int RestColumn = 4;

constexpr int RowGap = 5;

void SetCardMargins(QLayout* Layout)
{
    Layout->setContentsMargins(CardMargin, CardMargin / 2, CardMargin, CardMargin);
}

// Draws a label's text shortened in the middle, in place of the label's own painting.
class Shortener : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* Watched, QEvent* Event) override
    {
        if (Event->type() != QEvent::Paint) return false;
        auto* const Shown = static_cast<QLabel*>(Watched);
        const QRect Room = Shown->contentsRect();
        QPainter Painter(Shown);
        Shown->style()->drawItemText(
            &Painter, Room, static_cast<int>(Shown->alignment()), Shown->palette(), Shown->isEnabled(),
            Shown->fontMetrics().elidedText(Shown->text(), Qt::ElideMiddle, Room.width()),
            Shown->foregroundRole());
        return true;
    }
};

class ShowWatcher : public QObject {
public:
    ShowWatcher(QWidget* Watched, std::function<void(bool)> Teller)
        : QObject(Watched)
        , Tell(std::move(Teller))
    {
        Watched->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* Event) override
    {
        if (Event->type() == QEvent::ShowToParent) Tell(true);
        if (Event->type() == QEvent::HideToParent) Tell(false);
        return false;
    }

private:
    const std::function<void(bool)> Tell;
};

QWidget* InBox(QBoxLayout::Direction Direction, const std::vector<QWidget*>& Widgets)
{
    auto* const Box = new QWidget;
    auto* const Layout = new QBoxLayout(Direction, Box);
    Layout->setContentsMargins(0, 0, 0, 0);
    Layout->setSpacing(Gap);
    for (QWidget* Each : Widgets)
        if (Each)
            Layout->addWidget(Each);
        else
            Layout->addStretch(1);
    return Box;
}

QBoxLayout::Direction Across(QBoxLayout::Direction Way)
{
    return Way == QBoxLayout::LeftToRight ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
}

// Whether the page of tabs that holds the widget is the one on top.
bool OnTopPage(const QWidget* Held)
{
    for (; Held; Held = Held->parentWidget())
        if (const auto* Pages = qobject_cast<QStackedWidget*>(Held->parentWidget());
            Pages && qobject_cast<QTabWidget*>(Pages->parentWidget()))
            return Pages->currentWidget() == Held;
    return true;
}

} // namespace

FormRows::FormRows(QWidget* Owner, Margins Around)
    : Grid(new QGridLayout(Owner))
{
    if (Around == Margins::Card)
        SetCardMargins(Grid);
    else
        Grid->setContentsMargins(0, 0, 0, 0);
    Grid->setHorizontalSpacing(Gap);
    Grid->setVerticalSpacing(RowGap);
    Grid->setColumnStretch(RestColumn, 1);
}

void FormRows::PutCaption(QLabel* Caption, QWidget* Field)
{
    TieCaption(Caption, Field);
    const bool Tall = qobject_cast<QAbstractScrollArea*>(Field);
    Grid->addWidget(Caption, Row, CaptionColumn, Tall ? Qt::AlignTop : Qt::Alignment());
}

void FormRows::Add(const QString& Caption, QWidget* Field, QWidget* Unit, QWidget* Sign)
{
    Add(Text(Caption), Field, Unit, Sign);
}

void FormRows::Add(QLabel* Caption, QWidget* Field, QWidget* Unit, QWidget* Sign)
{
    PutCaption(Caption, Field);
    if (Sign) Grid->addWidget(Sign, Row, SignColumn);
    Grid->addWidget(Field, Row, FieldColumn);
    if (Unit) {
        if (qobject_cast<QComboBox*>(Unit)) NameField(Unit, Field->accessibleName() + ", units");
        Grid->addWidget(Unit, Row, UnitColumn);
    }
    ++Row;
}

void FormRows::AddLong(const QString& Caption, QWidget* Field, QWidget* Behind)
{
    PutCaption(Text(Caption), Field);
    QWidget* const Content = Behind ? InRow({Field, nullptr, Behind}) : Field;
    Grid->addWidget(Content, Row, SignColumn, 1, RestColumn - SignColumn + 1);
    ++Row;
}

void FormRows::AddWide(QWidget* Content, int Stretch)
{
    Grid->addWidget(Content, Row, CaptionColumn, 1, RestColumn + 1);
    Grid->setRowStretch(Row, Stretch);
    ++Row;
}

void FormRows::Close()
{
    Grid->setRowStretch(Row, 1);
}

void TieCaption(QLabel* Caption, QWidget* Field)
{
    Caption->setBuddy(Field);
    NameField(Field, Caption->text());
}

void NameField(QWidget* Field, const QString& Name)
{
    Field->setAccessibleName(QString(Name).remove('&'));
}

QLabel* Text(const QString& Words)
{
    return new QLabel(Words);
}

QLabel* MutedText(const QString& Words)
{
    return WithRole(Text(Words), "muted");
}

QWidget* DigitsWide(QWidget* Field, int Digits)
{
    constexpr double LeastPart = 0.6;
    const int Width = Field->fontMetrics().horizontalAdvance('0') * Digits;
    Field->setMaximumWidth(Width + 2 * CardMargin);
    Field->setMinimumWidth(static_cast<int>(Width * LeastPart) + 2 * CardMargin);
    return Field;
}

void AlignBars(const std::vector<ScrollBarView*>& Bars)
{
    int Widest = 0;
    for (const ScrollBarView* Each : Bars) Widest = std::max(Widest, Each->Field().sizeHint().width());
    for (const ScrollBarView* Each : Bars) Each->Field().setFixedWidth(Widest);
}

QLabel* Elided(QLabel* Shown)
{
    Shown->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    Shown->installEventFilter(new Shortener(Shown));
    return Shown;
}

QWidget* InRow(const std::vector<QWidget*>& Widgets)
{
    return InBox(QBoxLayout::LeftToRight, Widgets);
}

QWidget* InColumn(const std::vector<QWidget*>& Widgets)
{
    return InBox(QBoxLayout::TopToBottom, Widgets);
}

QWidget* Named(const char* Name, QWidget* Field)
{
    QLabel* const Caption = Text(Name);
    TieCaption(Caption, Field);
    return InRow({Caption, Field});
}

void WhenShown(QWidget* Watched, std::function<void(bool)> Then)
{
    Then(!(Watched->isHidden() && Watched->testAttribute(Qt::WA_WState_ExplicitShowHide)));
    new ShowWatcher(Watched, std::move(Then));
}

void StandInFor(QWidget* Pane, QWidget* Content, QWidget* FirstField)
{
    // The focus comes back to where it was, unless the user has left the page or the screen since.
    const auto Before = std::make_shared<QPointer<QWidget>>();
    WhenShown(Pane, [Pane, Content, FirstField, Before](bool Shown) {
        QWidget* const Now = Pane->window()->focusWidget();
        if (Shown) *Before = Now;
        Content->setVisible(!Shown);
        const QWidget* const Page = Pane->parentWidget();
        if (!Page || !Page->isVisible()) return;
        if (Shown)
            FirstField->setFocus();
        else if (*Before && OnTopPage(Pane))
            (*Before)->setFocus(Qt::TabFocusReason); // opens no list
    });
}

QWidget* Snug(QWidget* Content)
{
    Content->setSizePolicy(Content->sizePolicy().horizontalPolicy(), QSizePolicy::Maximum);
    return Content;
}

QWidget* Readable(QWidget* Content)
{
    constexpr int WidestContent = 1264;
    Content->setMaximumWidth(WidestContent);
    auto* const Box = new QWidget;
    auto* const Layout = new QHBoxLayout(Box);
    Layout->setContentsMargins(Gap, Gap, Gap, Gap);
    Layout->addWidget(Content, WidestContent); // takes all there is, up to its own limit
    Layout->addStretch(1);
    return Box;
}

QScrollArea* Page(QWidget* Content)
{
    auto* const Area = new QScrollArea;
    Area->setWidgetResizable(true);
    Area->setFrameShape(QFrame::NoFrame);
    Area->setFocusPolicy(Qt::NoFocus);
    Area->setWidget(Readable(Content));
    return Area;
}

TurningBox::TurningBox(int Digits)
    : Box(new QBoxLayout(QBoxLayout::TopToBottom, this))
    , RowFromDigits(Digits)
{
    Box->setContentsMargins(0, 0, 0, 0);
    Box->setSpacing(Gap);
}

TurningBox::TurningBox(TurningBox& Outer)
    : TurningBox(0)
{
    Outer.Inner = this;
    Box->setDirection(QBoxLayout::LeftToRight);
}

TurningBox::TurningBox(int Digits, const std::vector<QWidget*>& Content)
    : TurningBox(Digits)
{
    for (QWidget* Each : Content) Add(Each, Each == Content.back() ? 1 : 0);
}

void TurningBox::Add(QWidget* Content, int Stretch, Qt::Alignment Place)
{
    Box->addWidget(Content, Stretch, Place);
}

int TurningBox::LeastWidth(QBoxLayout::Direction Way) const
{
    const bool IsRow = Way == QBoxLayout::LeftToRight;
    int Width = 0;
    bool First = true;
    for (int Index = 0; Index < Box->count(); ++Index) {
        const QLayoutItem* const Item = Box->itemAt(Index);
        if (Item->isEmpty()) continue;
        const int Own =
            Inner && Item->widget() == Inner ? Inner->LeastWidth(Across(Way)) : Item->minimumSize().width();
        const int Space = First ? 0 : Gap;
        Width = IsRow ? Width + Space + Own : std::max(Width, Own);
        First = false;
    }
    return Width;
}

QSize TurningBox::minimumSizeHint() const
{
    const QSize Least = QWidget::minimumSizeHint();
    return RowFromDigits == 0 ? Least : QSize(LeastWidth(QBoxLayout::TopToBottom), Least.height());
}

void TurningBox::Turn()
{
    const int Told = RowFromDigits * fontMetrics().horizontalAdvance('0');
    const bool Wide = width() >= std::max(Told, LeastWidth(QBoxLayout::LeftToRight));
    const QBoxLayout::Direction Way = Wide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
    if (Way == Box->direction()) return;
    Box->setDirection(Way);
    if (Inner) Inner->Box->setDirection(Across(Way));
    Box->update(); // the page has another height to reckon with
}

// The content may come to need more room while the box keeps its size.
bool TurningBox::event(QEvent* Event)
{
    const bool Taken = QWidget::event(Event);
    const bool Weighed = Event->type() == QEvent::Resize || Event->type() == QEvent::LayoutRequest;
    if (Weighed && RowFromDigits > 0) Turn();
    return Taken;
}

} // namespace velorix
