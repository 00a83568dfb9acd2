// The signals by which a user or the system asks the program to end.
#pragma once

#include <csignal>

namespace velorix {

// Thrown where the program stops for such a signal. No Failure, so that nothing takes it for a file's own.
struct Interruption {};

// From here on the signals are noted and interrupt the system's calls instead of ending the program, and a
// reader that goes away fails the write. Called once, at the start.
void WatchForInterrupts();

bool IsInterrupted();
void StopIfInterrupted(); // throws Interruption

// Holds the signals back as long as it stands, so that a test and the wait that follows it are one step.
class HeldInterrupts {
public:
    HeldInterrupts();
    ~HeldInterrupts();
    HeldInterrupts(const HeldInterrupts&) = delete;
    HeldInterrupts& operator=(const HeldInterrupts&) = delete;

    sigset_t Outside; // what was held back before
};

// In a worker: it ends when its parent says so, not by the terminal's interrupt, and dies of SIGTERM.
void LeaveInterruptsToParent();

} // namespace velorix
