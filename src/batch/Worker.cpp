// Worker processes over fork and pipes.
#include "batch/Worker.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <exception>
#include <map>
#include <poll.h>
#include <stdexcept>
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
};

void SendAll(int Pipe, const std::string& Bytes)
{
    std::size_t Done = 0;
    while (Done < Bytes.size()) {
        const ssize_t Step = ::write(Pipe, Bytes.data() + Done, Bytes.size() - Done);
        if (Step < 0 && errno != EINTR) return; // the parent has gone
        if (Step > 0) Done += static_cast<std::size_t>(Step);
    }
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
    SendAll(Pipe, Report);
    ::_exit(0);
}

Running StartWorker(int Index, const std::function<std::string(int)>& Work)
{
    int Ends[2];
    if (::pipe(Ends) != 0) throw std::system_error(errno, std::generic_category(), "pipe");
    const pid_t Process = ::fork();
    if (Process < 0) throw std::system_error(errno, std::generic_category(), "fork");
    if (Process == 0) {
        ::close(Ends[0]);
        BeWorker(Ends[1], Index, Work);
    }
    ::close(Ends[1]);
    return {Index, Process, Ends[0], {}};
}

WorkerOutcome Conclude(const Running& Ended)
{
    int Status = 0;
    while (::waitpid(Ended.Process, &Status, 0) < 0 && errno == EINTR) {
    }
    if (WIFSIGNALED(Status))
        return {{}, "the analysis was ended by signal " + std::to_string(WTERMSIG(Status))};
    if (Ended.Sent.empty()) return {{}, "the analysis ended without a result"};
    if (Ended.Sent.front() == '-') return {{}, Ended.Sent.substr(1)};
    return {Ended.Sent.substr(1), {}};
}

// Reads what the worker has sent; false once it has sent everything.
bool Receive(Running& Worker)
{
    char Buffer[65536];
    const ssize_t Step = ::read(Worker.Pipe, Buffer, sizeof Buffer);
    if (Step < 0 && errno == EINTR) return true;
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
        while (Next < Count && static_cast<int>(Workers.size()) < std::max(1, Jobs))
            Workers.push_back(StartWorker(Next++, Work));

        std::vector<pollfd> Pipes;
        for (const Running& Each : Workers) Pipes.push_back({Each.Pipe, POLLIN, 0});
        if (::poll(Pipes.data(), Pipes.size(), -1) < 0) continue;
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
