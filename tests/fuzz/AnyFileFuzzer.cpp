// libFuzzer's way in.
#include "AnyFile.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    velorix::AnalyseAnyFile(std::string(reinterpret_cast<const char*>(Data), Size));
    return 0;
}
