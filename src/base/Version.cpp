// The number comes from the build description.
#include "base/Version.h"

namespace velorix {

const char* ProgramVersion()
{
    return VELORIX_VERSION;
}

} // namespace velorix
