// Views of labels, frames, progress bars and dates, and the timers.
#include "desktop/Binding.h"
#include "desktop/Painting.h"
#include "desktop/QtPlatform.h"
#include "desktop/Views.h"

#include <QDateEdit>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QProgressBar>
#include <QTimer>

namespace velorix {
namespace {

QLabel* FillLabel(Label& Record, QLabel* View)
{
    View->setTextFormat(Qt::PlainText); // a file name may look like markup
    Follow(Record.Caption, View,
           [View](const std::string& Text) { View->setText(QString::fromStdString(Text)); });
    Follow(Record.BackColor, View, [View](Color Back) {
        View->setAutoFillBackground(!IsPaletteColor(Back));
        View->setPalette(IsPaletteColor(Back) ? QPalette() : PaintedPalette(Back));
    });
    Attach(Record, View);
    return View;
}

// Clicks like a button: by mouse, Space and Enter.
class ColorField : public QLabel {
public:
    ColorField(Label& Shown, ColorNames ToldNames)
        : Record(Shown)
        , Names(std::move(ToldNames))
    {
        setFocusPolicy(Qt::StrongFocus);
        setAlignment(Qt::AlignCenter);
        setFrameStyle(QFrame::Box | QFrame::Plain);
    }

    // What a screen reader says beside the name: what the field is for, and its colour by its name.
    void DescribeState()
    {
        QStringList Parts = {toolTip(), ColorName(Record.BackColor)};
        Parts.removeAll(QString());
        setAccessibleDescription(Parts.join(", "));
    }

protected:
    void mousePressEvent(QMouseEvent* Press) override { Press->accept(); }

    void mouseReleaseEvent(QMouseEvent* Release) override
    {
        if (Release->button() == Qt::LeftButton && rect().contains(Release->position().toPoint())) Click();
    }

    void keyPressEvent(QKeyEvent* Key) override
    {
        const bool Pressed =
            Key->key() == Qt::Key_Space || Key->key() == Qt::Key_Return || Key->key() == Qt::Key_Enter;
        if (Pressed)
            Click();
        else
            QLabel::keyPressEvent(Key);
    }

    void changeEvent(QEvent* Change) override
    {
        QLabel::changeEvent(Change);
        if (Change->type() == QEvent::PaletteChange) DescribeState();
    }

    void focusInEvent(QFocusEvent* Focus) override
    {
        QLabel::focusInEvent(Focus);
        update();
    }

    void focusOutEvent(QFocusEvent* Focus) override
    {
        QLabel::focusOutEvent(Focus);
        update();
    }

    void paintEvent(QPaintEvent* Paint) override
    {
        QLabel::paintEvent(Paint);
        if (!hasFocus()) return;
        QPainter Painter(this);
        DrawFrame(Painter, rect(), Qt::black);
    }

private:
    void Click()
    {
        Guarded([this] { Record.Click(); });
    }

    QString ColorName(Color Value) const
    {
        for (const auto& [Named, Name] : Names)
            if (Named == Value) return Name;
        return {};
    }

    Label& Record;
    const ColorNames Names;
};

} // namespace

QLabel* View(Label& Record)
{
    QLabel* const View = FillLabel(Record, new QLabel);
    View->setAccessibleName(QString()); // its text says it
    return View;
}

QLabel* ColorView(Label& Record)
{
    return ColorView(Record, {{PureRed, "red"}, {PureGreen, "green"}, {PureYellow, "yellow"}});
}

QLabel* ColorView(Label& Record, const ColorNames& Names)
{
    auto* const View = new ColorField(Record, Names);
    FillLabel(Record, View);
    View->setAccessibleName(View->text()); // until a layout gives a better one
    View->DescribeState();
    return View;
}

QGroupBox* View(Frame& Record)
{
    auto* const View = new QGroupBox;
    Follow(Record.Caption, View,
           [View](const std::string& Text) { View->setTitle(QString::fromStdString(Text)); });
    Attach(Record, View);
    return View;
}

QProgressBar* View(ProgressBar& Record)
{
    auto* const View = new QProgressBar;
    Follow(Record.Value, View, [View](int Percent) { View->setValue(Percent); });
    Attach(Record, View);
    return View;
}

QDateEdit* View(DatePicker& Record)
{
    constexpr int FirstYear = 1601; // no date of the calendar in use lies before
    constexpr int LastYear = 9999;
    auto* const View = new QDateEdit;
    View->setLocale(QLocale::c());
    View->setDisplayFormat("d MMMM yyyy");
    View->setDateRange(QDate(FirstYear, 1, 1), QDate(LastYear, 12, 31));
    View->setCalendarPopup(true);
    View->setKeyboardTracking(false);
    IgnoreStrayWheel(View);
    Follow(Record.Value, View, [View](Date Day) { View->setDate(QDate(Day.Year, Day.Month, Day.Day)); });
    QObject::connect(View, &QDateEdit::dateChanged, View, [&Record, View](QDate Day) {
        Enter(Record.Value, Date{Day.year(), Day.month(), Day.day()}, View);
    });
    Attach(Record, View);
    return View;
}

void RunTimers(Screen& Record)
{
    for (Control* Each : Record.Controls) {
        auto* const Clock = dynamic_cast<Timer*>(Each);
        if (!Clock) continue;
        auto* const Runner = new QTimer(qApp);
        QObject::connect(Runner, &QTimer::timeout, Runner, [Clock] {
            // A calculation that shows its progress isn't interrupted.
            if (Clock->Enabled && !OnlyPainting()) Guarded([Clock] { Clock->Tick(); });
        });
        Follow(Clock->Interval, Runner, [Runner](int Milliseconds) { Runner->setInterval(Milliseconds); });
        Follow(Clock->Enabled, Runner, [Runner](bool Enabled) {
            if (Enabled)
                Runner->start();
            else
                Runner->stop();
        });
    }
}

} // namespace velorix
