// Signals noted in a flag.
#include "batch/Interrupt.h"

namespace velorix {
namespace {

constexpr int AskingToEnd[] = {SIGINT, SIGTERM, SIGHUP};

volatile std::sig_atomic_t Noted = 0;

void Note(int)
{
    Noted = 1;
}

} // namespace

void WatchForInterrupts()
{
    struct sigaction Action {};
    Action.sa_handler = Note; // without SA_RESTART: a call that waits returns
    struct sigaction Before {};
    ::sigaction(SIGHUP, nullptr, &Before);
    ::sigaction(SIGINT, &Action, nullptr);
    ::sigaction(SIGTERM, &Action, nullptr);
    if (Before.sa_handler != SIG_IGN)
        ::sigaction(SIGHUP, &Action, nullptr); // else it is to outlive its terminal
    std::signal(SIGPIPE, SIG_IGN);
}

bool IsInterrupted()
{
    return Noted != 0;
}

void StopIfInterrupted()
{
    if (IsInterrupted()) throw Interruption();
}

HeldInterrupts::HeldInterrupts()
{
    sigset_t Held;
    sigemptyset(&Held);
    for (const int Each : AskingToEnd) sigaddset(&Held, Each);
    ::sigprocmask(SIG_BLOCK, &Held, &Outside);
}

HeldInterrupts::~HeldInterrupts()
{
    ::sigprocmask(SIG_SETMASK, &Outside, nullptr);
}

void LeaveInterruptsToParent()
{
    std::signal(SIGINT, SIG_IGN);
    std::signal(SIGHUP, SIG_IGN);
    std::signal(SIGTERM, SIG_DFL);
}

} // namespace velorix
