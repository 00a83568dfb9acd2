// The roughness of seeded scenarios, against a plain reckoning of its own and a pipe of known roughness.
#include "roughness/RoughnessCalculation.h"

#include "hydraulics/HydraulicResults.h"
#include "model/WorkingSet.h"
#include "results/PlotState.h"
#include "roughness/RoughnessStores.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace velorix {
namespace {

// Of the units, by hand; clang-format would make a column of the first.
// clang-format off
constexpr double Pascals[] = {1, 1, 1e3, 1e6, 1e-6, 1e5, 100, 100, 47.880259514837, 6894.75729317, 101325,
                              133322.191153411, 3386.3836291108, 2989.06694959979, 249.088907503,
                              9806.65012480924, 9.8066501248};
// clang-format on
constexpr double Flows[] = {0.011574074,    0.00027777778, 1,          0.001,       0.028316846,
                            0.0037854118,   0.0000630902,  1.050503,   0.043812636, 0.0045460919,
                            0.000075768199, 1.2628033,     0.052616805};
constexpr double Metres[] = {1, 1000, 0.3048, 1609.344};

// A number that a failed step leaves alone.
struct Kept {
    float Value = 0;
    Kept& operator=(double Result)
    {
        const auto Rounded = static_cast<float>(Result);
        if (std::isfinite(Rounded)) Value = Rounded;
        return *this;
    }
    operator double() const { return Value; }
};

constexpr double None = std::numeric_limits<double>::quiet_NaN(); // of an entry that isn't there

// One stretch, worked straight down the formulas.
struct Stretch {
    bool Valid = false;
    int Start = 0, End = 0;
    Kept h, L, S, D, V, Re, Colebrook, Barr, Karman, C;
    Kept Line[501];

    void Work(int s, int j)
    {
        const auto& Read = Readings[s];
        const auto UnitOf = [](int Value) { return static_cast<int>(ScenarioFlow[CurrentScenario][Value]); };
        const Single ToMetres = Metres[wLengthUnits];
        const Single ToHead = Pascals[UnitOf(2)] / 9806.65012480924;
        const Single Q = Single(Flows[UnitOf(1)]) * ScenarioFlow[s][0];
        const auto H = [&](int p) { return ElevationFactor * Read[1][p] + ToHead * Read[2][p]; };
        h = L = S = D = V = Re = Colebrook = Barr = Karman = C = 0;
        Valid = Read[0][j + 1] != 0 && Read[1][j + 1] != 0 && Read[2][j + 1] != 0;
        if (!Valid) return;
        h = H(j) - H(j + 1);
        L = ToMetres * Read[0][j + 1] - ToMetres * Read[0][j];
        S = h / L;
        for (int k = 1; k <= NodeCount; ++k) {
            if (Chainage[k] == Read[0][j]) Start = k;
            if (Chainage[k] == Read[0][j + 1]) End = k;
        }
        for (int k = std::max(Start, 1); k <= End; ++k) {
            const double Distance = k > 1 ? Chainage[k] - Chainage[k - 1] : None;
            Line[k] = k == Start ? H(j) : Line[k - 1] - Distance * S;
        }
        for (int k = std::max(Start, 1); k < End; ++k) D = D + InternalDiameter[k] * SectionLength[k];
        D = D / L;
        V = Q / (std::pow(D, 2) * 3.14159265359 / 2);
        Re = V * D / 1.14e-6;
        const double Friction = std::sqrt(2 * D * 9.81 * h / (L * V * V));
        const double Root = std::sqrt(2 * 9.81 * D * S);
        // A step may fail in its midst and still end in a number.
        if (Friction > 0 && std::isfinite(Friction)) {
            Karman = 3.7 * D / std::pow(10, 1 / (2 * Friction));
            Barr = 3.7 * D * (std::pow(10, 1 / (-2 * Friction)) - 5.1286 / std::pow(Re, 0.89));
        }
        if (Root > 0) Colebrook = 3.7 * D * (std::pow(10, V / (-2 * Root)) - 2.51 * 0.00000114 / (D * Root));
        C = V / (0.355 * std::pow(D, 0.63) * std::pow(S, 0.54));
    }
};

class RoughnessCalculationTest : public testing::Test {
protected:
    RoughnessCalculationTest()
    {
        ResetRoughness();
        ResetScenarioLines();
    }

    std::mt19937 Random{20260611};
    double Between(double Least, double Most)
    {
        return std::uniform_real_distribution<double>(Least, Most)(Random);
    }
    int Any(int Count) { return static_cast<int>(Random() % static_cast<unsigned>(Count)); }

    // Rows of uneven length and bore; now and then two at one place.
    void SeedProfile()
    {
        constexpr std::int16_t ElevationFactors[] = {1, 1000, 0, 1609};
        NodeCount = 2 + Any(40);
        wLengthUnits = static_cast<std::int16_t>(Any(4));
        ElevationFactor = ElevationFactors[Any(4)];
        for (int k = 1; k <= NodeCount; ++k) {
            Chainage[k] = k == 1 ? 0.0 : Chainage[k - 1] + (Any(8) ? Between(1, 300) : 0.0);
            InternalDiameter[k] = Any(20) ? Between(0.1, 1.2) : 0.0;
            SectionLength[k] = Between(1, 300);
        }
    }

