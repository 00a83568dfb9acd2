// A connected program without windows, past its opening dialogs.
#pragma once

#include "analysis/Program.h"
#include "input/OpenedRecord.h"
#include "input/Session.h"
#include "model/WorkingSet.h"
#include "platform/ScriptedPlatform.h"
#include "screens/Analyse.h"
#include "screens/Dialogs.h"
#include "screens/DutyPointScreen.h"
#include "screens/Lcc.h"
#include "screens/MainWindow.h"
#include "screens/Results.h"
#include "shell/Shell.h"

#include <gtest/gtest.h>

#include <set>

namespace velorix {

class ShellTest : public testing::Test {
protected:
    ShellTest()
    {
        InstallPlatform(&Windows);
        ResetProgram();
        ConnectScreens();
        Windows.ModalScripts["frmAgree"] = [] { frmAgree.sscAccept.Click(); };
        Windows.ModalScripts["frmIntro"] = [] { Fire(frmIntro.tmrIntro); };
        StartProgram();
        Windows.Messages.clear();
        Windows.ModalScreens.clear();
    }

    void Analyse(const ProjectFields& Record)
    {
        Open(Record);
        Windows.ModalScripts["frmAnalyse"] = [] {
            Fire(frmAnalyse.tmrStopMatrix);
            frmAnalyse.sscAnalyse.Click();
            frmAnalyse.sscAnalyse.Click();
        };
        MDIProject.mnuAnalyse.Click();
        ASSERT_TRUE(frmResults.Visible);
    }

    // The screens that stand in the main window or over it, by their names.
    static std::set<std::string> Shown()
    {
        std::set<std::string> Names;
        for (const Screen* Each : AllScreens())
            if (Each->Visible && Each != &MDIProject) Names.insert(Each->Name);
        return Names;
    }

    std::string LastMessage() const { return Windows.Messages.empty() ? "" : Windows.Messages.back().Text; }

    ScriptedPlatform Windows;
};

} // namespace velorix
