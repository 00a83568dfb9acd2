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
    void Solve()
    {
        Windows.Messages.clear();
        NormaliseInputs();
        SolveFlows();
    }

public:
    // A row as the normalising leaves it, with its friction factor in Year. Behind it stands the ground of a
    // longer profile before, which must take no part.
    static void AddRow(double Elevation, double Length, double Diameter, double K, double Factor)
    {
        sample::AddNode({Elevation, 0, Diameter, K});
        InternalDiameter[NodeCount] = Diameter;
        SectionLength[NodeCount] = Length;
        Lambda(NodeCount, Year) = Factor;
        wElevation[NodeCount + 1] = 5000;
    }

    static constexpr int Year = 3; // of what is worked for one year alone

protected:
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
