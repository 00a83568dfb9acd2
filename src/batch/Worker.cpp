// Worker processes over fork and pipes.
#include "batch/Worker.h"

#include "batch/Interrupt.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <exception>
#include <map>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace velorix {
namespace {

using Clock = std::chrono::steady_clock;

// Bytes that may wait for an outcome before them; nothing more is started meanwhile.
constexpr std::size_t MostWaiting = 8U << 20U;

// A running worker and what it has sent so far.
struct Running {
    int Index = 0;
    pid_t Process = 0;
    int Pipe = -1;
    Clock::time_point Deadline; // for its first byte; from then on it only waits for us
    std::string Sent;
    int ReadError = 0; // of the pipe, by the system's number
};

// False when the parent has gone.
bool SendAll(int Pipe, const std::string& Bytes)
{
    std::size_t Done = 0;
    while (Done < Bytes.size()) {
        const ssize_t Step = ::write(Pipe, Bytes.data() + Done, Bytes.size() - Done);
        if (Step < 0 && errno != EINTR) return false;
        if (Step > 0) Done += static_cast<std::size_t>(Step);
    }
    return true;
}

// The worker's whole life. The first byte tells an output from an error. It leaves without the parent's exit
// handlers and buffers, which are not its own.
[[noreturn]] void BeWorker(int Pipe, int Index, const std::function<std::string(int)>& Work)
{
    std::string Report;
    try {
        Report = "+" + Work(Index);
    } catch (const std::exception& Problem) {
        Report = std::string("-") + Problem.what();
    } catch (...) { // nothing may unwind into the parent's code, which runs in the parent
        Report = "-the work ended with an unknown failure";
    }
    ::_exit(SendAll(Pipe, Report) ? 0 : 1);
}

// In the worker: it doesn't outlive its parent, which may have gone already.
void DieWith(pid_t Parent)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != Parent) ::_exit(1);
}

std::string SignalText(int Signal)
{
    return "signal " + std::to_string(Signal) + " (" + ::strsignal(Signal) + ")";
}

// How a process that has sent all it could has ended.
WorkerOutcome Conclude(const Running& Ended)
{
    int Status = 0;
    pid_t Waited = 0;
    do Waited = ::waitpid(Ended.Process, &Status, 0);
    while (Waited < 0 && errno == EINTR);
    const auto Crash = [](const std::string& Reason) { return WorkerOutcome{WorkerEnd::Crashed, Reason}; };
    if (Waited < 0) return Crash(std::string("the worker's end isn't known: ") + std::strerror(errno));
    if (Ended.ReadError != 0)
        return Crash(std::string("the result can't be received: ") + std::strerror(Ended.ReadError));
    if (WIFSIGNALED(Status)) return Crash("crashed: the worker was ended by " + SignalText(WTERMSIG(Status)));
    if (WEXITSTATUS(Status) != 0)
        return Crash("crashed: the worker ended with status " + std::to_string(WEXITSTATUS(Status)));
    if (Ended.Sent.empty()) return Crash("crashed: the worker ended without a result");
    return {Ended.Sent.front() == '-' ? WorkerEnd::Failed : WorkerEnd::Finished, Ended.Sent.substr(1)};
}

// Reads what the worker has sent; false once there is no more to come.
bool Receive(Running& Worker)
{
    char Buffer[65536];
    const ssize_t Step = ::read(Worker.Pipe, Buffer, sizeof Buffer);
    if (Step < 0 && errno == EINTR) return true;
    if (Step < 0) Worker.ReadError = errno;
    if (Step > 0) Worker.Sent.append(Buffer, static_cast<std::size_t>(Step));
    return Step > 0;
}

std::string TimeText(std::chrono::milliseconds Time)
{
    std::string Seconds = std::to_string(std::chrono::duration<double>(Time).count());
    Seconds.erase(Seconds.find_last_not_of('0') + 1);
    if (Seconds.back() == '.') Seconds.pop_back();
    return Seconds + " s";
}

class Pool {
public:
    Pool(int HowMany, const WorkerLimits& Within, const std::function<std::string(int)>& ToDo,
         const std::function<void(int, const WorkerOutcome&)>& Taker)
        : Count(HowMany)
        , Limits(Within)
        , Work(ToDo)
        , Take(Taker)
    {
    }
    ~Pool();
    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;

    void Run();

private:
    bool MayStart() const;
    int Start();
    void StartAll();
    void Wait();
    void EndOverdue();
    void End(std::size_t Place, const WorkerOutcome& Outcome);

    const int Count;
    const WorkerLimits Limits;
    const std::function<std::string(int)>& Work;
    const std::function<void(int, const WorkerOutcome&)>& Take;
    std::vector<Running> Workers;
    std::map<int, WorkerOutcome> Ended; // waiting for those before them
    int Next = 0;                       // to be started
    int Taken = 0;
};

