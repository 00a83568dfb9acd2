// Every property of every screen, after a reset of the program.
#include "ShellTest.h"

#include "model/ProjectRecord.h"
#include "platform/DrawingSurface.h"
#include "platform/Grid.h"
#include "results/PlotState.h"
#include "roughness/RoughnessStores.h"

#include <functional>
#include <tuple>
#include <typeinfo>

namespace velorix {
namespace {

// A property, and what it held before any test had run.
struct Noted {
    std::string Name;
    AnyProperty* Property;
    std::function<bool()> HoldsItsStart;
};

template <typename T>
T Other(T Value)
{
    if constexpr (std::is_arithmetic_v<T>)
        Value = static_cast<T>(!Value);
    else if constexpr (std::is_same_v<T, std::string>)
        Value += "x";
    else if constexpr (std::is_same_v<T, Date>)
        ++Value.Year;
    else if constexpr (std::is_same_v<T, Color>)
        ++Value.Value;
    else if constexpr (std::is_same_v<T, Pen>)
        ++Value.Width;
    else if constexpr (std::is_same_v<T, DisplayList>)
        Value.Items.emplace_back(BoxItem{});
    else
        Value.emplace_back();
    return Value;
}

// Does What with the property as one of its type. False for a type that isn't told here.
template <typename Action>
bool WithItsType(AnyProperty& Target, const Action& What)
{
    const auto Try = [&What](auto* Typed) {
        if (Typed) What(*Typed);
        return Typed != nullptr;
    };
    const auto TryAll = [&]<typename... T>(std::tuple<T...>*) {
        return (Try(dynamic_cast<PropertyOf<T>*>(&Target)) || ...);
    };
    using Types = std::tuple<bool, int, double, std::string, Date, Color, Pen, DisplayList, std::vector<bool>,
                             std::vector<int>, std::vector<std::string>, std::vector<std::vector<GridCell>>>;
    return TryAll(static_cast<Types*>(nullptr));
}

class FreshStart : public testing::Environment {
public:
    void SetUp() override
    {
        for (const Screen* Each : AllScreens()) {
            Note(*Each, Each->Name);
            for (const Control* Member : Each->Controls)
                Note(*Member, Each->Name + ": " + typeid(*Member).name() + " " + Member->ToolTip);
        }
    }

    std::vector<Noted> Properties;

private:
    void Note(const PropertyOwner& Owner, const std::string& Name)
    {
        for (AnyProperty* Each : Owner.Properties) {
            std::function<bool()> HoldsItsStart;
            WithItsType(*Each, [&](auto& Typed) {
                HoldsItsStart = [&Typed, Start = Typed.Get()] { return Typed.Get() == Start; };
            });
            Properties.push_back({Name, Each, HoldsItsStart});
        }
    }
};
const auto* const Fresh = static_cast<FreshStart*>(testing::AddGlobalTestEnvironment(new FreshStart));

// But for the results, which the tests of the analysis look at.
TEST_F(ShellTest, AResetPutsEveryVariableBackToAFreshStart)
{
    std::int16_t* const States[] = {&ProjectOpen, &NewProject,    &Saved,          &Analysed, &SaveAs,
                                    &Committing,  &HideGradeline, &HideComponents, &PlotYear, &ViewState};
    for (std::int16_t* Each : States) *Each = 9;
    FileName = "x";
    RedrawProfileView = true;
    PointedOut = &frmLCC.txtKsNew;
    NodeCount = 9;
    Chainage.Fill(9);
    GroundLevel.Fill(9);
    Readings[8][AtPressure][5] = ScenarioFlow[8][TheFlow] = CurrentScenario = 9;
    StretchEnd[8][4] = 9;
    ForEachWorkingField([](const FieldRule&, auto& Stored, auto& Working) {
        if constexpr (requires { Stored.Bytes; })
            Stored.Bytes.fill('x'), Working = "x";
        else if constexpr (requires { Working.Fill(9); })
            Stored.Fill(9), Working.Fill(9);
        else
            Stored = Working = 9;
    });
    ResetProgram();
    for (const std::int16_t* Each : States)
        EXPECT_EQ(*Each, Each == &PlotYear || Each == &ViewState ? 1 : 0) << Each - States[0];
    EXPECT_TRUE(FileName.empty() && !RedrawProfileView && !PointedOut && NodeCount == 0);
    EXPECT_TRUE(Chainage == ByRow() && GroundLevel == ByRow());
    EXPECT_EQ(Readings[8][AtPressure][5] + ScenarioFlow[8][TheFlow] + StretchEnd[8][4], 0);
    EXPECT_EQ(CurrentScenario, 1);
    EXPECT_EQ(ToImage(ProjectRecord), ToImage(ProjectFields()));
    ForEachWorkingField([](const FieldRule& Rule, const auto&, const auto& Working) {
        EXPECT_TRUE(Working == std::decay_t<decltype(Working)>()) << Rule.Name;
    });
}

// Twice: after what a started program has changed, and after changes of all there is.
TEST_F(ShellTest, AResetPutsEveryPropertyOfEveryScreenBackToAFreshStart)
{
    ASSERT_GT(Fresh->Properties.size(), 1000U);
    for (int Round = 0; Round < 2; ++Round) {
        ResetProgram();
        for (const auto& [Name, Property, HoldsItsStart] : Fresh->Properties)
            EXPECT_TRUE(HoldsItsStart && HoldsItsStart()) << Name;
        for (const auto& [Name, Property, HoldsItsStart] : Fresh->Properties) {
            ASSERT_TRUE(WithItsType(*Property, [](auto& Typed) { Typed.Restore(Other(Typed.Get())); }))
                << Name;
            EXPECT_FALSE(HoldsItsStart()) << Name;
        }
    }
    ResetProgram();
}

} // namespace
} // namespace velorix
