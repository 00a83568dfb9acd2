// One loop over the rows, without a test inside, that the compiler makes vectors of.
#include "hydraulics/RowLosses.h"

#include "hydraulics/Formulas.h"
#include "hydraulics/HydraulicResults.h"
#include "model/WorkingSet.h"

namespace velorix {

// Not inlined, so that all of its arithmetic is done before its caller looks at the status flags.
[[gnu::noinline]] void WorkRowLosses(int Year, double Q, RowLosses& Losses)
{
    const Single* D = InternalDiameter.Data();
    const Single* L = SectionLength.Data();
    const Single* f = Lambda.Year(Year).Data();
    const Single* K = wSecondaryLoss.Data();
    double* Friction = Losses.Friction.data();
    double* Secondary = Losses.Secondary.data();
    for (int i = 0; i < NodeCount; ++i) {
        Friction[i] = FrictionHead(Q, D[i], L[i], f[i]);
        Secondary[i] = SecondaryHead(Q, D[i], K[i]);
    }
}

} // namespace velorix
