// The properties of a control, and the events that a control raises.
#pragma once

#include "platform/DesignState.h"

#include <functional>
#include <utility>

namespace velorix {

// What a control does when its event is raised; nothing while no handler is set.
template <typename... Arguments>
class Event {
public:
    Event() = default;

    template <typename Callable>
    Event& operator=(Callable&& Answer)
    {
        Handler = std::forward<Callable>(Answer);
        return *this;
    }

    explicit operator bool() const { return static_cast<bool>(Handler); }

    void operator()(Arguments... Values) const
    {
        if (!Handler) return;
        const auto Running = Handler; // a handler may replace itself while it runs
        Running(Values...);
    }

private:
    std::function<void(Arguments...)> Handler;
};

// A property reads like a plain value and, when it takes a new one, tells first the attached view and
// then the control's own event. Taking the value that it holds already tells nobody. It can't be built
// without the control or screen that it belongs to, so none is left out when its owner returns to its design.
template <typename T>
class Property final : public PropertyOf<T> {
public:
    explicit Property(PropertyOwner& Owner, T Initial = {})
        : PropertyOf<T>(Owner, Initial)
        , Current(std::move(Initial))
    {
    }
    Property& operator=(const Property& Other) { return *this = Other.Current; }

    const T& Get() const override { return Current; }
    operator const T&() const { return Current; }

    Property& operator=(T Value)
    {
        Assign(std::move(Value));
        return *this;
    }

    // A view that edits on the user's behalf names itself as the source, so that it isn't told its own news.
    void Assign(T Value, const void* Source = nullptr)
    {
        if (Fit) Value = Fit(std::move(Value));
        if (Value == Current) return;
        Current = std::move(Value);
        View(Source);
        Changed();
    }

    void Restore(T Value) override
    {
        if (Value == Current) return;
        Current = std::move(Value);
        View(nullptr);
    }

    Event<const void*> View; // set by the attached view; the argument is the source
    Event<> Changed;         // set by the control that owns it
    std::function<T(T)> Fit; // brings a value into what the control can hold

private:
    T Current;
};

} // namespace velorix
