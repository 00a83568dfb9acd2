// Which control holds which field of the working set.
#include "input/CommitFields.h"

#include "base/NumberText.h"
#include "base/Text.h"
#include "input/CommitChecks.h"
#include "input/HourPattern.h"
#include "model/WorkingSet.h"
#include "screens/Lcc.h"

#include <cctype>

namespace velorix {
namespace {

struct NumberField {
    TextBox* Box;
    Single* Target;
    Single Value{};
};

using NumberFields = std::vector<NumberField>;

void AddPumpFields(NumberFields& All)
{
    All.push_back({&frmLCC.txtPFlowrate, &wFlowrate});
    for (int Point = 0; Point < frmLCC.txtH.Count; ++Point) {
        All.push_back({&frmLCC.txtH[Point], &wPumpCurve[3 * Point + 1]});
        All.push_back({&frmLCC.txtQ[Point], &wPumpCurve[3 * Point + 2]});
        All.push_back({&frmLCC.txtEfficiency[Point], &wPumpCurve[3 * Point + 3]});
    }
    All.insert(All.end(), {{&frmLCC.txtPumpOperatingFlowrate, &wPumpOperatingFlowrate},
                           {&frmLCC.txtPumpEfficiency, &wPumpEfficiency},
                           {&frmLCC.txtPPRWL, &wTRWL},
                           {&frmLCC.txtPERWL, &wBRWL},
                           {&frmLCC.txtEnergyEscalation, &wEnergyEscalation},
                           {&frmLCC.txtSPeak, &wSPeak},
                           {&frmLCC.txtSStandard, &wSStandard},
                           {&frmLCC.txtSOffpeak, &wSOffpeak},
                           {&frmLCC.txtWPeak, &wWPeak},
                           {&frmLCC.txtWStandard, &wWStandard},
                           {&frmLCC.txtWOffpeak, &wWOffpeak}});
}

void AddGravityFields(NumberFields& All)
{
    All.insert(All.end(),
               {{&frmLCC.txtGFlowrate, &wFlowrate}, {&frmLCC.txtTRWL, &wTRWL}, {&frmLCC.txtBRWL, &wBRWL}});
}

void AddCommonFields(NumberFields& All)
{
    if (!frmLCC.optCopon.Value) All.push_back({&frmLCC.txtLiningThickness, &wLiningThickness});
    All.insert(All.end(), {{&frmLCC.txtKsNew, &wKsNew},
                           {&frmLCC.txtKsOld, &wKsOld},
                           {&frmLCC.txtKsOldYears, &wKsOldYears},
                           {&frmLCC.txtDiscountRate, &wDiscountRate},
                           {&frmLCC.txtEscalation, &wEscalation},
                           {&frmLCC.txtMechanical, &wMechanical},
                           {&frmLCC.txtElectrical, &wElectrical},
                           {&frmLCC.txtSupervision, &wSupervision},
                           {&frmLCC.txtWaterSales, &wWaterSales},
                           {&frmLCC.txtWaterIncrease, &wWaterIncrease}});
}

// A box is known to the user by its hint: "Enter the fixed demand" asks for the "Fixed demand".
std::string NameOf(const TextBox& Box)
{
    const std::string Request = "Enter the ";
    std::string Name = Box.ToolTip;
    if (Name.starts_with(Request)) Name.erase(0, Request.size());
    if (!Name.empty()) Name[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(Name[0])));
    return Name;
}

// All of them or none.
bool ReadNumbers()
{
    NumberFields All;
    if (IsPumping())
        AddPumpFields(All);
    else
        AddGravityFields(All);
    AddCommonFields(All);

    for (NumberField& Each : All) {
        try {
            Each.Value = ParseSingle(Each.Box->Text.Get());
        } catch (const Failure& Problem) {
            PointOut(*Each.Box, NameOf(*Each.Box) + ": " + Problem.what());
            return false;
        }
    }
    for (const NumberField& Each : All) *Each.Target = Each.Value;
    return true;
}

void ReadBar(const ScrollBar& Bar, std::int16_t& Value)
{
    Value = static_cast<std::int16_t>(Bar.Value.Get());
}

void ReadGeneralPage()
{
    wProject = Trim(frmLCC.txtProject.Text.Get());
    wDesigner = Trim(frmLCC.txtDesigner.Text.Get());
    wDescription = Trim(frmLCC.txtDescription.Text.Get());
    wDate = ShortDate(frmLCC.dtpDate.Value);
    ReadBar(frmLCC.hscLife, wLife);
    ReadBar(frmLCC.hscBaseYear, wBaseYear);
    ReadBar(frmLCC.hscSupplyStart, wSupplyStart);
    // Of the two selectors over this field the gravity system's counts; the other stores its own changes.
    ReadUnit(frmLCC.comVaryingDemandUnits, wDemandUnits);
}

void ReadGravitySystem()
{
    ReadUnit(frmLCC.comGFlowrateUnits, wFlowrateUnits);
    ReadUnit(frmLCC.comTRWLUnits, wTRWLUnits);
    ReadUnit(frmLCC.comBRWLUnits, wBRWLUnits);
    wEnergyEscalation = 0.0;
}

void ReadPumpingSystem()
{
    ReadUnit(frmLCC.comPFlowrateUnits, wFlowrateUnits);
    ReadUnit(frmLCC.comFlowUnits, wFlowUnits);
    ReadUnit(frmLCC.comHeadUnits, wHeadUnits);
    ReadUnit(frmLCC.comPumpOperatingFlowrateUnits, wPumpOperatingFlowrateUnits);
    wPumptype = frmLCC.txtPumptype.Text;
    wPumpDescription = frmLCC.txtPumpDescription.Text;
    ReadUnit(frmLCC.comPPRWLUnits, wTRWLUnits);
    ReadUnit(frmLCC.comPERWLUnits, wBRWLUnits);
    ReadBar(frmLCC.fsbSummer, wSummer);
    ReadBar(frmLCC.fsbPumpingHours, wPumpingHours);
    ReadHourPattern();
}

void ReadProfilePage()
{
    if (frmLCC.optCopon.Value) {
        wLiningType = 0;
        wLiningThickness = 0.0;
        wLiningThicknessUnits = 0;
    } else {
        wLiningType = 1;
        ReadUnit(frmLCC.comLiningThicknessUnits, wLiningThicknessUnits);
    }
    ReadUnit(frmLCC.comKsNewUnits, wKsNewUnits);
    ReadUnit(frmLCC.comKsOldUnits, wKsOldUnits);
    ReadUnit(frmLCC.comDiameterUnits, wDiameterUnits);
    ReadUnit(frmLCC.comLengthUnits, wLengthUnits);
    ReadUnit(frmLCC.comElevationUnits, wElevationUnits);
    ReadUnit(frmLCC.comWallThicknessUnits, wWallThicknessUnits);
}

void ReadRatesPage()
{
    ReadBar(frmLCC.hscMMechanical, wMMechanical);
    ReadBar(frmLCC.hscMElectrical, wMElectrical);
    ReadBar(frmLCC.hscMPipeline, wMPipeline);
    ReadUnit(frmLCC.comWaterSalesUnits, wWaterSalesUnits);
}

} // namespace

void ReadUnit(const ComboBox& Selector, std::int16_t& Index)
{
    if (Selector.ListIndex >= 0) Index = static_cast<std::int16_t>(Selector.ListIndex.Get());
}

void ReadOptions()
{
    if (IsPumping()) {
        wVaryingDemand = frmLCC.optPumpFixed.Value ? 0 : 1;
        wPumpDetails = frmLCC.optPumpDetails.Value ? 1 : 0;
    } else {
        wVaryingDemand = frmLCC.optGSpecifiedFlowrate.Value ? 0 : 1;
    }
}

bool ReadFields()
{
    if (!ReadNumbers()) return false;
    ReadGeneralPage();
    if (IsPumping())
        ReadPumpingSystem();
    else
        ReadGravitySystem();
    ReadProfilePage();
    ReadRatesPage();
    return true;
}

} // namespace velorix
