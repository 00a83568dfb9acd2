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
using testing::HasSubstr;

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
        const auto Outcomes = RunWorkers(7, Jobs, Work, [&](int Done) { Progress.push_back(Done); });
        EXPECT_THAT(Progress, ElementsAre(1, 2, 3, 4, 5, 6, 7));
        for (const int Index : {0, 6}) {
            EXPECT_EQ(Outcomes[Index].Output, "stood");
            EXPECT_EQ(Outcomes[Index].Error, "");
        }
        for (const int Index : {1, 2, 3, 4, 5}) EXPECT_EQ(Outcomes[Index].Output, "");
        EXPECT_EQ(Outcomes[1].Error, "no such pump");
        EXPECT_THAT(Outcomes[2].Error, HasSubstr("signal 9"));
        EXPECT_THAT(Outcomes[3].Error, HasSubstr("without a result"));
        EXPECT_THAT(Outcomes[4].Error, HasSubstr("unknown failure"));
        EXPECT_THAT(Outcomes[5].Error, HasSubstr("status 7"));
    }
}

// Far more than a pipe holds, and the first of two is the last to end.
TEST(WorkerTest, LargeOutputsComeWholeAndInOrder)
{
    constexpr std::size_t Large = 5'000'000;
    const auto Work = [](int Index) {
        if (Index == 0) ::usleep(50'000);
        return std::string(Large, static_cast<char>('a' + Index));
    };
    const auto Outcomes = RunWorkers(2, 2, Work, [](int) {});
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
    for (int Index = 0; Index < 20; ++Index) EXPECT_EQ(Outcomes[Index].Output, std::to_string(Index));
}

} // namespace
} // namespace velorix
