// Worker processes: order, size, and the ways in which one may end.
#include "batch/Worker.h"

#include <csignal>
#include <gmock/gmock.h>
#include <poll.h>
#include <stdexcept>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace velorix {
namespace {

using testing::ElementsAre;
using Milliseconds = std::chrono::milliseconds;

std::vector<WorkerOutcome> OutcomesOf(int Count, const WorkerLimits& Limits,
                                      const std::function<std::string(int)>& Work)
{
    std::vector<WorkerOutcome> Outcomes;
    RunWorkers(Count, Limits, Work, [&](int Index, const WorkerOutcome& Outcome) {
        EXPECT_EQ(Index, static_cast<int>(Outcomes.size()));
        Outcomes.push_back(Outcome);
    });
    return Outcomes;
}

TEST(WorkerTest, FailuresStayWithTheirOwnWork)
{
    const auto Work = [](int Index) -> std::string {
        if (Index == 1) throw std::runtime_error("no such pump");
        if (Index == 2) std::raise(SIGKILL);
        if (Index == 3) ::_exit(0);
        if (Index == 4) throw Index;
        if (Index == 5) ::_exit(7);
        if (Index == 6) ::pause();
        return "stood";
    };
    for (const int Jobs : {1, 4}) {
        std::vector<std::string> Ends;
        for (const auto& Each : OutcomesOf(8, {Jobs, Milliseconds(1500)}, Work))
            Ends.push_back(std::to_string(static_cast<int>(Each.End)) + " " + Each.Text);
        EXPECT_THAT(Ends, ElementsAre("0 stood", "1 no such pump",
                                      "2 crashed: the worker was ended by signal 9 (Killed)",
                                      "2 crashed: the worker ended without a result",
                                      "1 the work ended with an unknown failure",
                                      "2 crashed: the worker ended with status 7",
                                      "3 ended at the time limit of 1.5 s", "0 stood"));
    }
}

// Far more than a pipe holds, and the first of two waits for the second. The limit is for the work: what has
// begun to arrive is let in, however slow the taking is.
TEST(WorkerTest, LargeOutputsOfTwoAtATimeComeWholeAndInOrder)
{
    constexpr std::size_t Large = 20'000'000;
    int Ends[2];
    ASSERT_EQ(::pipe(Ends), 0);
    const auto Work = [&](int Index) -> std::string {
        char Byte = 0;
        const ssize_t Passed = Index == 0 ? ::read(Ends[0], &Byte, 1) : ::write(Ends[1], &Byte, 1);
        return Index == 0 ? "first" : std::string(Passed == 1 ? Large : 0, 'b');
    };
    std::vector<std::string> Outputs;
    RunWorkers(2, {2, Milliseconds(3000)}, Work, [&](int, const WorkerOutcome& Outcome) {
        if (Outputs.empty()) std::this_thread::sleep_for(Milliseconds(3500));
        Outputs.push_back(Outcome.Text);
    });
    for (const int End : Ends) ::close(End);
    EXPECT_TRUE(Outputs == std::vector<std::string>({"first", std::string(Large, 'b')}));
}

// While the first works on, outputs of 8 MiB or some more may wait for it.
TEST(WorkerTest, LittleIsKeptForASlowFirst)
{
    int Ends[2];
    ASSERT_EQ(::pipe(Ends), 0);
    const auto Work = [&](int Index) {
        if (Index == 0) std::this_thread::sleep_for(Milliseconds(500));
        EXPECT_EQ(::write(Ends[1], "x", 1), 1);
        return std::string(1'000'000, 'x');
    };
    int Before = 0; // that have been at work when the first is taken
    RunWorkers(60, {.Jobs = 2}, Work, [&](int Index, const WorkerOutcome&) {
        if (Index == 0) ::ioctl(Ends[0], FIONREAD, &Before);
    });
    for (const int End : Ends) ::close(End);
    EXPECT_LE(Before, 12);
}

// Each waiting worker takes a handle of this process; four are to be had at a time.
TEST(WorkerTest, FewHandlesOnlyMakeItSlower)
{
    rlimit Usual{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &Usual), 0);
    const int FirstFree = ::dup(STDIN_FILENO);
    ::close(FirstFree);
    const rlimit Few{static_cast<rlim_t>(FirstFree) + 4, Usual.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &Few), 0);
    const auto Work = [](int Index) { return std::to_string(Index); };
    const auto Outcomes = OutcomesOf(20, {.Jobs = 20}, Work);
    ::setrlimit(RLIMIT_NOFILE, &Usual);
    for (int Index = 0; Index < 20; ++Index) EXPECT_EQ(Outcomes[Index].Text, Work(Index));
}

// What fails in the taking ends all the others, which would run for ever.
TEST(WorkerTest, AFailureOfTheTakerLeavesNoWorker)
{
    const auto Work = [](int Index) -> std::string {
        while (Index > 0) ::pause();
        return "first";
    };
    EXPECT_THROW(
        RunWorkers(3, {.Jobs = 3}, Work, [](int, const WorkerOutcome&) { throw std::runtime_error("full"); }),
        std::runtime_error);
    EXPECT_EQ(::waitpid(-1, nullptr, 0), -1);
    EXPECT_EQ(errno, ECHILD);
}

// By its end the pipe loses its last writer, a worker that would go on for a minute.
TEST(WorkerTest, WorkersDieWithTheProgram)
{
    int Ends[2];
    ASSERT_EQ(::pipe(Ends), 0);
    const pid_t Program = ::fork();
    if (Program == 0) {
        const auto Work = [&](int) {
            EXPECT_EQ(::write(Ends[1], "x", 1), 1);
            std::this_thread::sleep_for(std::chrono::minutes(1));
            return std::string();
        };
        RunWorkers(1, {}, Work, [](int, const WorkerOutcome&) {});
        ::_exit(0);
    }
    ::close(Ends[1]);
    char Byte = 0;
    EXPECT_EQ(::read(Ends[0], &Byte, 1), 1); // the worker is at work
    ::kill(Program, SIGKILL);
    EXPECT_EQ(::waitpid(Program, nullptr, 0), Program);
    pollfd Pipe = {Ends[0], POLLIN, 0};
    EXPECT_EQ(::poll(&Pipe, 1, 20'000), 1);
    EXPECT_EQ(::read(Ends[0], &Byte, 1), 0);
    ::close(Ends[0]);
}

} // namespace
} // namespace velorix
