// Worker processes: order, size, and the ways in which one may fail.
#include "batch/Worker.h"

#include <csignal>
#include <gmock/gmock.h>
#include <stdexcept>
#include <sys/resource.h>
#include <unistd.h>

namespace velorix {
namespace {

using testing::ElementsAre;

TEST(WorkerTest, FailuresStayWithTheirOwnWork)
{
    const auto Work = [](int Index) -> std::string {
        if (Index == 1) throw std::runtime_error("no such pump");
        if (Index == 2) std::raise(SIGKILL);
        if (Index == 3) ::_exit(0);
        if (Index == 4) throw Index;
        if (Index == 5) ::_exit(7);
        return "stood";
    };
    for (const int Jobs : {1, 4}) {
        std::vector<int> Progress;
        std::vector<std::string> Ends;
        for (const auto& Each : RunWorkers(7, Jobs, Work, [&](int Done) { Progress.push_back(Done); }))
            Ends.push_back(Each.Output + "|" + Each.Error);
        EXPECT_THAT(Progress, ElementsAre(1, 2, 3, 4, 5, 6, 7));
        EXPECT_THAT(Ends, ElementsAre("stood|", "|no such pump", "|the analysis was ended by signal 9",
                                      "|the analysis ended without a result",
                                      "|the analysis ended with an unknown failure",
                                      "|the analysis ended with status 7", "stood|"));
    }
}

// Far more than a buffer holds, and the first of two waits for the second.
TEST(WorkerTest, LargeOutputsOfTwoAtATimeComeWholeAndInOrder)
{
    constexpr std::size_t Large = 5'000'000;
    int Ends[2];
    ASSERT_EQ(::pipe(Ends), 0);
    const auto Work = [&](int Index) {
        ::alarm(20); // rather than waiting for ever, should they run one after the other
        char Byte = 0;
        const ssize_t Passed = Index == 0 ? ::read(Ends[0], &Byte, 1) : ::write(Ends[1], &Byte, 1);
        return std::string(Passed == 1 ? Large : 0, static_cast<char>('a' + Index));
    };
    const auto Outcomes = RunWorkers(2, 2, Work, [](int) {});
    for (const int End : Ends) ::close(End);
    EXPECT_TRUE(Outcomes[0].Output == std::string(Large, 'a'));
    EXPECT_TRUE(Outcomes[1].Output == std::string(Large, 'b'));
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
    const auto Outcomes = RunWorkers(20, 20, Work, [](int) {});
    ::setrlimit(RLIMIT_NOFILE, &Usual);
    for (int Index = 0; Index < 20; ++Index) EXPECT_EQ(Outcomes[Index].Output, Work(Index));
}

} // namespace
} // namespace velorix
