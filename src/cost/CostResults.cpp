// The variables of the costs.
#include "cost/CostResults.h"

namespace velorix {

#define VELORIX_DEFINE(Shape, Name, Unit) Shape Name{};
VELORIX_COST_RESULTS(VELORIX_DEFINE, VELORIX_DEFINE)
#undef VELORIX_DEFINE

void ResetResults()
{
    ForEachResult([](const ResultInfo&, auto& Value) { SetToZero(Value); });
}

} // namespace velorix
