// The table of the inputs, page by page. What breaks the regularity stands as an input's own function.
#include "input/InputFields.h"

#include "base/NumberText.h"
#include "base/Text.h"
#include "input/CostTables.h"
#include "input/HourPattern.h"
#include "input/InputScreen.h"
#include "input/ProfileTable.h"
#include "model/WorkingSet.h"

#include <algorithm>

namespace velorix {
namespace {

using FieldList = std::vector<InputField>;

// --- when ---

bool Yes()
{
    return true;
}

bool No()
{
    return false;
}

bool IsGravity()
{
    return !IsPumping();
}

bool IsLined()
{
    return !frmLCC.optCopon.Value;
}

constexpr Use Always = {Yes, Yes};
constexpr Use Gravity = {IsGravity, IsGravity};
constexpr Use Pumping = {IsPumping, IsPumping};
constexpr Use PumpingShown = {IsPumping, No}; // a commit leaves it alone
constexpr Use Lined = {Yes, IsLined};
constexpr Use Curve = {Yes, IsPumping}; // a gravity system shows the curve that it keeps

// --- the kinds of inputs ---

// The box is read whether or not its option is chosen.
InputField Number(Use When, TextBox& Box, Single& Stored, Request Asked,
                  const KeyFilter* Filter = &NumberKeys)
{
    return {.When = When,
            .Show = [&] { Box.Text = GeneralText(Stored); },
            .Take = [&] { Stored = ParseSingle(Box.Text.Get()); },
            .Asked = std::move(Asked),
            .Box = &Box,
            .Number = &Stored,
            .Filter = Filter};
}

InputField Text(Use When, TextBox& Box, std::string& Stored, Request Asked = {})
{
    return {.When = When,
            .Show = [&] { Box.Text = Stored; },
            .Take = [&] { Stored = Trim(Box.Text.Get()); },
            .Asked = std::move(Asked),
            .Box = &Box};
}

InputField UnitOf(Use When, ComboBox& Selector, std::int16_t& Index)
{
    return {.When = When,
            .Show = [&] { Selector.ListIndex = Index; },
            .Take = [&] { TakeUnit(Selector, Index); }};
}

std::string PlainCaption(int Value)
{
    return std::to_string(Value);
}

// The working set takes what the bar can hold, ahead of the bar: a bar that shows what is stored already
// hasn't been moved by the user.
InputField BarOver(Use When, ScrollBar& Bar, Label& Reading, std::int16_t& Stored,
                   std::string (*Caption)(int) = PlainCaption, Grid* Refilled = nullptr)
{
    const auto Take = [&] { Stored = static_cast<std::int16_t>(Bar.Value.Get()); };
    return {.When = When,
            .Show =
                [&Bar, &Reading, &Stored, Caption] {
                    Stored = static_cast<std::int16_t>(Bar.Value.Fit(Stored));
                    Reading.Caption = Caption(Stored);
                    Bar.Value = Stored;
                },
            .Take = Take,
            .Bar = &Bar,
            .BarCaption = Caption,
            .Moved =
                [&Bar, &Reading, &Stored, Caption, Take, Refilled] {
                    Reading.Caption = Caption(Bar.Value);
                    const bool ByTheUser = Stored != Bar.Value;
                    Take();
                    if (ByTheUser && Refilled) FillDemandGrid(*Refilled);
                },
            .Refilled = Refilled};
}

// Cells are read while the boxes are asked for; a failed check further on keeps what they held.
InputField Table(Use When, void (*Fill)(), int Place, void (*Read)(), OptionButton* Under = nullptr)
{
    return {.When = When, .Show = Fill, .Asked = {Place, {}, Under, Read}};
}

InputField Own(Use When, void (*Show)(), void (*Take)() = nullptr)
{
    return {.When = When, .Show = Show, .Take = Take};
}

// --- inputs of their own ---

// A text that is no date leaves the picker as it was.
void ShowDate()
{
    if (const std::optional<Date> Found = ParseDate(wDate)) frmLCC.dtpDate.Value = *Found;
}

void TakeDate()
{
    wDate = ShortDate(frmLCC.dtpDate.Value);
}

// A project needs no description, but its box is never left empty.
void BlankDescription()
{
    if (Trimmed(frmLCC.txtDescription.Text.Get()).empty()) frmLCC.txtDescription.Text = " ";
}

void ShowPumpOptions()
{
    (wVaryingDemand == 1 ? frmLCC.optPumpVarying : frmLCC.optPumpFixed).Value = true;
    (wPumpDetails != 0 ? frmLCC.optPumpDetails : frmLCC.optFlowrate).Value = true;
    for (Frame* Each : {&frmLCC.fraPumpOption, &frmLCC.FraPumpingOption, &frmLCC.fraPumpReservoir})
        Each->Visible = true;
    TakeOptions();
    ShowPumpDemandOption();
    ShowPumpingOption();
}

void ShowGravityOptions()
{
    (wVaryingDemand == 1 ? frmLCC.optGCalculatedFlowrate : frmLCC.optGSpecifiedFlowrate).Value = true;
    for (Frame* Each : {&frmLCC.fraGravityOption, &frmLCC.fraGravityFlowrate, &frmLCC.fraVaryingDemand,
                        &frmLCC.fraGravityReservoirs})
        Each->Visible = true;
    TakeOptions();
    ShowGravityDemandOption();
}

void ShowLining()
{
    (wLiningType == 1 ? frmLCC.optMortar : frmLCC.optCopon).Value = true;
    ShowLiningOption();
}

// Unlike the other boxes that an option puts out of use, those of the lining aren't read then.
void TakeLining()
{
    wLiningType = IsLined() ? 1 : 0;
    if (IsLined()) return;
    wLiningThickness = 0.0;
    wLiningThicknessUnits = 0;
}

// Texts that the record trims, not the working set.
InputField Untrimmed(Use When, TextBox& Box, std::string& Stored)
{
    InputField Field = Text(When, Box, Stored);
    Field.Take = [&] { Stored = Box.Text; };
    return Field;
}

// --- the pages ---

FieldList GeneralFields()
{
    return {
        Text(Always, frmLCC.txtProject, wProject, {1, "Enter the project name !"}),
        Text(Always, frmLCC.txtDesigner, wDesigner, {2, "Enter the designer !"}),
        Own(Always, ShowDate, TakeDate),
        Text(Always, frmLCC.txtDescription, wDescription, {.Place = 3, .Instead = BlankDescription}),
        BarOver(Always, frmLCC.hscLife, frmLCC.lblLife, wLife, PlainCaption, &frmLCC.msgDemand),
        BarOver(Always, frmLCC.hscBaseYear, frmLCC.lblBaseYear, wBaseYear),
        BarOver(Always, frmLCC.hscSupplyStart, frmLCC.lblSupplyStart, wSupplyStart, PlainCaption,
                &frmLCC.msgDemand),
    };
}

FieldList PumpingFields()
{
    return {
        Own(Pumping, ShowPumpOptions),
        Number(Pumping, frmLCC.txtPumpOperatingFlowrate, wPumpOperatingFlowrate,
               {11, "Enter the operating Flow rate (must be greater than zero) !", &frmLCC.optFlowrate}),
        Number(Pumping, frmLCC.txtPPRWL, wTRWL, {6, "Enter the pumpstation reservoir water level !"}),
        Number(Pumping, frmLCC.txtPERWL, wBRWL, {7, "Enter the end reservoir water level !"}),
        UnitOf(Pumping, frmLCC.comPPRWLUnits, wTRWLUnits),
        UnitOf(Pumping, frmLCC.comPERWLUnits, wBRWLUnits),
        // The reports read the gravity system's selectors of the levels for both kinds.
        UnitOf(PumpingShown, frmLCC.comTRWLUnits, wTRWLUnits),
        UnitOf(PumpingShown, frmLCC.comBRWLUnits, wBRWLUnits),
        UnitOf(Pumping, frmLCC.comPFlowrateUnits, wFlowrateUnits),
        // Of the two selectors over this field the gravity system's counts, here too.
        UnitOf(Pumping, frmLCC.comVaryingDemandUnits, wDemandUnits),
        UnitOf(PumpingShown, frmLCC.comPumpVaryingDemandUnits, wDemandUnits),
        UnitOf(Pumping, frmLCC.comPumpOperatingFlowrateUnits, wPumpOperatingFlowrateUnits),
        UnitOf(Pumping, frmLCC.comHeadUnits, wHeadUnits),
        UnitOf(Pumping, frmLCC.comFlowUnits, wFlowUnits),
        Table(
            Pumping, [] { FillDemandGrid(frmLCC.msgPumpDemand); }, 5, ReadPumpDemandGrid,
            &frmLCC.optPumpVarying),
        Number(Pumping, frmLCC.txtPFlowrate, wFlowrate,
               {4, "Enter the fixed demand (must be greater than zero) !", &frmLCC.optPumpFixed}),
        Number(Pumping, frmLCC.txtPumpEfficiency, wPumpEfficiency,
               {12, "Enter the pump efficiency at the operating point(must be greater than zero) !",
                &frmLCC.optFlowrate}),
        Untrimmed(Pumping, frmLCC.txtPumptype, wPumptype),
        Untrimmed(Pumping, frmLCC.txtPumpDescription, wPumpDescription),
    };
}

FieldList GravityFields()
{
    return {
        Own(Gravity, ShowGravityOptions, [] { wEnergyEscalation = 0.0; }),
        Number(Gravity, frmLCC.txtGFlowrate, wFlowrate,
               {13, "Enter the fixed demand (must be greater than zero) !", &frmLCC.optGSpecifiedFlowrate},
               nullptr),
        Number(Gravity, frmLCC.txtTRWL, wTRWL, {15, "Enter the top reservoir water level !"}),
        Number(Gravity, frmLCC.txtBRWL, wBRWL, {16, "Enter the bottom reservoir water level !"}),
        UnitOf(Gravity, frmLCC.comGFlowrateUnits, wFlowrateUnits),
        UnitOf(Gravity, frmLCC.comTRWLUnits, wTRWLUnits),
        UnitOf(Gravity, frmLCC.comBRWLUnits, wBRWLUnits),
        UnitOf(Gravity, frmLCC.comVaryingDemandUnits, wDemandUnits),
        Table(
            Gravity, [] { FillDemandGrid(frmLCC.msgDemand); }, 14, ReadDemandGrid,
            &frmLCC.optGCalculatedFlowrate),
    };
}

// Point by point.
FieldList PumpCurveFields()
{
    FieldList All;
    for (int Point = 0; Point < frmLCC.txtH.Count; ++Point) {
        const auto Add = [&](TextBox& Box, int Value, const char* IfEmpty) {
            Single& Stored = wPumpCurve[3 * Point + Value];
            All.push_back(Number(Curve, Box, Stored, {8, IfEmpty, &frmLCC.optPumpDetails}));
        };
        Add(frmLCC.txtH[Point], 1, "Enter the pump head !");
        Add(frmLCC.txtQ[Point], 2, "Enter the Flow rate !");
        Add(frmLCC.txtEfficiency[Point], 3, "Enter the pump efficiency !");
    }
    return All;
}

FieldList EnergyFields()
{
    return {
        BarOver(Pumping, frmLCC.fsbSummer, frmLCC.lblSummer, wSummer),
        BarOver(Pumping, frmLCC.fsbPumpingHours, frmLCC.lblPumpingHours, wPumpingHours),
        Number(Pumping, frmLCC.txtSPeak, wSPeak, {22, "Enter the peak summer demand rate !"}),
        Number(Pumping, frmLCC.txtSStandard, wSStandard, {23, "Enter the standard summer demand rate !"}),
        Number(Pumping, frmLCC.txtSOffpeak, wSOffpeak, {24, "Enter the off-peak summer demand rate !"}),
        Number(Pumping, frmLCC.txtWPeak, wWPeak, {25, "Enter the peak winter demand rate !"}),
        Number(Pumping, frmLCC.txtWStandard, wWStandard, {26, "Enter the standard winter demand rate !"}),
        Number(Pumping, frmLCC.txtWOffpeak, wWOffpeak, {27, "Enter the off-peak winter demand rate !"}),
        Own(Pumping, FillHourPattern, ReadHourPattern),
    };
}

FieldList ProfileFields()
{
    return {
        Own(Always, ShowLining, TakeLining),
        Number(Lined, frmLCC.txtLiningThickness, wLiningThickness,
               {20, "Enter cement mortar lining thickness !"}),
        UnitOf(Lined, frmLCC.comLiningThicknessUnits, wLiningThicknessUnits),
        Number(Always, frmLCC.txtKsNew, wKsNew, {17, "Enter absolute roughness value of a new pipe !"}),
        Number(Always, frmLCC.txtKsOld, wKsOld, {18, "Enter absolute roughness value of an old pipe !"}),
        Number(Always, frmLCC.txtKsOldYears, wKsOldYears,
               {19, "Enter the number of years it will take the pipeline to deteriorate !"}),
        UnitOf(Always, frmLCC.comKsNewUnits, wKsNewUnits),
        UnitOf(Always, frmLCC.comKsOldUnits, wKsOldUnits),
        UnitOf(Always, frmLCC.comDiameterUnits, wDiameterUnits),
        UnitOf(Always, frmLCC.comElevationUnits, wElevationUnits),
        UnitOf(Always, frmLCC.comLengthUnits, wLengthUnits),
        UnitOf(Always, frmLCC.comWallThicknessUnits, wWallThicknessUnits),
        Table(Always, FillProfileGrid, 21, ReadProfileGrid),
        Table(Always, FillLayingGrid, 21, ReadLayingGrid),
    };
}

FieldList RateFields()
{
    return {
        Number(Always, frmLCC.txtDiscountRate, wDiscountRate, {29, "Enter the estimated discount rate !"}),
        Number(Always, frmLCC.txtEscalation, wEscalation, {28, "Enter the estimated escalation rate !"}),
        Number(Pumping, frmLCC.txtEnergyEscalation, wEnergyEscalation,
               {35, "Enter the estimated energy escalation rate !"}),
        BarOver(Always, frmLCC.hscMMechanical, frmLCC.lblMMechanical, wMMechanical, PercentCaption),
        BarOver(Always, frmLCC.hscMElectrical, frmLCC.lblMElectrical, wMElectrical, PercentCaption),
        BarOver(Always, frmLCC.hscMPipeline, frmLCC.lblMPipeline, wMPipeline, PercentCaption),
        Number(Always, frmLCC.txtElectrical, wElectrical,
               {32, "Enter the estimated electrical works cost !"}),
        Number(Always, frmLCC.txtMechanical, wMechanical,
               {33, "Enter the estimated mechanical works cost !"}),
        Number(Always, frmLCC.txtSupervision, wSupervision, {34, "Enter the estimated supervision cost !"}),
        Number(Always, frmLCC.txtWaterSales, wWaterSales, {30, "Enter the current cost of water !"}),
        UnitOf(Always, frmLCC.comWaterSalesUnits, wWaterSalesUnits),
        Number(Always, frmLCC.txtWaterIncrease, wWaterIncrease,
               {31, "Enter the annual increase in water tarriffs !"}),
        // Behind the last check.
        Table(Always, FillStaffGrid, 36, ReadStaffGrid),
        Table(Always, FillExpensesGrid, 36, ReadExpensesGrid),
    };
}

FieldList AllFields()
{
    FieldList All;
    for (const auto& Page : {GeneralFields, PumpingFields, GravityFields, PumpCurveFields, EnergyFields,
                             ProfileFields, RateFields}) {
        const FieldList Added = Page();
        All.insert(All.end(), Added.begin(), Added.end());
    }
    return All;
}

} // namespace

const std::vector<InputField> InputFields = AllFields();

std::vector<const InputField*> RequestedFields()
{
    std::vector<const InputField*> All;
    for (const InputField& Each : InputFields)
        if (Each.Asked.Place > 0) All.push_back(&Each);
    std::stable_sort(All.begin(), All.end(), [](const InputField* One, const InputField* Other) {
        return One->Asked.Place < Other->Asked.Place;
    });
    return All;
}

void TakeUnit(const ComboBox& Selector, std::int16_t& Index)
{
    if (Selector.ListIndex >= 0) Index = static_cast<std::int16_t>(Selector.ListIndex.Get());
}

void TakeOptions()
{
    if (IsPumping()) {
        wVaryingDemand = frmLCC.optPumpFixed.Value ? 0 : 1;
        wPumpDetails = frmLCC.optPumpDetails.Value ? 1 : 0;
    } else {
        wVaryingDemand = frmLCC.optGSpecifiedFlowrate.Value ? 0 : 1;
    }
}

} // namespace velorix
