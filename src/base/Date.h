// Calendar dates and their texts.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velorix {

struct Date {
    int Year = 2001;
    int Month = 1; // 1 to 12
    int Day = 1;   // 1 to 31
    bool operator==(const Date&) const = default;
};

// "2005-03-03", the short date.
std::string ShortDate(Date Value);

// "3 March 2005", the format "d mmmm yyyy".
std::string LongDate(Date Value);

// The date of a text such as "2005-03-03" or "2005/3/3"; nothing when the text is no date of the calendar.
std::optional<Date> ParseDate(std::string_view Text);

} // namespace velorix
