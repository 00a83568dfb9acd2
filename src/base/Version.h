// Which Velorix this is.
#pragma once

namespace velorix {

// "major.minor.revision"
const char* ProgramVersion();

} // namespace velorix