Pool::~Pool()
{
    for (const Running& Each : Workers) ::kill(Each.Process, SIGKILL);
    for (const Running& Each : Workers) {
        ::close(Each.Pipe);
        while (::waitpid(Each.Process, nullptr, 0) < 0 && errno == EINTR) continue;
    }
}

bool Pool::MayStart() const
{
    if (Next == Count || static_cast<int>(Workers.size()) >= std::max(1, Limits.Jobs)) return false;
    std::size_t Waiting = 0;
    for (const auto& [Index, Outcome] : Ended) Waiting += Outcome.Text.size();
    for (const Running& Each : Workers) Waiting += Each.Sent.size();
    return Waiting < MostWaiting;
}

// Returns 0, or the system's error number when it has no handle or process to spare.
int Pool::Start()
{
    int Ends[2];
    if (::pipe(Ends) != 0) return errno;
    const pid_t Parent = ::getpid();
    pid_t Process = 0;
    {
        const HeldInterrupts Held; // one that comes meanwhile reaches the worker as the worker wants it
        Process = ::fork();
        if (Process == 0) {
            DieWith(Parent);
            LeaveInterruptsToParent();
        }
    }
    if (Process < 0) {
        const int Error = errno;
        ::close(Ends[0]);
        ::close(Ends[1]);
        return Error;
    }
    if (Process == 0) {
        // The pipes of the others are of no use here, and their handles may be the last.
        for (const Running& Each : Workers) ::close(Each.Pipe);
        ::close(Ends[0]);
        BeWorker(Ends[1], Next, Work);
    }
    ::close(Ends[1]);
    Workers.push_back({Next, Process, Ends[0], Clock::now() + Limits.Time, {}});
    return 0;
}

void Pool::StartAll()
{
    while (MayStart()) {
        const int Error = Start();
        if (Error != 0 && Workers.empty())
            throw std::system_error(Error, std::generic_category(), "no worker can be started");
        if (Error != 0) return;
        ++Next;
    }
}

// Until something has been sent or has ended, a worker is overdue, or an interrupt comes.
void Pool::Wait()
{
    std::vector<pollfd> Pipes;
    Clock::time_point First = Clock::time_point::max();
    for (const Running& Each : Workers) {
        Pipes.push_back({Each.Pipe, POLLIN, 0});
        if (Each.Sent.empty()) First = std::min(First, Each.Deadline);
    }
    const auto Left = std::max(Clock::duration::zero(), First - Clock::now());
    const auto Seconds = std::chrono::duration_cast<std::chrono::seconds>(Left);
    const timespec Limit = {Seconds.count(), std::chrono::nanoseconds(Left - Seconds).count()};

    int Ready = 0;
    {
        const HeldInterrupts Held;
        StopIfInterrupted();
        Ready = ::ppoll(Pipes.data(), Pipes.size(), First == Clock::time_point::max() ? nullptr : &Limit,
                        &Held.Outside);
    }
    if (Ready < 0 && errno != EINTR) throw std::system_error(errno, std::generic_category(), "ppoll");
    StopIfInterrupted();
    for (std::size_t Place = Ready > 0 ? Pipes.size() : 0; Place-- > 0;)
        if (Pipes[Place].revents != 0 && !Receive(Workers[Place])) End(Place, Conclude(Workers[Place]));
}

void Pool::EndOverdue()
{
    const Clock::time_point Now = Clock::now();
    for (std::size_t Place = Workers.size(); Place-- > 0;) {
        if (!Workers[Place].Sent.empty() || Now < Workers[Place].Deadline) continue;
        ::kill(Workers[Place].Process, SIGKILL);
        Conclude(Workers[Place]);
        End(Place, {WorkerEnd::TimedOut, "ended at the time limit of " + TimeText(Limits.Time)});
    }
}

void Pool::End(std::size_t Place, const WorkerOutcome& Outcome)
{
    ::close(Workers[Place].Pipe);
    Ended[Workers[Place].Index] = Outcome;
    Workers.erase(Workers.begin() + static_cast<std::ptrdiff_t>(Place));
}

void Pool::Run()
{
    while (Taken < Count) {
        StartAll();
        Wait();
        EndOverdue();
        for (auto First = Ended.begin(); First != Ended.end() && First->first == Taken; ++Taken) {
            Take(First->first, First->second);
            First = Ended.erase(First);
        }
    }
}

} // namespace

void RunWorkers(int Count, const WorkerLimits& Limits, const std::function<std::string(int)>& Work,
                const std::function<void(int, const WorkerOutcome&)>& Take)
{
    Pool(Count, Limits, Work, Take).Run();
}

} // namespace velorix
