// Runs the tests of the desktop on a display that isn't there.
#include "desktop/EventGuard.h"

#include <gmock/gmock.h>

// What the toolkit never frees, told to the sanitizer where there is one: sixteen bytes for each view of a
// PDF file.
extern "C" const char* __lsan_default_suppressions();
const char* __lsan_default_suppressions()
{
    return "leak:QScroller::grabGesture\n";
}

int main(int ArgumentCount, char** Arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    velorix::EventGuard Program(ArgumentCount, Arguments);
    testing::InitGoogleMock(&ArgumentCount, Arguments);
    return RUN_ALL_TESTS();
}
