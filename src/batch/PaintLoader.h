// Loading of the module that paints. Commands that don't draw never come here, so they start without the
// toolkit.
#pragma once

#include "paint/PaintModule.h"

namespace velorix {

// The services of velorix-paint.so, which stands beside the program or in its folder of libraries. Starts the
// toolkit, in this process and until it ends. Throws Failure, with the places, when the module can't be
// loaded.
const PaintServices& LoadPaintServices();

} // namespace velorix
