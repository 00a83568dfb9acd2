// The program's start, and the way back to it.
#include "analysis/Program.h"

#include "AnalysisTest.h"
#include "hydraulics/DutyPoint.h"
#include "hydraulics/Flows.h"

namespace velorix {
namespace {

using ProgramTest = AnalysisTest;

// Whatever ran before, a reset program answers as a new one does.
TEST_F(ProgramTest, ResetLeavesNothingBehind)
{
    Analyse(GravityRecord());
    const Single FirstFlow = Flow[1];
    Analyse(PumpCurveRecord(40));
    ResetProgram();
    StartSession();
    EXPECT_EQ(Flow[1], 0.0);
    EXPECT_EQ(SystemHeadByYear(CurvePoints, 1), 0.0);
    EXPECT_EQ(frmLCC.txtProject.Text.Get(), "");
    EXPECT_EQ(frmAnalyse.proBar.Value, 0);
    Analyse(GravityRecord());
    EXPECT_EQ(Flow[1], FirstFlow);
    EXPECT_EQ(wPumpDetails, 0);
}

} // namespace
} // namespace velorix
