// libFuzzer's way into the import of profiles.
#include "AnyClipText.h"

#include "platform/ScriptedPlatform.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    velorix::ScriptedPlatform Windows;
    velorix::InstallPlatform(&Windows);
    velorix::ImportAnyText(std::string(reinterpret_cast<const char*>(Data), Size));
    velorix::InstallPlatform(nullptr);
    return 0;
}
