// Blanks around texts.
#pragma once

#include <string>
#include <string_view>

namespace velorix {

// Without the blanks at both sides, or at one. Only the blank (code 32) counts.
std::string_view Trimmed(std::string_view Text);
std::string_view TrimmedLeft(std::string_view Text);
std::string_view TrimmedRight(std::string_view Text);

inline std::string Trim(std::string_view Text)
{
    return std::string(Trimmed(Text));
}

} // namespace velorix
