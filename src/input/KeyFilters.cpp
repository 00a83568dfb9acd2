// The two number filters.
#include "input/KeyFilters.h"

#include "platform/Keys.h"

namespace velorix {

bool IsNumberKey(int Key)
{
    return (Key >= '0' && Key <= '9') || Key == '.' || Key == Keys::Backspace || Key == Keys::Enter;
}

bool IsCellNumberKey(int Key)
{
    return IsNumberKey(Key) || Key == Keys::Escape || (Key >= Keys::Left && Key <= Keys::Down);
}

} // namespace velorix
