// What lets a control or a screen return to the state it was designed in: its properties, which register
// as they are built.
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace velorix {

// A property that can be put back, whatever its type.
class AnyProperty {
public:
    virtual ~AnyProperty() = default;

    // Notes the present value as the one that BackToDesign returns to. Without it that is the first value.
    virtual void NoteDesign() = 0;

    // Takes the value noted as the design: the view is told, no event is raised.
    virtual void BackToDesign() = 0;
};

// The owner of properties: a control, or a screen. Properties stand in the order of their registration.
struct PropertyOwner {
    PropertyOwner() = default;
    PropertyOwner(const PropertyOwner&) = delete;
    PropertyOwner& operator=(const PropertyOwner&) = delete;

    std::vector<AnyProperty*> Properties;

    void NoteDesign()
    {
        for (AnyProperty* Each : Properties) Each->NoteDesign();
    }
    void BackToDesign()
    {
        for (AnyProperty* Each : Properties) Each->BackToDesign();
        if (DesignIsBack) DesignIsBack();
    }

protected:
    ~PropertyOwner() = default;

    // Tells the view of an owner whose properties don't tell it themselves.
    std::function<void()> DesignIsBack;

    // Registers members that are plain values, which tell nobody of a change.
    template <typename... T>
    void Keep(T&... Members);

private:
    std::vector<std::unique_ptr<AnyProperty>> Kept;
};

// A property of one type, wherever its value lies.
template <typename T>
class PropertyOf : public AnyProperty {
public:
    PropertyOf(const PropertyOf&) = delete;

    virtual const T& Get() const = 0;

    // Takes a value as BackToDesign does.
    virtual void Restore(T Value) = 0;

    void NoteDesign() override { Design = Get(); }
    void BackToDesign() override { Restore(Design); }

protected:
    PropertyOf(PropertyOwner& Owner, T Initial)
        : Design(std::move(Initial))
    {
        Owner.Properties.push_back(this);
    }

private:
    T Design;
};

template <typename T>
class KeptMember final : public PropertyOf<T> {
public:
    KeptMember(PropertyOwner& Owner, T& Kept)
        : PropertyOf<T>(Owner, Kept)
        , Member(Kept)
    {
    }

    const T& Get() const override { return Member; }
    void Restore(T Value) override { Member = std::move(Value); }

private:
    T& Member;
};

template <typename... T>
void PropertyOwner::Keep(T&... Members)
{
    (Kept.push_back(std::make_unique<KeptMember<T>>(*this, Members)), ...);
}

} // namespace velorix
