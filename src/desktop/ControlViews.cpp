// Views of labels, frames, progress bars and dates, and the timers.
#include "desktop/Binding.h"
#include "desktop/Painting.h"
#include "desktop/QtPlatform.h"
#include "desktop/Views.h"

#include <QDateEdit>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>

#include <algorithm>

namespace velorix {
namespace {

// One stop of the Tab key. Left and Right go between day, month and year.
class DateField : public QDateEdit {
protected:
    // The toolkit leaves the field at its last part.
    bool focusNextPrevChild(bool Next) override
    {
        setCurrentSectionIndex(Next ? sectionCount() - 1 : 0);
        return QDateEdit::focusNextPrevChild(Next);
    }

    void keyPressEvent(QKeyEvent* Key) override
    {
        const int Step = Key->key() == Qt::Key_Right ? 1 : Key->key() == Qt::Key_Left ? -1 : 0;
        if (Step == 0 || Key->modifiers() != Qt::NoModifier) return QDateEdit::keyPressEvent(Key);
        setSelectedSection(sectionAt(std::clamp(currentSectionIndex() + Step, 0, sectionCount() - 1)));
    }
};

} // namespace

QLabel* View(Label& Record)
{
    auto* const View = new QLabel;
    View->setTextFormat(Qt::PlainText); // a file name may look like markup
    Follow(Record.Caption, View,
           [View](const std::string& Text) { View->setText(QString::fromStdString(Text)); });
    Follow(Record.BackColor, View, [View](Color Back) { PaintBack(*View, Back); });
    Attach(Record, View);
    View->setAccessibleName(QString()); // its text says it
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
    auto* const View = new DateField;
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
