// What the table of fields says of a new project and of the kinds of systems.
#include "model/EveryEntry.h"
#include "model/NewProject.h"
#include "model/WorkingSet.h"

#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>

namespace velorix {
namespace {

// Every number of the record, and every letter of its texts.
void FillWith(ProjectFields& Record, std::int16_t Number)
{
    ForEachField(Record, [&](const FieldRule&, auto& Field) {
        ForEachEntry(Field, [&](int, auto& Value) {
            if constexpr (requires { Value.Bytes; })
                Value.Bytes.fill('k');
            else
                Value = Number;
        });
    });
}

// From the layout table of the file format: metric and US. A field that isn't here is kept.
const std::map<std::string, std::pair<double, double>> Defaults = {
    // clang-format off
    {"Flowrate", {0, 0}}, {"FlowrateUnits", {3, 4}}, {"VaryingDemand", {0, 0}}, {"Life", {30, 30}},
    {"BaseYear", {2001, 2001}}, {"SupplyStart", {2001, 2001}}, {"DemandUnits", {0, 4}}, {"TRWL", {0, 0}},
    {"BRWL", {0, 0}}, {"TRWLUnits", {0, 2}}, {"BRWLUnits", {0, 2}}, {"Diameter", {0, 0}}, {"PipeCost", {0, 0}},
    {"NodeDesc", {0, 0}}, {"WallThicknessUnits", {0, 2}}, {"LiningType", {0, 0}}, {"LiningThickness", {0, 0}},
    {"LiningThicknessUnits", {0, 2}}, {"KsNew", {0, 0}}, {"KsOld", {0, 0}}, {"KsOldYears", {0, 0}},
    {"KsNewUnits", {0, 2}}, {"KsOldUnits", {0, 2}}, {"DiameterUnits", {0, 2}}, {"ElevationUnits", {0, 2}},
    {"LengthUnits", {0, 2}}, {"DiscountRate", {8, 8}}, {"Escalation", {10, 10}}, {"EnergyEscalation", {7.5, 7.5}},
    {"MMechanical", {25, 25}}, {"MElectrical", {200, 200}}, {"MPipeline", {25, 25}}, {"WaterSalesUnits", {0, 2}},
    {"StaffTime", {0, 0}}, {"Expenses", {0, 0}}, {"Supervision", {0, 0}}, {"PumpCurve", {0, 0}},
    {"HeadUnits", {0, 1}}, {"FlowUnits", {0, 2}}, {"PumpEfficiency", {70, 70}}, {"WaterIncrease", {5, 5}},
    {"Mechanical", {0, 0}}, {"Electrical", {0, 0}}, {"PG", {10, 10}}, {"Contingencies", {10, 10}},
    {"PumpDetails", {0, 0}}, {"Summer", {6, 6}}, {"PumpOperatingFlowrate", {0, 0}},
    {"PumpOperatingFlowrateUnits", {0, 3}}, {"PumpingHours", {20, 20}}};
// clang-format on

double DefaultOf(const std::string& Field, int Entry, bool US, bool Dollar, double Before)
{
    const double Packages[] = {300000, 200000, 120000, 80000, 70000, 30000, 60000, 130000};
    if (Field == "SystemType" || Field == "Units") return Field == "Units" ? (US ? 1 : 0) : 1;
    if (Field == "Demand") return Entry <= 10 ? 0 : Before;
    if (Field == "NodeNr") return Entry;
    if (Field == "Elevation" || Field == "AccLength") return Entry <= 2 ? 0 : 999999;
    if (Field == "StaffPackage") return Packages[Entry - 1];
    if (Field == "WaterSales") return US ? (Dollar ? 0.05 : 0.5) : (Dollar ? 0.5 : 2.0);
    const auto Found = Defaults.find(Field);
    if (Found == Defaults.end()) return Before;
    return US ? Found->second.second : Found->second.first;
}

// The units are the record's own, the currency is that of the working set.
TEST(FieldsTest, ANewProjectStartsWithItsDefaultsAndKeepsTheRest)
{
    constexpr std::int16_t Before = 9;
    for (const bool US : {false, true})
        for (const bool Dollar : {false, true}) {
            FillWith(ProjectRecord, Before);
            ProjectRecord.Units = US ? 1 : 0;
            wCurrency = Dollar ? 1 : 0;
            wSystemType = 1;
            StartNewRecord({2005, 3, 3});
            ForEachField(ProjectRecord, [&](const FieldRule& Rule, const auto& Field) {
                ForEachEntry(Field, [&](int Entry, const auto& Value) {
                    if constexpr (requires { Value.Bytes; }) {
                        EXPECT_EQ(TextOf(Value), Rule.Name == std::string("Date") ? "2005-03-03" : "");
                    } else {
                        EXPECT_EQ(Value, Single(DefaultOf(Rule.Name, Entry, US, Dollar, Before)))
                            << Rule.Name << " " << Entry;
                    }
                });
            });
        }
    ResetWorkingSet();
    ResetProjectRecord();
}

// From the table of the fields by kind of system; a commit stores PumpEfficiency all the same.
TEST(FieldsTest, AGravitySystemLeavesThePumpingFieldsOnBothSides)
{
    // clang-format off
    const std::set<std::string> PumpingOnly = {
        "PumpDetails", "PumpCurve", "HeadUnits", "FlowUnits", "PumpOperatingFlowrate",
        "PumpOperatingFlowrateUnits", "Pumptype", "PumpDescription", "Summer", "PumpingHours",
        "SPeak", "SStandard", "SOffpeak", "WPeak", "WStandard", "WOffpeak", "SummerHour",
        "WinterHour"};
    // clang-format on
    const auto Different = [] {
        std::set<std::string> Names;
        ForEachWorkingField([&](const FieldRule& Rule, const auto& Stored, const auto& Working) {
            if constexpr (requires { Stored.Bytes; }) {
                if (TextOf(Stored) != Working) Names.insert(Rule.Name);
            } else if (!(Stored == Working)) {
                Names.insert(Rule.Name);
            }
        });
        return Names;
    };
    for (const std::int16_t SystemType : {0, 1}) {
        std::set<std::string> Left = {"Reserved1"};
        if (SystemType == 0) Left.insert(PumpingOnly.begin(), PumpingOnly.end());
        ResetWorkingSet();
        FillWith(ProjectRecord, 9);
        wSystemType = SystemType;
        CopyWorkingSetToRecord();
        EXPECT_EQ(Different(), Left);

        FillWith(ProjectRecord, 9);
        ProjectRecord.SystemType = SystemType;
        CopyRecordToWorkingSet();
        if (SystemType == 0) Left.insert("PumpEfficiency");
        EXPECT_EQ(Different(), Left);
    }
    ResetWorkingSet();
    ResetProjectRecord();
}

} // namespace
} // namespace velorix
