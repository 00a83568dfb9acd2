// The machine's clock.
#pragma once

#include "base/Date.h"

namespace velorix {

Date TodayByTheClock(); // in local time

} // namespace velorix
