// Views of controls in general: visibility, focus, pointer.
#include "desktop/Binding.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QMouseEvent>

#include <unordered_map>

namespace velorix {
namespace {

std::unordered_map<const Control*, QPointer<QWidget>> FocusTargets;

constexpr const char* OfRecord = "ofRecord"; // marks a widget that a record shows and hides

// A caption that is no record of its own comes and goes with the field it belongs to.
void ShowBuddies(QWidget* View)
{
    for (QLabel* Each : View->window()->findChildren<QLabel*>()) {
        const QWidget* const Field = Each->buddy();
        if (!Field || Each->property(OfRecord).toBool()) continue;
        if (Field == View || View->isAncestorOf(Field)) Each->setVisible(!View->isHidden());
    }
}

void ShowView(QWidget* View, bool Visible)
{
    // A view that has no place yet would come up as a window of its own.
    if (Visible && !View->parentWidget()) return;
    View->setVisible(Visible);
    ShowBuddies(View);
}

// The control that was last told of its focus. A window that comes to the front again gives the focus back to
// its field, which is no news then.
const Control* LastFocused = nullptr;

// Raises the events of focus and pointer.
class ViewEvents : public QObject {
public:
    ViewEvents(Control& Watched, QWidget* View)
        : QObject(View)
        , Record(Watched)
    {
    }

    bool eventFilter(QObject* Watched, QEvent* Event) override
    {
        if (Event->type() == QEvent::FocusIn) TakeFocus(static_cast<QFocusEvent*>(Event)->reason());
        if (Event->type() != QEvent::MouseMove || !Record.MouseMove) return false;
        Guarded([this] { Record.MouseMove(); });
        // Nobody wants to know of a bare move, and what lies below must not believe that the pointer is on
        // it.
        const bool Bare = static_cast<QMouseEvent*>(Event)->buttons() == Qt::NoButton;
        return Bare && !Watched->parent()->inherits("QAbstractScrollArea");
    }

private:
    void TakeFocus(Qt::FocusReason Reason)
    {
        if (Reason != Qt::ActiveWindowFocusReason || LastFocused != &Record) TellFocus(Record);
    }

    Control& Record;
};

class StrayWheel : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* Watched, QEvent* Event) override
    {
        if (Event->type() != QEvent::Wheel || static_cast<QWidget*>(Watched)->hasFocus()) return false;
        Event->ignore();
        return true;
    }
};

} // namespace

void RaiseEvents(Control& Record, QWidget* View)
{
    View->setMouseTracking(true);
    View->installEventFilter(new ViewEvents(Record, View));
}

void TellFocus(Control& Record)
{
    LastFocused = &Record;
    Guarded([&] { Record.GotFocus(); });
}

void Attach(Control& Record, QWidget* View, QWidget* Target)
{
    if (!Target) Target = View;
    FocusTargets[&Record] = Target;
    for (QWidget* Each : {View, Target}) {
        Each->setToolTip(QString::fromStdString(Record.ToolTip));
        Each->setAccessibleName(Each->toolTip());
        Each->setProperty(OfRecord, true);
    }

    RaiseEvents(Record, View);
    if (Target != View) RaiseEvents(Record, Target);
    if (auto* const Area = qobject_cast<QAbstractScrollArea*>(View)) RaiseEvents(Record, Area->viewport());

    Follow(Record.Visible, View, [View](bool Visible) { ShowView(View, Visible); });
    Follow(Record.Enabled, View, [View](bool Enabled) { View->setEnabled(Enabled); });

    // The layout ties the captions once the view is made.
    QMetaObject::invokeMethod(
        View,
        [View] {
            if (View->isHidden() && View->parentWidget()) ShowBuddies(View);
        },
        Qt::QueuedConnection);
}

QWidget* FocusTarget(const Control& Record)
{
    const auto Found = FocusTargets.find(&Record);
    return Found == FocusTargets.end() ? nullptr : Found->second.data();
}

QWidget* NearestInReach(QWidget* View)
{
    const QWidget* const Window = View->window();
    const auto InReach = [Window](const QWidget* Each) {
        return Each->focusPolicy() != Qt::NoFocus && Each->isEnabled() && Each->isVisibleTo(Window);
    };
    while (!View->isWindow() && !InReach(View)) View = View->parentWidget();
    return View;
}

void IgnoreStrayWheel(QWidget* View)
{
    View->setFocusPolicy(Qt::StrongFocus); // not by the wheel
    View->installEventFilter(new StrayWheel(View));
}

void FinishTyping()
{
    if (auto* const Field = qobject_cast<QAbstractSpinBox*>(QApplication::focusWidget()))
        Field->interpretText();
}

} // namespace velorix
