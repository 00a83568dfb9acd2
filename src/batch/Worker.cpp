// Worker processes over fork, each with a file in memory for its report.
#include "batch/Worker.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <memory>
#include <sys/mman.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace velorix {
namespace {

struct CloseFile {
    void operator()(std::FILE* Open) const { std::fclose(Open); }
};

struct Running {
    int Index = 0;
    pid_t Process = 0;
    std::unique_ptr<std::FILE, CloseFile> Report{};
};

// The worker's whole life. The first byte tells an output from an error. It leaves without the parent's exit
// handlers and buffers, which are not its own.
[[noreturn]] void BeWorker(std::FILE* Target, int Index, const std::function<std::string(int)>& Work)
{
    std::string Report;
    try {
        Report = "+" + Work(Index);
    } catch (const std::exception& Problem) {
        Report = std::string("-") + Problem.what();
    } catch (...) { // nothing may unwind into the parent's code, which runs in the parent
        Report = "-the analysis ended with an unknown failure";
    }
    const bool Written = std::fwrite(Report.data(), 1, Report.size(), Target) == Report.size();
    ::_exit(Written && std::fflush(Target) == 0 ? 0 : 1);
}

// Adds a worker to those that run. Returns 0, or the system's error number when it has no file or process to
// spare.
int StartWorker(int Index, const std::function<std::string(int)>& Work, std::vector<Running>& Workers)
{
    Running Started{.Index = Index};
    const int Handle = ::memfd_create("report", 0); // asks for no folder that can be written
    if (Handle >= 0) Started.Report.reset(::fdopen(Handle, "w+"));
    if (!Started.Report) return errno;
    Started.Process = ::fork();
    if (Started.Process < 0) return errno;
    if (Started.Process == 0) {
        Workers.clear(); // the files of the others are of no use here, and their handles may be the last
        BeWorker(Started.Report.get(), Index, Work);
    }
    Workers.push_back(std::move(Started));
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

std::string ReadBack(std::FILE* Report)
{
    std::string Bytes;
    char Buffer[65536];
    std::rewind(Report);
    while (const std::size_t Step = std::fread(Buffer, 1, sizeof Buffer, Report)) Bytes.append(Buffer, Step);
    return std::ferror(Report) ? std::string("-the result can't be read") : Bytes;
}

WorkerOutcome Conclude(const Running& Ended, int Status)
{
    if (WIFSIGNALED(Status))
        return {{}, "the analysis was ended by signal " + std::to_string(WTERMSIG(Status))};
    if (WEXITSTATUS(Status) != 0)
        return {{}, "the analysis ended with status " + std::to_string(WEXITSTATUS(Status))};
    const std::string Report = ReadBack(Ended.Report.get());
    if (Report.empty()) return {{}, "the analysis ended without a result"};
    if (Report.front() == '-') return {{}, Report.substr(1)};
    return {Report.substr(1), {}};
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
        int Status = 0;
        const pid_t Process = ::waitpid(-1, &Status, 0);
        if (Process < 0 && errno == EINTR) continue;
        if (Process < 0) throw std::system_error(errno, std::generic_category(), "waitpid");
        const auto Found = std::find_if(Workers.begin(), Workers.end(),
                                        [&](const Running& Each) { return Each.Process == Process; });
        if (Found == Workers.end()) continue; // a process of somebody else
        Outcomes[static_cast<std::size_t>(Found->Index)] = Conclude(*Found, Status);
        Workers.erase(Found);
        Ended(++Done);
    }
    return Outcomes;
}

} // namespace velorix
