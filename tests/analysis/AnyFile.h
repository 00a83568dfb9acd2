// One body for the fuzzer and for the seeded test: any bytes as a project file, loaded and analysed.
#pragma once

#include <string>

namespace velorix {

// Starts the program anew, opens a file of these bytes and analyses it. Ends the process with a message when
// the outcome is none that an analysis may have.
void AnalyseAnyFile(const std::string& Bytes);

} // namespace velorix
