// Date texts.
#include "base/Date.h"

#include "base/Text.h"

#include <array>
#include <charconv>
#include <chrono>

namespace velorix {
namespace {

constexpr std::array<const char*, 12> MonthNames = {"January",   "February", "March",    "April",
                                                    "May",       "June",     "July",     "August",
                                                    "September", "October",  "November", "December"};

std::string Padded(int Value, std::size_t Width)
{
    std::string Digits = std::to_string(Value);
    if (Digits.size() < Width) Digits.insert(0, Width - Digits.size(), '0');
    return Digits;
}

// Takes a run of digits off the front of the text.
std::optional<int> TakeNumber(std::string_view& Text)
{
    int Value = 0;
    const auto Read = std::from_chars(Text.data(), Text.data() + Text.size(), Value);
    if (Read.ec != std::errc() || Value < 0) return std::nullopt;
    Text.remove_prefix(static_cast<std::size_t>(Read.ptr - Text.data()));
    return Value;
}

bool TakeSeparator(std::string_view& Text)
{
    if (Text.empty() || (Text.front() != '-' && Text.front() != '/')) return false;
    Text.remove_prefix(1);
    return true;
}

} // namespace

std::string ShortDate(Date Value)
{
    return Padded(Value.Year, 4) + "-" + Padded(Value.Month, 2) + "-" + Padded(Value.Day, 2);
}

std::string LongDate(Date Value)
{
    return std::to_string(Value.Day) + " " + MonthNames.at(static_cast<std::size_t>(Value.Month - 1)) + " " +
           Padded(Value.Year, 4);
}

std::optional<Date> ParseDate(std::string_view Text)
{
    Text = Trimmed(Text);
    const std::optional<int> Year = TakeNumber(Text);
    if (!Year || !TakeSeparator(Text)) return std::nullopt;
    const std::optional<int> Month = TakeNumber(Text);
    if (!Month || !TakeSeparator(Text)) return std::nullopt;
    const std::optional<int> Day = TakeNumber(Text);
    if (!Day || !Text.empty() || *Year > 9999 || *Month > 12 || *Day > 31) return std::nullopt;

    const std::chrono::year_month_day Found{std::chrono::year(*Year),
                                            std::chrono::month(static_cast<unsigned>(*Month)),
                                            std::chrono::day(static_cast<unsigned>(*Day))};
    if (!Found.ok()) return std::nullopt;
    return Date{*Year, *Month, *Day};
}

} // namespace velorix
