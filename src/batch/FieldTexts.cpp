// From the lists of the model and the captions of the options.
#include "batch/FieldTexts.h"

#include "base/Text.h"
#include "model/Components.h"
#include "screens/Dialogs.h"
#include "screens/Lcc.h"

#include <algorithm>
#include <initializer_list>

namespace velorix {
namespace {

using Texts = std::vector<std::string>;

// Without the mark of the letter that chooses the option.
Texts Captions(std::initializer_list<const OptionButton*> Options)
{
    Texts Found;
    for (const OptionButton* Each : Options) {
        std::string Caption = Each->Caption;
        Caption.erase(std::remove(Caption.begin(), Caption.end(), '&'), Caption.end());
        Found.push_back(Caption);
    }
    return Found;
}

Texts Components()
{
    Texts Names;
    for (int Entry = 1; Entry <= NamedComponents; ++Entry) Names.push_back(Trim(ComponentTable[Entry]));
    return Names;
}

Texts RateClasses()
{
    return {RateClassNames.begin(), RateClassNames.end()};
}

struct Choice {
    const FieldRule* Field;
    Texts (*Find)();
};

// Both kinds of system have the same captions for their demand.
constexpr Choice Choices[] = {
    {&Fields::SystemType,
     [] {
         return Captions({&frmLCCType.optGravity, &frmLCCType.optPumping});
     }},
    {&Fields::Units,
     [] {
         return Captions({&frmPref.optMetric, &frmPref.optUS});
     }},
    {&Fields::Currency,
     [] {
         return Captions({&frmPref.optRand, &frmPref.optDollars});
     }},
    {&Fields::VaryingDemand,
     [] {
         return Captions({&frmLCC.optPumpFixed, &frmLCC.optPumpVarying});
     }},
    {&Fields::LiningType,
     [] {
         return Captions({&frmLCC.optCopon, &frmLCC.optMortar});
     }},
    {&Fields::PumpDetails,
     [] {
         return Captions({&frmLCC.optFlowrate, &frmLCC.optPumpDetails});
     }},
    {&Fields::NodeDesc, Components},
    {&Fields::SummerHour, RateClasses},
    {&Fields::WinterHour, RateClasses},
};

} // namespace

std::vector<std::string> TextsOf(const FieldRule& Field)
{
    if (!Field.Allowed.Units.empty()) return NamesOf(Field.Allowed.Units);
    for (const Choice& Each : Choices)
        if (Each.Field == &Field) return Each.Find();
    return {};
}

} // namespace velorix
