// The program velorix-batch under time limits and interrupts, and what it needs for many files.
#include "BatchTest.h"

#include <csignal>
#include <poll.h>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace velorix {
namespace {

using nlohmann::json;

// The program while it runs.
class Started {
public:
    Started(const std::filesystem::path& Folder, const std::string& Words)
    {
        EXPECT_EQ(::pipe(Ends), 0);
        Process = ::fork();
        if (Process != 0) return;
        // A sanitizer keeps freed memory back, which would pass for growth.
        ::setenv("ASAN_OPTIONS", "quarantine_size_mb=1", 0);
        const std::string Line =
            "cd '" + Folder.string() + "' && exec " VELORIX_BATCH " " + Words + " >out.txt 2>err.txt";
        ::execl("/bin/sh", "sh", "-c", Line.c_str(), nullptr);
        ::_exit(127);
    }

    void Send(int Signal) const { ::kill(Process, Signal); }

    // Its exit status, or minus the signal that it died of.
    int Wait()
    {
        int Status = 0;
        ::wait4(Process, &Status, 0, &Use);
        return WIFEXITED(Status) ? WEXITSTATUS(Status) : -WTERMSIG(Status);
    }

    // Whether nobody is left who has inherited the pipe, the workers among them.
    bool AllGone() const
    {
        ::close(Ends[1]);
        pollfd Pipe = {Ends[0], POLLIN, 0};
        return ::poll(&Pipe, 1, 0) == 1 && (Pipe.revents & POLLHUP) != 0;
    }

    rusage Use{}; // of itself and its workers

private:
    pid_t Process = 0;
    int Ends[2] = {};
};

class ProcessTest : public BatchTest {
protected:
    // Copies of one project, named by Number.
    void WriteCopies(int Count) const
    {
        for (int Number = 1; Number <= Count; ++Number)
            std::filesystem::create_hard_link(Folder / "first.vlx",
                                              Folder / ("copy" + std::to_string(Number) + ".vlx"));
    }

    // A project that takes its time, most of it to write its tables: 499 rows over 100 years.
    void WriteBig() const
    {
        json Rows;
        for (int Row = 0; Row < 499; ++Row) {
            Rows["Elevation"].push_back(100 - Row * 0.1);
            Rows["AccLength"].push_back(Row * 20);
            Rows["Diameter"].push_back(600);
        }
        for (const char* List : {"NodeNr", "PipeCost", "SecondaryLoss", "NodeDesc", "WallThickness"})
            Rows[List] = json::array();
        Rows["Life"] = 100;
        WriteExample("first.vlx", "kloofsig-village-main", Rows);
    }

    // Waits until the program has written that much; false when that takes too long.
    bool Appears(const std::string& Name) const
    {
        for (int Tries = 0; Tries < 6000 && !std::filesystem::exists(Folder / Name); ++Tries)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        return std::filesystem::exists(Folder / Name);
    }
};

TEST_F(ProcessTest, ATimeLimitIsToldAndShownInTheTable)
{
    WriteBig();
    const Run Late = Batch("analyse first.vlx --csv late --timeout 0.001");
    EXPECT_EQ(Late.Status, 1);
    EXPECT_EQ(Late.Errors, "velorix-batch: first.vlx: ended at the time limit of 0.001 s\n");
    EXPECT_THAT(Late.Output, testing::HasSubstr("\nfirst.vlx   timed out"));
}

// Tables of files that have been finished stay, an array that isn't complete doesn't replace an earlier one,
// and neither a worker nor half a file is left behind.
TEST_F(ProcessTest, AnInterruptEndsAllAndExitsWith130)
{
    WriteBig();
    WriteCopies(300);
    WriteFile("results.json", "earlier");
    for (const int Signal : {SIGINT, SIGTERM}) {
        std::filesystem::remove_all(Folder / "tables");
        Started Batch(Folder, "analyse copy*.vlx --json results.json --csv tables --jobs 2");
        ASSERT_TRUE(Appears("tables/copy1-Gradeline.csv"));
        Batch.Send(Signal);
        EXPECT_EQ(Batch.Wait(), 130);
        EXPECT_TRUE(Batch.AllGone());
        EXPECT_EQ(ReadFile(Folder / "err.txt"), "velorix-batch: interrupted\n");
        EXPECT_EQ(ReadFile(Folder / "results.json"), "earlier");
        const std::filesystem::directory_iterator Files(Folder);
        EXPECT_EQ(std::distance(begin(Files), end(Files)),
                  1 + 300 + 4); // results.json, tables and the output
        EXPECT_THAT(ReadFile(Folder / "tables/copy1-Gradeline.csv"),
                    testing::ContainsRegex("\n2[0-9]*,[^\n]*\n$"));
    }
}

// Results of 200 more files are some 12 MB.
TEST_F(ProcessTest, MemoryDoesNotGrowWithTheNumberOfFiles)
{
    WriteExample("first.vlx", "brandkop-regional-main");
    WriteCopies(220);
    const auto PeakOf = [&](const std::string& Files) {
        Started Batch(Folder, "analyse " + Files + " --json results.json");
        EXPECT_EQ(Batch.Wait(), 0);
        return Batch.Use.ru_maxrss; // KiB
    };
    const long Few = PeakOf("copy1?.vlx copy2?.vlx");
    const auto OfFew = std::filesystem::file_size(Folder / "results.json");
    const long Many = PeakOf("copy*.vlx");
    EXPECT_GT(std::filesystem::file_size(Folder / "results.json"), OfFew + 10'000'000);
    EXPECT_LT(Many, Few + 5'000);
    EXPECT_EQ(json::parse(ReadFile(Folder / "results.json")).size(), 220U);
}

} // namespace
} // namespace velorix
