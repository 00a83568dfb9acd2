// The main window as the program starts with it, every screen connected.
#pragma once

#include "analysis/Program.h"
#include "desktop/DesktopTest.h"
#include "desktop/MainWindowLayout.h"
#include "desktop/Style.h"
#include "input/Session.h"
#include "model/WorkingSet.h"
#include "screens/Lcc.h"
#include "screens/MainWindow.h"
#include "screens/Results.h"
#include "shell/MainCommands.h"
#include "shell/Shell.h"

namespace velorix {

class MainWindowTest : public DesktopTest {
protected:
    MainWindowTest()
    {
        ApplyStyle(*static_cast<QApplication*>(QApplication::instance()));
        ConnectScreens();
        Main = std::make_unique<MainWindow>();
        MainWindowLoads();
        StartSession();
        Main->resize(800, 600);
        Main->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(Main.get()));
    }

    ~MainWindowTest() override
    {
        UnloadScreens();
        ResetSession();
    }

    // A new project of that kind.
    static void Start(int SystemType)
    {
        wSystemType = static_cast<std::int16_t>(SystemType);
        NewProjectDefaults();
        QCoreApplication::processEvents();
    }

    static void ShowResults()
    {
        frmLCC.Visible = false;
        frmResults.LoadHidden();
        frmResults.Visible = true;
    }

    std::unique_ptr<MainWindow> Main;
};

} // namespace velorix
