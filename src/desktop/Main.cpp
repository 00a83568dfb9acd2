// The desktop program: windows and views around the shell.
#include "desktop/DialogLayouts.h"
#include "desktop/EventGuard.h"
#include "desktop/Icons.h"
#include "desktop/MainWindowLayout.h"
#include "desktop/MissingDisplay.h"
#include "desktop/QtPlatform.h"
#include "desktop/Style.h"
#include "desktop/Views.h"
#include "input/FileCommands.h"
#include "shell/Shell.h"

#include <optional>

int main(int ArgumentCount, char** Arguments)
{
    using namespace velorix;

    std::optional<MissingDisplay> Start(std::in_place);
    EventGuard Program(ArgumentCount, Arguments);
    Start.reset();
    EventGuard::setApplicationName("Velorix");
    EventGuard::setQuitOnLastWindowClosed(false); // between the opening dialogs no window stands
    ApplyStyle(Program);
    EventGuard::setWindowIcon(DrawnIcon("program"));

    QtPlatform Windows;
    InstallPlatform(&Windows);
    RegisterDialogs(Windows);
    ConnectScreens();
    MainWindow Window;
    Window.FileDropped = [](const std::filesystem::path& Path) { Guarded([&] { OpenProjectFile(Path); }); };
    for (Screen* Each : AllScreens()) RunTimers(*Each);

    bool Started = false;
    Guarded([&] { Started = StartProgram(); });
    return Started && !Windows.HasEnded() ? EventGuard::exec() : 0;
}
