// How the program ends: the worst that has happened decides.
#pragma once

#include <algorithm>

namespace velorix {

// In the order of their weight.
enum class Ending { AllWell, DidNotStand, Failed, Interrupted };

constexpr Ending Worse(Ending One, Ending Other)
{
    return std::max(One, Other);
}

constexpr int ExitStatus(Ending Worst)
{
    switch (Worst) {
    case Ending::AllWell: return 0;
    case Ending::DidNotStand: return 2; // it ended with a message, or a save would be refused
    case Ending::Interrupted: return 130;
    case Ending::Failed: break;
    }
    return 1; // the command line, a file, a time limit, a crash
}

} // namespace velorix
