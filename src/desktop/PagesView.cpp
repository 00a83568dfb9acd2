// Pages are painted as they come into view, by the painter that the printer has.
#include "desktop/PagesView.h"

#include "desktop/Style.h"
#include "paint/Painter.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace velorix {
namespace {

constexpr double TwipsPerInch = 1440;
constexpr double Around = 16; // the room around a page (pixels)
constexpr double LeastScale = 0.1;
constexpr double MostScale = 4;
constexpr double ZoomStep = 1.2;

} // namespace

PagesView::PagesView(const std::vector<PrintedPage>& Shown)
    : Pages(Shown)
{
    constexpr int LineOfText = 40;
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // so that the width doesn't depend on the scale
    for (QScrollBar* Each : {verticalScrollBar(), horizontalScrollBar()}) Each->setSingleStep(LineOfText);
    Arrange();
}

double PagesView::PixelsPerTwip() const
{
    return InUse * logicalDpiX() / TwipsPerInch;
}

int PagesView::CurrentPage() const
{
    const double Middle = verticalScrollBar()->value() + viewport()->height() / 2.0;
    int Found = 0;
    for (const QRectF& Each : Places)
        if (Each.top() - Around < Middle) Found = static_cast<int>(&Each - Places.data());
    return Found;
}

void PagesView::GoTo(int Page)
{
    const auto Index = static_cast<std::size_t>(std::clamp(Page, 0, LastPage()));
    verticalScrollBar()->setValue(static_cast<int>(std::lround(Places[Index].top() - Around)));
}

// By the widest page and the highest, so that all fit.
double PagesView::FittingScale() const
{
    double Width = 1;
    double Height = 1;
    for (const PrintedPage& Each : Pages) {
        Width = std::max<double>(Width, Each.Print.Width);
        Height = std::max<double>(Height, Each.Print.Height);
    }
    const double PerPixel = TwipsPerInch / logicalDpiX();
    const double ByWidth = (viewport()->width() - 2 * Around) * PerPixel / Width;
    const double ByHeight = (viewport()->height() - 2 * Around) * PerPixel / Height;
    return Follows == PageFit::Width ? ByWidth : std::min(ByWidth, ByHeight);
}

void PagesView::FitTo(PageFit Wanted)
{
    Follows = Wanted;
    const int Page = CurrentPage();
    Rescale(Wanted == PageFit::Free ? InUse : FittingScale());
    if (Wanted == PageFit::WholePage) GoTo(Page);
}

void PagesView::Zoom(int Steps)
{
    Follows = PageFit::Free;
    Rescale(InUse * std::pow(ZoomStep, Steps));
}

// What stands in the middle of the view stays there.
void PagesView::Rescale(double Wanted)
{
    const double HalfWay = viewport()->height() / 2.0;
    const auto Page = static_cast<std::size_t>(CurrentPage());
    const QRectF Before = Places[Page];
    const double Part = (verticalScrollBar()->value() + HalfWay - Before.top()) / Before.height();
    InUse = std::clamp(Wanted, LeastScale, MostScale);
    Arrange();
    const QRectF& Now = Places[Page];
    verticalScrollBar()->setValue(static_cast<int>(std::lround(Now.top() + Part * Now.height() - HalfWay)));
    viewport()->update();
    if (Changed) Changed();
}

void PagesView::Arrange()
{
    Places.clear();
    double Widest = 0;
    for (const PrintedPage& Each : Pages) Widest = std::max(Widest, Each.Print.Width * PixelsPerTwip());
    double Top = Around;
    for (const PrintedPage& Each : Pages) {
        const QSizeF Size = QSizeF(Each.Print.Width, Each.Print.Height) * PixelsPerTwip();
        Places.emplace_back(QPointF((Widest - Size.width()) / 2 + Around, Top), Size);
        Top += Size.height() + Around;
    }
    const auto SetRange = [](QScrollBar* Bar, double Length, int View) {
        Bar->setRange(0, std::max(0, static_cast<int>(std::floor(Length)) - View));
        Bar->setPageStep(View);
    };
    SetRange(verticalScrollBar(), Top, viewport()->height());
    SetRange(horizontalScrollBar(), Widest + 2 * Around, viewport()->width());
}

void PagesView::paintEvent(QPaintEvent* Event)
{
    QPainter Painter(viewport());
    Painter.fillRect(Event->rect(), Colors().Dark ? Colors().Window : Colors().Border);
    double Widest = 0;
    for (const QRectF& Each : Places) Widest = std::max(Widest, Each.right() + Around);
    const double Left = std::max(0.0, (viewport()->width() - Widest) / 2) - horizontalScrollBar()->value();
    for (std::size_t Index = 0; Index < Places.size(); ++Index) {
        // On whole pixels, so that thin lines don't change as the pages scroll.
        const QRectF Place =
            Places[Index].translated(std::round(Left), -verticalScrollBar()->value()).toAlignedRect();
        if (!Place.intersects(Event->rect())) continue;
        Paint(Painter, Pages[Index], Place);
        Painter.setPen(Colors().Muted);
        Painter.drawRect(Place.adjusted(-0.5, -0.5, 0.5, 0.5));
    }
}

void PagesView::resizeEvent(QResizeEvent*)
{
    Rescale(Follows == PageFit::Free ? InUse : FittingScale());
}

void PagesView::keyPressEvent(QKeyEvent* Event)
{
    const bool ByPage = Follows == PageFit::WholePage;
    switch (Event->key()) {
    case Qt::Key_Home: GoTo(0); break;
    case Qt::Key_End: verticalScrollBar()->triggerAction(QScrollBar::SliderToMaximum); break;
    case Qt::Key_PageDown:
    case Qt::Key_Space:
        if (ByPage)
            GoTo(CurrentPage() + 1);
        else
            verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepAdd);
        break;
    case Qt::Key_PageUp:
        if (ByPage)
            GoTo(CurrentPage() - 1);
        else
            verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepSub);
        break;
    default: QAbstractScrollArea::keyPressEvent(Event);
    }
}

void PagesView::wheelEvent(QWheelEvent* Event)
{
    if (Event->modifiers() & Qt::ControlModifier)
        Zoom(Event->angleDelta().y() > 0 ? 1 : -1);
    else
        QAbstractScrollArea::wheelEvent(Event);
}

void PagesView::scrollContentsBy(int, int)
{
    viewport()->update();
    if (Changed) Changed();
}

} // namespace velorix
