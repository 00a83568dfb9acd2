// A started program without windows, and projects put into it.
#pragma once

#include "analysis/AnalyseProject.h"
#include "analysis/Program.h"
#include "input/OpenedRecord.h"
#include "input/Session.h"
#include "model/SampleRecords.h"
#include "model/WorkingSet.h"
#include "platform/ScriptedPlatform.h"
#include "screens/Analyse.h"
#include "screens/Lcc.h"
#include "screens/Results.h"

#include <gtest/gtest.h>

namespace velorix {

class AnalysisTest : public testing::Test {
protected:
    AnalysisTest()
    {
        InstallPlatform(&Windows);
        ResetProgram();
        StartSession();
    }

    void Analyse(const ProjectFields& Record)
    {
        Open(Record);
        Windows.Messages.clear();
        AnalyseProject(Tables::Filled);
    }

    std::string LastMessage() const { return Windows.Messages.empty() ? "" : Windows.Messages.back().Text; }

    ScriptedPlatform Windows;
};

} // namespace velorix
