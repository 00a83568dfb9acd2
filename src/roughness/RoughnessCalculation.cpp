// The stretches between the measuring points, one by one.
#include "roughness/RoughnessCalculation.h"

#include "base/Arithmetic.h"
#include "hydraulics/Formulas.h"
#include "model/Units.h"
#include "model/WorkingSet.h"
#include "results/PlotState.h"
#include "roughness/RoughnessStores.h"

#include <cmath>

namespace velorix {
namespace {

constexpr double Viscosity = 0.00000114;         // kinematic (m2/s)
constexpr double Gravity = 9.81;                 // m/s2
constexpr double WaterColumn = 9806.65012480924; // pascals in a metre of water

// To metres, metres of water and m3/s.
struct UnitFactors {
    Single Length;
    Single Pressure;
    Single Flow;
};

double FactorAt(UnitList Units, double Index)
{
    const Unit* const Found = UnitAt(Units, RoundToInt16(Index));
    return Found ? Found->Factor : 0;
}

// Here and below each statement has an end of its own: one that fails leaves its target as it was.
UnitFactors FactorsInUse()
{
    UnitFactors Factors;
    Stands([&] { Factors.Length = FactorAt(DistanceUnitList, wLengthUnits); });
    Stands([&] {
        Factors.Pressure =
            FactorAt(PressureUnitList, ScenarioFlow[CurrentScenario][ThePressureUnit]) / WaterColumn;
    });
    Stands([&] { Factors.Flow = FactorAt(FlowUnitList, ScenarioFlow[CurrentScenario][TheFlowUnit]); });
    return Factors;
}

// Head at point p (m): the ground, in whole units of the elevation, and the pressure above it.
double Head(int s, int p, const UnitFactors& Factors)
{
    return ElevationFactor * Readings[s][AtElevation][p] + Factors.Pressure * Readings[s][AtPressure][p];
}

// A stretch takes part when all three values of its second point are there; the first point may stand at 0.
void MeasureStretch(int s, int j, const UnitFactors& Factors)
{
    const ScenarioReadings& Read = Readings[s];
    StretchValid[s][j] = 0;
    if (Read[AtLength][j + 1] == 0 || Read[AtElevation][j + 1] == 0 || Read[AtPressure][j + 1] == 0) return;
    Stands([&] { HeadDifference[s][j] = Checked(Head(s, j, Factors) - Head(s, j + 1, Factors)); });
    Stands([&] {
        StretchLength[s][j] =
            Checked(Factors.Length * Read[AtLength][j + 1] - Factors.Length * Read[AtLength][j]);
    });
    Stands([&] { Slope[s][j] = Checked(HeadDifference[s][j] / StretchLength[s][j]); });
    StretchValid[s][j] = -1;
}

// The rows of the profile at which the two points lie. A point beside all of them leaves its row as it was:
// 0, or that of an earlier calculation.
void FindRows(int s, int j)
{
    for (int k = 1; k <= NodeCount; ++k) {
        const auto Row = static_cast<std::int16_t>(k);
        if (Readings[s][AtLength][j] == Chainage[k]) StretchStart[s][j] = Row;
        if (Readings[s][AtLength][j + 1] == Chainage[k]) StretchEnd[s][j] = Row;
    }
}

// Falls from the first point on by the stretch's slope; distances are taken as they stand in the profile.
void StoreGradeline(int s, int j, const UnitFactors& Factors)
{
    ByRow& Line = MeasuredGradeline[s][j];
    const int Start = StretchStart[s][j];
    for (int k = Start; k <= StretchEnd[s][j]; ++k)
        Stands([&] {
            Line[k] = k == Start ? Checked(Head(s, j, Factors))
                                 : Checked(Line[k - 1] - (Chainage[k] - Chainage[k - 1]) * Slope[s][j]);
        });
}

void StoreAverages(int s, int j)
{
    Single& D = AverageDiameter[s][j];
    Single& V = AverageVelocity[s][j];
    for (int k = StretchStart[s][j]; k < StretchEnd[s][j]; ++k)
        Stands([&] { D = Checked(D + InternalDiameter[k] * SectionLength[k]); });
    Stands([&] { D = Checked(D / StretchLength[s][j]); });
    // Twice the area of the pipe: all figures that follow are meant to hang on this velocity.
    Stands([&] { V = Checked(ScenarioFlowM3[s] / (D * D * Pi / 2)); });
    Stands([&] { Reynolds[s][j] = Checked(V * D / Viscosity); });
}

//     f = 2 D g h / (L V^2)                                              Darcy-Weisbach
//     ks = 3.7 D / 10^(1 / (2 sqrt(f)))                                  Karman and Prandtl
//     ks = 3.7 D (10^(-1 / (2 sqrt(f))) - 5.1286 / Re^0.89)              Barr
//     ks = 3.7 D (10^(-V / (2 sqrt(U))) - 2.51 v / (D sqrt(U)))          Colebrook-White; U = 2 g D S
//     C  = V / (0.355 D^0.63 S^0.54)                                     Hazen and Williams
void StoreRoughness(int s, int j)
{
    const double D = AverageDiameter[s][j];
    const double V = AverageVelocity[s][j];
    const double S = Slope[s][j];
    const double Re = Reynolds[s][j];
    const auto RootOfFriction = [&] {
        return std::sqrt(2 * D * Gravity * HeadDifference[s][j] / (StretchLength[s][j] * V * V));
    };
    const auto RootOfU = [&] { return std::sqrt(2 * Gravity * D * S); };
    Stands([&] { KsKarman[s][j] = Checked(3.7 * D / std::pow(10.0, 1 / (2 * RootOfFriction()))); });
    Stands([&] {
        KsBarr[s][j] =
            Checked(3.7 * D * (std::pow(10.0, 1 / (-2 * RootOfFriction())) - 5.1286 / std::pow(Re, 0.89)));
    });
    Stands([&] {
        KsColebrook[s][j] =
            Checked(3.7 * D * (std::pow(10.0, V / (-2 * RootOfU())) - 2.51 * Viscosity / (D * RootOfU())));
    });
    Stands([&] { HazenC[s][j] = Checked(V / (0.355 * std::pow(D, 0.63) * std::pow(S, 0.54))); });
}

} // namespace

void CalculateRoughness()
{
    ForEachRoughnessResult([](const char*, ByStretch<Single>& Store) { Store = {}; });
    const UnitFactors Factors = FactorsInUse();
    for (int s = 1; s <= MaxScenarios; ++s) {
        for (int j = 1; j <= MaxStretches; ++j) MeasureStretch(s, j, Factors);
        Stands([&] { ScenarioFlowM3[s] = Checked(Factors.Flow * ScenarioFlow[s][TheFlow]); });
        for (int j = 1; j <= MaxStretches; ++j) {
            if (StretchValid[s][j] == 0) continue;
            FindRows(s, j);
            StoreGradeline(s, j, Factors);
            StoreAverages(s, j);
            StoreRoughness(s, j);
        }
    }
    ClearArithmeticFlags();
}

} // namespace velorix
