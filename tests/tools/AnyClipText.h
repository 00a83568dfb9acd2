// One body for the fuzzer and for the tests: any text on the clipboard, parsed, advised on and committed.
#pragma once

#include <string>

namespace velorix {

// Ends the process with a message when the outcome is none that an import may have.
void ImportAnyText(const std::string& Text);

} // namespace velorix
