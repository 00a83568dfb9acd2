// What all views share: they follow the fields of a record, and write back what the user does.
#pragma once

#include "base/Arithmetic.h"
#include "desktop/EventGuard.h"
#include "platform/Controls.h"

#include <QPointer>
#include <QSignalBlocker>
#include <QWidget>

namespace velorix {

// Calls Show with the field's value, now and whenever anyone but the view gives the field another one. The
// view may go before the record does.
template <typename T, typename ShowValue>
void Follow(Property<T>& Field, QObject* View, ShowValue Show)
{
    Field.View = [&Field, Alive = QPointer<QObject>(View), Show](const void* Source) {
        if (!Alive || Source == Alive.data()) return;
        const KeepArithmeticFlags Keep;
        if (Alive->isWidgetType()) {
            const QSignalBlocker NoEcho(Alive.data());
            Show(Field.Get());
        } else
            Show(Field.Get());
    };
    Field.View(nullptr);
}

// Gives the field what the user has entered in the view.
template <typename T>
void Enter(Property<T>& Field, T Value, QObject* View)
{
    Guarded([&] { Field.Assign(std::move(Value), View); });
}

// What controls have in common: tool tip, visibility, enabling, the events of focus and pointer. The focus
// goes to Target, the view itself unless told otherwise.
void Attach(Control& Record, QWidget* View, QWidget* Target = nullptr);

// Raises the record's events of focus and pointer for what happens to the widget.
void RaiseEvents(Control& Record, QWidget* View);

// Raises GotFocus.
void TellFocus(Control& Record);

// The widget that takes the focus of a control; nullptr when no view shows it.
QWidget* FocusTarget(const Control& Record);

// The widget, or the nearest around it that shows and takes the focus; the window at the last.
QWidget* NearestInReach(QWidget* View);

// Lets the wheel scroll the page instead of changing a value that happens to lie under the pointer. With the
// focus on the view it changes the value.
void IgnoreStrayWheel(QWidget* View);

// Takes over what is typed but not yet entered in a number or date field, so that a command finds it.
void FinishTyping();

} // namespace velorix
