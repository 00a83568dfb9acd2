// Project records that an analysis goes through with, to start tests and measurements from.
#pragma once

#include "model/ProjectRecord.h"

#include <array>

namespace velorix {

// A profile that falls evenly from Start to End (m) over Length (m).
inline void SetProfile(ProjectFields& Record, int Rows, double Start, double End, double Length)
{
    Record.Elevation.Fill(UnusedNode);
    Record.AccLength.Fill(UnusedNode);
    for (int Row = 1; Row <= Rows; ++Row) {
        const double Part = static_cast<double>(Row - 1) / (Rows - 1);
        Record.NodeNr[Row] = static_cast<std::int16_t>(Row);
        Record.Elevation[Row] = Start + (End - Start) * Part;
        Record.AccLength[Row] = Length * Part;
        Record.Diameter[Row] = 400.0;
        Record.WallThickness[Row] = 6.0;
        Record.PipeCost[Row] = 900.0;
        Record.SecondaryLoss[Row] = 0.25;
    }
}

inline ProjectFields CommonRecord()
{
    constexpr std::array<double, 13> Laying = {60, 90, 250, 110, 50, 110, 50, 30, 15, 50, 50, 1, 0.1};
    ProjectFields Record;
    SetText(Record.Project, "Sample");
    SetText(Record.Date, "2005-03-03");
    Record.Life = 20;
    Record.BaseYear = 2001;
    Record.SupplyStart = 2003;
    Record.KsNew = 0.1;
    Record.KsOld = 0.6;
    Record.KsOldYears = 15.0;
    for (int Entry = 1; Entry <= 13; ++Entry)
        Record.Laying[Entry] = Laying.at(static_cast<std::size_t>(Entry - 1));
    Record.DiscountRate = 8.0;
    Record.Escalation = 6.0;
    Record.EnergyEscalation = 7.0;
    Record.MPipeline = 25;
    Record.WaterSales = 2.0;
    Record.WaterIncrease = 5.0;
    Record.StaffPackage[1] = 300000.0;
    Record.StaffTime[1] = 20.0;
    Record.PG = 10.0;
    Record.Contingencies = 10.0;
    Record.Supervision = 100000.0;
    Record.Flowrate = 90.0;
    Record.FlowrateUnits = 3; // l/s
    return Record;
}

inline ProjectFields GravityRecord(int Rows = 10)
{
    ProjectFields Record = CommonRecord();
    Record.TRWL = 160.0;
    Record.BRWL = 100.0;
    SetProfile(Record, Rows, 150.0, 95.0, 6000.0);
    return Record;
}

// A pump curve that the system curve crosses near its middle: 45 m of static lift, flows 0 to 0.25 m3/s.
inline ProjectFields PumpCurveRecord(int Rows = 10)
{
    constexpr std::array<double, 18> Curve = {95, 0,    0,  92, 0.05, 55, 86, 0.10, 72,
                                              77, 0.15, 80, 64, 0.20, 76, 46, 0.25, 60};
    ProjectFields Record = CommonRecord();
    Record.SystemType = 1;
    Record.TRWL = 100.0;
    Record.BRWL = 145.0;
    SetProfile(Record, Rows, 98.0, 140.0, 6000.0);
    Record.PumpDetails = 1;
    Record.FlowUnits = 1; // m3/s
    for (int Value = 1; Value <= 18; ++Value)
        Record.PumpCurve[Value] = Curve.at(static_cast<std::size_t>(Value - 1));
    Record.PumpEfficiency = 70.0;
    Record.PumpingHours = 20;
    Record.Summer = 6;
    Record.SPeak = Record.WPeak = 0.9;
    Record.SStandard = Record.WStandard = 0.45;
    Record.SOffpeak = Record.WOffpeak = 0.25;
    for (int Hour = 8; Hour <= 20; ++Hour)
        Record.SummerHour[Hour] = Record.WinterHour[Hour] = Hour < 11 ? 2 : 1;
    return Record;
}

} // namespace velorix
