// Pages and tools of the PDF view.
#include "desktop/PdfView.h"

#include "base/Failure.h"
#include "desktop/Binding.h"
#include "desktop/FormRows.h"
#include "paint/PdfOutline.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QPdfPageNavigator>
#include <QPdfPageRenderer>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSpinBox>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace velorix {
namespace {

template <typename Action>
QToolButton* Tool(const QString& Sign, const QString& Name, const QKeySequence& Keys, QWidget* Window,
                  Action Do)
{
    auto* const Button = new QToolButton;
    Button->setText(Sign);
    Button->setToolTip(Name + " (" + Keys.toString(QKeySequence::NativeText) + ")");
    Button->setFocusPolicy(Qt::TabFocus);
    NameField(Button, Name);
    // A shortcut of the button's own would wait for it to be shown as pressed.
    QObject::connect(new QShortcut(Keys, Window), &QShortcut::activated, Window, Do);
    QObject::connect(Button, &QToolButton::clicked, Window, Do);
    return Button;
}

} // namespace

PdfPages::PdfPages(QPdfDocument& Shown)
    : QPdfView(nullptr)
    , Document(Shown)
{
    setDocument(&Document);
    setPageMode(PageMode::MultiPage);
    setZoomMode(ZoomMode::FitToWidth);
    setFocusPolicy(Qt::StrongFocus);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // else it would change the width that pages fit
    NameField(this, "Pages");
}

// The toolkit forgets to end the thread that draws.
PdfPages::~PdfPages()
{
    for (QPdfPageRenderer* Each : findChildren<QPdfPageRenderer*>())
        Each->setRenderMode(QPdfPageRenderer::RenderMode::SingleThreaded);
}

void PdfPages::GoTo(int Page)
{
    FirstPage = Page;
    if (CurrentPage() == Page) // where it wouldn't go to, from the page's middle
        verticalScrollBar()->setValue(Page == 0 ? 0 : verticalScrollBar()->maximum());
    pageNavigator()->jump(Page, QPointF());
}

int PdfPages::CurrentPage() const
{
    return pageNavigator()->currentPage();
}

double PdfPages::Top() const
{
    const QScrollBar* const Bar = verticalScrollBar();
    return static_cast<double>(Bar->value()) / std::max(1, Bar->maximum() + Bar->pageStep());
}

void PdfPages::SetTop(double Part)
{
    QScrollBar* const Bar = verticalScrollBar();
    Bar->setValue(static_cast<int>(std::lround(Part * (Bar->maximum() + Bar->pageStep()))));
}

double PdfPages::Size() const
{
    constexpr double PointsPerInch = 72;
    if (zoomMode() == ZoomMode::Custom || Document.pageCount() == 0) return zoomFactor();
    const QSizeF OnPaper = Document.pagePointSize(0) * screen()->logicalDotsPerInch() / PointsPerInch;
    const double ToWidth =
        (viewport()->width() - documentMargins().left() - documentMargins().right()) / OnPaper.width();
    const double ToHeight = (viewport()->height() - pageSpacing()) / OnPaper.height();
    return zoomMode() == ZoomMode::FitToWidth ? ToWidth : std::min(ToWidth, ToHeight);
}

void PdfPages::Zoom(int Steps)
{
    constexpr double Step = 1.2;
    constexpr double Least = 0.25;
    constexpr double Most = 5;
    const double Before = Top();
    const double Wanted = std::clamp(Size() * std::pow(Step, Steps), Least, Most);
    setZoomMode(ZoomMode::Custom);
    setZoomFactor(Wanted);
    SetTop(Before);
}

void PdfPages::Fit(ZoomMode Chosen)
{
    const double Before = Top();
    setZoomMode(Chosen);
    if (Chosen == ZoomMode::FitInView)
        GoTo(CurrentPage());
    else
        SetTop(Before);
}

void PdfPages::showEvent(QShowEvent* Event)
{
    QPdfView::showEvent(Event);
    QTimer::singleShot(0, this, [this] { GoTo(FirstPage); }); // the pages have their size by then
}

void PdfPages::resizeEvent(QResizeEvent* Event)
{
    const double Before = Top();
    QPdfView::resizeEvent(Event);
    SetTop(Before);
}

void PdfPages::keyPressEvent(QKeyEvent* Key)
{
    switch (Key->key()) {
    case Qt::Key_Home: verticalScrollBar()->triggerAction(QScrollBar::SliderToMinimum); break;
    case Qt::Key_End: verticalScrollBar()->triggerAction(QScrollBar::SliderToMaximum); break;
    case Qt::Key_Space: verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepAdd); break;
    default: QPdfView::keyPressEvent(Key);
    }
}