    // Points on rows and beside them, values that are missing, gradelines that rise.
    void SeedReadings()
    {
        CurrentScenario = static_cast<std::int16_t>(1 + Any(8));
        for (int s = 1; s <= 8; ++s) {
            ScenarioFlow[s][0] = Any(8) ? Between(0, 200) : 0.0;
            ScenarioFlow[s][1] = Any(13);
            ScenarioFlow[s][2] = Any(17);
            for (int p = 1; p <= 5; ++p) {
                Readings[s][0][p] = Any(6) ? double(Chainage[1 + Any(NodeCount)]) : Between(0, 5000);
                Readings[s][1][p] = Any(10) ? Between(-50, 400) : 0.0;
                Readings[s][2][p] = Any(10) ? Between(0, 900) : 0.0;
            }
        }
    }
};

// One run of the program: the rows of a stretch and its gradeline outlive the calculation.
TEST_F(RoughnessCalculationTest, EveryStoreHoldsWhatThePlainReckoningStores)
{
    Array1<Array1<Stretch, 4>, 8> Plain;
    int Valid = 0;
    int Solved = 0;
    for (int Run = 0; Run < 300; ++Run) {
        SeedProfile();
        SeedReadings();
        CalculateRoughness();
        for (int s = 1; s <= 8; ++s)
            for (int j = 1; j <= 4; ++j) {
                Stretch& Own = Plain[s][j];
                Own.Work(s, j);
                SCOPED_TRACE("run " + std::to_string(Run) + ", " + std::to_string(s) + ", " +
                             std::to_string(j));
                ASSERT_EQ(StretchValid[s][j], Own.Valid ? -1 : 0);
                ASSERT_EQ(StretchStart[s][j], Own.Start);
                ASSERT_EQ(StretchEnd[s][j], Own.End);
                const std::pair<const ByStretch<Single>&, const Kept&> Stores[] = {
                    {HeadDifference, Own.h},  {StretchLength, Own.L},   {Slope, Own.S},
                    {AverageDiameter, Own.D}, {AverageVelocity, Own.V}, {Reynolds, Own.Re},
                    {KsKarman, Own.Karman},   {KsBarr, Own.Barr},       {KsColebrook, Own.Colebrook},
                    {HazenC, Own.C}};
                for (const auto& [Store, Expected] : Stores)
                    ASSERT_EQ(Store[s][j].Float(), Expected.Value) << &Store - &HeadDifference;
                for (int k = 1; k <= 500; ++k)
                    ASSERT_EQ(MeasuredGradeline[s][j][k].Float(), Own.Line[k].Value) << k;
                Valid += Own.Valid;
                Solved += Own.Karman > 0 && Own.Barr != 0;
            }
    }
    EXPECT_GT(Valid, 4000);
    EXPECT_GT(Solved, 500);
}

// A rough pipe of 300 mm whose losses follow from its roughness: the formula for the fully rough pipe must
// give it back, and the others something near, as Re is 1.1 million. The velocity is what half the area
// leaves.
TEST_F(RoughnessCalculationTest, APipeOfKnownRoughnessGivesItBack)
{
    constexpr double D = 0.3, ks = 0.0012, V = 4.2;
    wLengthUnits = 0;
    ElevationFactor = 1;
    NodeCount = 3;
    for (int k = 1; k <= 3; ++k) {
        Chainage[k] = 1000.0 * (k - 1);
        InternalDiameter[k] = D;
        SectionLength[k] = 1000;
    }
    const double f = std::pow(1 / (2 * std::log10(3.7 * D / ks)), 2);
    const double Loss = f * 2000 / D * V * V / (2 * 9.81);
    const double InLiters = V * 3.14159265359 * D * D / 2 * 1000;
    for (const double Pressure : {450 - Loss, 460.0}) {
        const double Given[3][2] = {{0, 2000}, {300, 250}, {400, Pressure}};
        int Value = 0;
        for (const double Each : {InLiters, 3.0, 15.0}) ScenarioFlow[1][Value++] = Each; // l/s, m of water
        for (Value = 0; Value < 3; ++Value)
            for (int Point : {1, 2}) Readings[1][Value][Point] = Given[Value][Point - 1];
        CalculateRoughness();
        const bool Falls = Pressure < 450;
        EXPECT_NEAR(AverageVelocity[1][1], V, 0.001);
        EXPECT_NEAR(KsKarman[1][1], Falls ? ks : 0, 1e-3 * ks);
        EXPECT_NEAR(KsColebrook[1][1], Falls ? ks : 0, 0.03 * ks);
        EXPECT_NEAR(KsBarr[1][1], Falls ? ks : 0, 0.03 * ks);
        EXPECT_NEAR(MeasuredGradeline[1][1][2], 350 + (250 + Pressure) / 2, 0.001);
    }
}

} // namespace
} // namespace velorix
