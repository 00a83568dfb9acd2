// Blanks around texts.
#include "base/Text.h"

#include <algorithm>

namespace velorix {

std::string_view TrimmedLeft(std::string_view Text)
{
    Text.remove_prefix(std::min(Text.find_first_not_of(' '), Text.size()));
    return Text;
}

std::string_view TrimmedRight(std::string_view Text)
{
    return Text.substr(0, Text.find_last_not_of(' ') + 1);
}

std::string_view Trimmed(std::string_view Text)
{
    return TrimmedRight(TrimmedLeft(Text));
}

} // namespace velorix
