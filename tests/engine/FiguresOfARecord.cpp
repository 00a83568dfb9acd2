// The engine by itself: a record in memory in, its figures out. No screen, no window system, no file.
#include "cost/CostResults.h"
#include "cost/Figures.h"
#include "model/SampleRecords.h"

#include <iostream>

using namespace velorix;

int main()
{
    OpenRecord(PumpCurveRecord());
    const bool Stand = ComputeFigures(Tables::LeftOut);
    ForEachResult([](const ResultInfo& Of, const auto& Value) {
        if constexpr (std::is_convertible_v<decltype(Value), double>)
            std::cout << Of.Name << " " << +Value << " " << Of.Unit << "\n";
    });
    return Stand && HydraulicsFailed == 0 ? 0 : 1;
}
