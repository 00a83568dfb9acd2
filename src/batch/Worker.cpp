// Worker processes over fork and pipes.
#include "batch/Worker.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <exception>
#include <poll.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace velorix {
namespace {

// A running worker and what it has sent so far.
struct Running {
    int Index = 0;
    pid_t Process = 0;
    int Pipe = -1;
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
        Report = "-the analysis ended with an unknown failure";
    }
    ::_exit(SendAll(Pipe, Report) ? 0 : 1);
}

// Adds a worker to those that run. Returns 0, or the system's error number when it has no handle or process
// to spare.
int StartWorker(int Index, const std::function<std::string(int)>& Work, std::vector<Running>& Workers)
{
    int Ends[2];
    if (::pipe(Ends) != 0) return errno;
    const pid_t Process = ::fork();
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
        BeWorker(Ends[1], Index, Work);
    }
    ::close(Ends[1]);
    Workers.push_back({.Index = Index, .Process = Process, .Pipe = Ends[0], .Sent = {}});
    return 0;
}

// Starts works from Next on until Jobs of them run; fewer when the system can't give more at the moment.
// Returns the next to start. Throws when not even one can run.
int StartWorkers(int Next, int Count, int Jobs, const std::function<std::string(int)>& Work,
                 std::vector<Running>& Workers)
{
    while (Next < Count && static_cast<int>(Workers.size()) < Jobs) {
        const int Error = StartWorker(Next, Work, Workers);
        if (Error != 0 && Workers.empty())
            throw std::system_error(Error, std::generic_category(), "an analysis can't be started");
        if (Error != 0) break;
        ++Next;
    }
    return Next;
}

WorkerOutcome Conclude(const Running& Ended)
{
    int Status = 0;
    pid_t Waited = 0;
    do Waited = ::waitpid(Ended.Process, &Status, 0);
    while (Waited < 0 && errno == EINTR);
    if (Waited < 0) return {{}, std::string("the end of the analysis isn't known: ") + std::strerror(errno)};
    if (Ended.ReadError != 0)
        return {{}, std::string("the result can't be received: ") + std::strerror(Ended.ReadError)};
    if (WIFSIGNALED(Status))
        return {{}, "the analysis was ended by signal " + std::to_string(WTERMSIG(Status))};
    if (WEXITSTATUS(Status) != 0)
        return {{}, "the analysis ended with status " + std::to_string(WEXITSTATUS(Status))};
    if (Ended.Sent.empty()) return {{}, "the analysis ended without a result"};
    if (Ended.Sent.front() == '-') return {{}, Ended.Sent.substr(1)};
    return {Ended.Sent.substr(1), {}};
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

} // namespace

std::vector<WorkerOutcome> RunWorkers(int Count, int Jobs, const std::function<std::string(int)>& Work,
                                      const std::function<void(int)>& Ended)
{
    std::vector<WorkerOutcome> Outcomes(static_cast<std::size_t>(Count));
    std::vector<Running> Workers;
    int Next = 0;
    int Done = 0;
    while (Done < Count) {
        Next = StartWorkers(Next, Count, std::max(1, Jobs), Work, Workers);

        std::vector<pollfd> Pipes;
        for (const Running& Each : Workers) Pipes.push_back({Each.Pipe, POLLIN, 0});
        if (::poll(Pipes.data(), Pipes.size(), -1) < 0) {
            if (errno == EINTR) continue;
            throw std::system_error(errno, std::generic_category(), "poll");
        }
        for (std::size_t Index = Pipes.size(); Index-- > 0;) {
            if (Pipes[Index].revents == 0 || Receive(Workers[Index])) continue;
            ::close(Workers[Index].Pipe);
            Outcomes[static_cast<std::size_t>(Workers[Index].Index)] = Conclude(Workers[Index]);
            Workers.erase(Workers.begin() + static_cast<std::ptrdiff_t>(Index));
            Ended(++Done);
        }
    }
    return Outcomes;
}

} // namespace velorix
