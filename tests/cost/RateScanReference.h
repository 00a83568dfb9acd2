// The rate of return scan written down plainly, and a project to scan: the measure that the fast scan is held
// to.
#pragma once

#include "cost/CostResults.h"
#include "cost/RateOfReturn.h"
#include "model/WorkingSet.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <vector>

namespace velorix {

struct ScanResult {
    std::vector<Single> Rate = std::vector<Single>(LastRate + 1);
    std::vector<double> Difference = std::vector<double>(LastRate + 1);
    Single Return;
};

// One rate after the other, each power where it is needed.
inline ScanResult PlainScan(Single ReturnBefore)
{
    ScanResult Result;
    Result.Return = ReturnBefore;
    const int n = wSupplyStart - wBaseYear;
    double EarlierI = 0;
    double EarlierP = 0;
    for (int k = 0; k <= LastRate; ++k) {
        const double r = k / 10000.0;
        double I = 0;
        double P = n < 2 ? double(TotalCapitalCost) : 0;
        for (int t = 1; n >= 2 && t <= n; ++t) P += (TotalCapitalCost / n) / std::pow(1 + r, t - 1);
        for (int y = 1; y <= wLife; ++y) {
            I += IncomeSeries[y] / std::pow(1 + r, n + y - 1);
            P += MaintTotal[y] / std::pow(1 + r, n + y - 1);
            P += OperationalCost[y] / std::pow(1 + r, n + y - 1);
            P += EnergyCost[y] / std::pow(1 + r, n + y - 1);
        }

        const double D = I - P;
        const double EarlierD = EarlierI - EarlierP;
        Result.Rate[k] = k / 100.0;
        Result.Difference[k] = D;
        if (I == P) Result.Return = k / 100.0;
        if (I < P && EarlierI > EarlierP) {
            Result.Return = D / 2000 / (EarlierD - D) + k / 1000.0 - 1 / 2000.0;
            Result.Return *= 10;
        }
        if (I > P && EarlierI < EarlierP) {
            Result.Return = -EarlierD / 2000 / (EarlierD - D) + k / 1000.0 - 1 / 2000.0;
            Result.Return *= 10;
        }
        EarlierI = I;
        EarlierP = P;
    }
    return Result;
}

// True when the stored results of ScanRateOfReturn are those, bit for bit.
inline bool SameAsStored(const ScanResult& Plain)
{
    bool Same = Irr.Bits() == Plain.Return.Bits();
    for (int k = 0; k <= LastRate; ++k)
        Same = Same && IrrRate[k].Bits() == Plain.Rate[k].Bits() &&
               std::bit_cast<std::uint64_t>(IrrDifference[k]) ==
                   std::bit_cast<std::uint64_t>(Plain.Difference[k]);
    return Same;
}

// A scheme of 40 million whose income overtakes its costs after some years.
inline void DescribeScheme(int Life, int ConstructionYears)
{
    wLife = static_cast<std::int16_t>(Life);
    wBaseYear = 2005;
    wSupplyStart = static_cast<std::int16_t>(2005 + ConstructionYears);
    TotalCapitalCost = 40123456.7;
    for (int y = 1; y <= Life; ++y) {
        MaintTotal[y] = 401234.5 * std::pow(1.061, y - 1);
        OperationalCost[y] = 298765.4 * std::pow(1.061, y - 1);
        EnergyCost[y] = 1234567.8 * std::pow(1.083, y - 1);
        IncomeSeries[y] = 4345678.9 * std::pow(1.087, y - 1);
    }
}

} // namespace velorix
