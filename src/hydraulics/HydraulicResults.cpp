// The variables of the hydraulics.
#include "hydraulics/HydraulicResults.h"

namespace velorix {

#define VELORIX_DEFINE(Shape, Name, Unit) Shape Name{};
VELORIX_HYDRAULIC_RESULTS(VELORIX_DEFINE, VELORIX_DEFINE)
#undef VELORIX_DEFINE

} // namespace velorix
