// The fixture of all tests here: every module at the program's start, and a record of the events raised.
#pragma once

#include "hydraulics/SampleProject.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace velorix {

class HydraulicsTest : public testing::Test {
protected:
    void SetUp() override { sample::Reset(); }

    // Normalises and solves, as an analysis does.
    void Solve()
    {
        Raised.clear();
        NormaliseInputs();
        SolveFlows(Tables::Filled,
                   {.DutyPointMissing =
                        [this] {
                            EXPECT_EQ(AnalysisAborted, 0);
                            Raised.push_back("no duty point in year " + std::to_string(AnalysisYear));
                        },
                    .Failed = [this] { Raised.push_back("failed"); }});
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
        EXPECT_EQ(Raised, std::vector<std::string>{"failed"});
    }

    std::vector<std::string> Raised; // by the last Solve, in order
};

} // namespace velorix
