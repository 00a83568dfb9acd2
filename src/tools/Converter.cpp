// Every conversion goes through the group's base unit.
#include "tools/Converter.h"

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "tools/ConverterTables.h"

#include <algorithm>
#include <cmath>

namespace velorix {
namespace {

const ConverterGroup* GroupNamed(std::string_view Text)
{
    const auto All = ConverterGroups();
    const auto Found = std::find_if(All.begin(), All.end(),
                                    [&](const ConverterGroup& Each) { return Each.Name == Trimmed(Text); });
    return Found == All.end() ? nullptr : &*Found;
}

// The factor of the unit whose key is the text; 0 when none is.
double FactorOf(const ConverterGroup* Group, std::string_view Text, double ConverterUnit::*Factor)
{
    if (!Group) return 0;
    for (const ConverterUnit& Each : Group->Units) {
        if (Each.Key != Trimmed(Text)) continue;
        if (std::isnan(Each.*Factor))
            throw ArithmeticFailure("overflow: the factor of \"" + Trim(Text) + "\" does not fit in 16 bits");
        return Each.*Factor;
    }
    return 0;
}

// Of finite numbers an overflow, a division by zero and an invalid operation all give what isn't finite.
double Finite(double Result)
{
    if (!std::isfinite(Result)) throw ArithmeticFailure("the result of the conversion is no number");
    return Result;
}

} // namespace

std::vector<std::string> ConverterGroupTexts()
{
    std::vector<std::string> Texts;
    for (const ConverterGroup& Each : ConverterGroups())
        if (Each.Listed) Texts.emplace_back(Each.Name);
    return Texts;
}

std::vector<std::string> ConverterUnitTexts(std::string_view Group)
{
    std::vector<std::string> Texts;
    if (const ConverterGroup* const Found = GroupNamed(Group); Found && Found->Listed)
        for (const ConverterUnit& Each : Found->Units) Texts.emplace_back(Each.ListText);
    return Texts;
}

std::string ConvertUnits(std::string_view Group, std::string_view Source, std::string_view Target,
                         std::string_view Value)
{
    const ConverterGroup* const Found = GroupNamed(Group);
    const double SourceFactor = FactorOf(Found, Source, &ConverterUnit::Factor);
    const double TargetFactor = FactorOf(Found, Target, &ConverterUnit::TargetFactor);
    const double InBaseUnits = Finite(ParseDouble(TrimmedCell(Value)) * SourceFactor);
    return GeneralText(Finite(InBaseUnits / TargetFactor));
}

} // namespace velorix
