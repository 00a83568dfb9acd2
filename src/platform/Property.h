// The visible fields of a control, and the events that a control raises.
#pragma once

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

// A field that reads like a plain value and, when it takes a new value, tells first the attached view and
// then the control's own event. Taking the value that it holds already tells nobody.
template <typename T>
class Property {
public:
    Property() = default;
    explicit Property(T Initial)
        : Current(std::move(Initial))
        , Design(Current)
    {
    }
    Property(const Property&) = delete;
    Property& operator=(const Property& Other) { return *this = Other.Current; }

    const T& Get() const { return Current; }
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

    // Notes the present value as the one that BackToDesign returns to. Without it that is the first value.
    void NoteDesign() { Design = Current; }

    // Takes the value noted as the design: the view is told, no event is raised.
    void BackToDesign() { Restore(Design); }

    // Takes a value as BackToDesign does.
    void Restore(T Value)
    {
        if (Value == Current) return;
        Current = std::move(Value);
        View(nullptr);
    }

    Event<const void*> View; // set by the attached view; the argument is the source
    Event<> Changed;         // set by the control that owns the field
    std::function<T(T)> Fit; // brings a value into what the control can hold

private:
    T Current{};
    T Design{};
};

} // namespace velorix
