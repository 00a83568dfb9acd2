// Runs the tests of the desktop on a display that isn't there.
#include "desktop/EventGuard.h"

#include <gmock/gmock.h>

int main(int ArgumentCount, char** Arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    velorix::EventGuard Program(ArgumentCount, Arguments);
    testing::InitGoogleMock(&ArgumentCount, Arguments);
    return RUN_ALL_TESTS();
}
