// The fixture of all tests here: every module at the program's start, and a window system that records.
#pragma once

#include "hydraulics/SampleProject.h"
#include "platform/ScriptedPlatform.h"

#include <gtest/gtest.h>

namespace velorix {

class HydraulicsTest : public testing::Test {
protected:
    void SetUp() override
    {
        sample::Reset();
        InstallPlatform(&Windows);
    }

    void TearDown() override { InstallPlatform(nullptr); }

    // Normalises and solves, as an analysis does.
    static void Solve()
    {
        NormaliseInputs();
        SolveFlows();
    }

    void ExpectGradelineFailure() const
    {
        EXPECT_EQ(HydraulicsFailed, 1);
        ASSERT_EQ(Windows.Messages.size(), 1U);
        EXPECT_EQ(Windows.Messages[0].Title, "Velorix Error");
        EXPECT_EQ(Windows.Messages[0].Text,
                  "Could not determine the hydraulic gradeline. Please check input data");
    }

    ScriptedPlatform Windows;
};

} // namespace velorix
