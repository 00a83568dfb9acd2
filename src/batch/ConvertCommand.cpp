// The unit converter without its screen.
#include "batch/ConvertCommand.h"

#include "base/Failure.h"
#include "batch/OutputFile.h"
#include "batch/Tell.h"
#include "tools/Converter.h"

#include <algorithm>

namespace velorix {
namespace {

void RequireListed(const std::string& Text, const std::vector<std::string>& List, const std::string& What)
{
    if (std::find(List.begin(), List.end(), Text) != List.end()) return;
    std::string Known;
    for (const std::string& Each : List) Known += "\n  " + Each;
    throw Failure("\"" + Text + "\" is no " + What + ". There are:" + Known);
}

} // namespace

Ending ConvertValue(const Conversion& Asked)
{
    RequireListed(Asked.Group, ConverterGroupTexts(), "group of units");
    for (const std::string& Each : {Asked.Source, Asked.Target})
        RequireListed(Each, ConverterUnitTexts(Asked.Group), "unit of the group \"" + Asked.Group + "\"");
    std::string Result;
    try {
        Result = ConvertUnits(Asked.Group, Asked.Source, Asked.Target, Asked.Value);
    } catch (const Failure&) { // an answer, no failure of the command
        Tell(ConversionFailed);
        return Ending::DidNotStand;
    }
    WriteOut(Result + "\n");
    return Ending::AllWell;
}

} // namespace velorix
