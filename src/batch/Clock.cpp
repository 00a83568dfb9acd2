// The date of the system's time.
#include "batch/Clock.h"

#include <ctime>

namespace velorix {

Date TodayByTheClock()
{
    const std::time_t Now = std::time(nullptr);
    std::tm Parts{};
    ::localtime_r(&Now, &Parts);
    return {Parts.tm_year + 1900, Parts.tm_mon + 1, Parts.tm_mday};
}

} // namespace velorix
