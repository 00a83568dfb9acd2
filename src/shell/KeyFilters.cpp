// The two number filters.
#include "shell/KeyFilters.h"

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

void KeepNumberKey(int& Key)
{
    if (!IsNumberKey(Key)) Key = 0;
}

} // namespace velorix