void PdfPages::wheelEvent(QWheelEvent* Wheel)
{
    if (!(Wheel->modifiers() & Qt::ControlModifier)) return QPdfView::wheelEvent(Wheel);
    if (Wheel->angleDelta().y() != 0) Zoom(Wheel->angleDelta().y() > 0 ? 1 : -1);
    Wheel->accept();
}

PdfView::PdfView(PdfViewer& Shown)
    : Record(Shown)
    , Pages(new PdfPages(Document))
    , Bar(MakeTools())
{
    auto* const Layout = new QVBoxLayout(this);
    Layout->setContentsMargins(0, 0, 0, 0);
    Layout->addWidget(Pages);
    setFocusProxy(Pages);
    Attach(Record, this, Pages);
    connect(Pages->pageNavigator(), &QPdfPageNavigator::currentPageChanged, this, &PdfView::ShowPage);
    Follow(Record.File, this, [this](const std::string& Path) { Open(Path); });
}

// The pages go before the document that they show.
PdfView::~PdfView()
{
    delete Pages;
}

QWidget* PdfView::MakeTools()
{
    Chapters = new QComboBox;
    Chapters->setPlaceholderText("Chapters"); // ahead of the first
    NameField(Chapters, "Chapter");
    connect(Chapters, &QComboBox::activated, this,
            [this](int Row) { Pages->GoTo(Chapters->itemData(Row).toInt()); });
    Page = new QSpinBox;
    Page->setPrefix("Page ");
    Page->setKeyboardTracking(false);
    NameField(Page, "Page");
    connect(Page, &QSpinBox::valueChanged, this, [this](int Number) { Pages->GoTo(Number - 1); });
    for (const auto& [Keys, Step] : {std::pair{"Ctrl+PgUp", -1}, std::pair{"Ctrl+PgDown", 1}})
        connect(new QShortcut(QKeySequence(Keys), this), &QShortcut::activated, this,
                [this, Step = Step] { Page->setValue(Page->value() + Step); });

    const auto Fit = [this](PdfPages::ZoomMode Chosen) { return [this, Chosen] { Pages->Fit(Chosen); }; };
    return InRow(
        {Chapters, Page, Tool("\u2212", "Smaller", QKeySequence("Ctrl+-"), this, [this] { Pages->Zoom(-1); }),
         Tool("+", "Larger", QKeySequence("Ctrl++"), this, [this] { Pages->Zoom(1); }),
         Tool("Width", "Fit the width", QKeySequence("Ctrl+1"), this, Fit(PdfPages::ZoomMode::FitToWidth)),
         Tool("Whole page", "Fit the whole page", QKeySequence("Ctrl+0"), this,
              Fit(PdfPages::ZoomMode::FitInView))});
}

void PdfView::Open(const std::string& Path)
{
    Document.close();
    Chapters->clear();
    if (!Path.empty()) Read(Path);
    const int Count = Document.pageCount();
    Bar->setEnabled(Count > 0);
    {
        const QSignalBlocker Silent(Page);
        Page->setRange(1, std::max(1, Count));
        Page->setSuffix(" of " + QString::number(Count));
    }
    Pages->GoTo(PageOf(QString::fromStdString(Record.Bookmark)));
    ShowPage(Pages->CurrentPage());
}

// What is no PDF leaves no pages.
void PdfView::Read(const std::string& Path)
{
    try {
        for (const PdfBookmark& Each : ReadBookmarks(Path))
            Chapters->addItem(QString::fromStdString(Each.Title), static_cast<int>(Each.Page));
        Document.load(QString::fromStdString(Path));
    } catch (const Failure&) {
        Chapters->clear();
    }
}

int PdfView::PageOf(const QString& Bookmark) const
{
    const int Row = Chapters->findText(Bookmark);
    return Row < 0 ? 0 : Chapters->itemData(Row).toInt();
}

// The tools tell where the pages are.
void PdfView::ShowPage(int Number)
{
    const QSignalBlocker Silent(Page);
    Page->setValue(Number + 1);
    int Chapter = -1;
    for (int Row = 0; Row < Chapters->count(); ++Row)
        if (Chapters->itemData(Row).toInt() <= Number) Chapter = Row;
    Chapters->setCurrentIndex(Chapter);
}

PdfView* View(PdfViewer& Record)
{
    return new PdfView(Record);
}

} // namespace velorix
