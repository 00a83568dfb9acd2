// The program velorix-batch among signals: workers that crash or take too long, interrupts, its own end; and
// what it needs for many files.
#include "BatchTest.h"

#include <csignal>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace velorix {
namespace {

using nlohmann::json;
using testing::ContainsRegex;
using testing::HasSubstr;

// The program while it runs.
class Started {
public:
    Started(const std::filesystem::path& Folder, const std::string& Words)
    {
        Process = ::fork();
        if (Process != 0) return;
        // A sanitizer keeps freed memory back, which would pass for growth.
        ::setenv("ASAN_OPTIONS", "quarantine_size_mb=1", 0);
        const std::string Line =
            "cd '" + Folder.string() + "' && exec " VELORIX_BATCH " " + Words + " >out.txt 2>err.txt";
        ::execl("/bin/sh", "sh", "-c", Line.c_str(), nullptr);
        ::_exit(127);
    }

    // A worker that has been stopped at its work; 0 when the program has ended.
    pid_t StoppedWorker() const
    {
        while (const pid_t Found = Worker()) {
            if (LeavesInterrupts(Found)) ::kill(Found, SIGSTOP);
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
            if (State(Found) == 'T') return Found;
        }
        return 0;
    }

    // Waits for one of its workers; 0 when the program has ended.
    pid_t Worker() const
    {
        const std::string Place = "/proc/" + std::to_string(Process);
        for (pid_t Found = 0; IsAlive(Process);) {
            std::ifstream(Place + "/task/" + std::to_string(Process) + "/children") >> Found;
            if (Found != 0) return Found;
        }
        return 0;
    }

    void Send(int Signal) const { ::kill(Process, Signal); }

    // Its exit status, or minus the signal that it died of.
    int Wait()
    {
        int Status = 0;
        ::wait4(Process, &Status, 0, &Use);
        return WIFEXITED(Status) ? WEXITSTATUS(Status) : -WTERMSIG(Status);
    }

    // The system's letter: T for a process that has been stopped, Z for one that has ended.
    static char State(pid_t Process)
    {
        std::string Ignored;
        char Letter = 'Z';
        std::ifstream("/proc/" + std::to_string(Process) + "/stat") >> Ignored >> Ignored >> Letter;
        return Letter;
    }

    // What a worker does once it is tied to its parent.
    static bool LeavesInterrupts(pid_t Process)
    {
        std::ifstream Status("/proc/" + std::to_string(Process) + "/status");
        std::string Word;
        while (Status >> Word && Word != "SigIgn:") continue;
        unsigned long Ignored = 0;
        Status >> std::hex >> Ignored;
        return (Ignored >> (SIGINT - 1) & 1U) != 0;
    }

    static bool IsAlive(pid_t Process) { return State(Process) != 'Z'; }

    rusage Use{}; // of itself and its workers

private:
    pid_t Process = 0;
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

    int FilesIn(const std::string& Name) const
    {
        const std::filesystem::directory_iterator All(Folder / Name);
        return static_cast<int>(std::distance(begin(All), end(All)));
    }
};

TEST_F(ProcessTest, ACrashAndATimeLimitAreTheirOwnFilesOnly)
{
    WriteBig();
    WriteCopies(4);
    const std::string Words = "analyse copy*.vlx --json results.json --csv tables --jobs 1";
    Started Crash(Folder, Words);
    ::kill(Crash.StoppedWorker(), SIGKILL);
    EXPECT_EQ(Crash.Wait(), 1);
    EXPECT_THAT(ReadFile(Folder / "err.txt"),
                ContainsRegex("copy[1-4].vlx: crashed: the worker was ended by signal 9"));
    const json Results = json::parse(ReadFile(Folder / "results.json"));
    EXPECT_EQ(Results.size(), 4U);
    EXPECT_EQ(std::count(Results.begin(), Results.end(), json(nullptr)), 1);
    EXPECT_EQ(FilesIn("tables"), 3 * 7);

    const Run Late = Batch("analyse copy1.vlx --json late.json --timeout 0.001");
    EXPECT_EQ(Late.Status, 1);
    EXPECT_EQ(Late.Errors, "velorix-batch: copy1.vlx: ended at the time limit of 0.001 s\n");
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
        const pid_t Worker = Batch.Worker();
        Batch.Send(Signal);
        EXPECT_EQ(Batch.Wait(), 130);
        EXPECT_FALSE(Started::IsAlive(Worker));
        EXPECT_EQ(ReadFile(Folder / "err.txt"), "velorix-batch: interrupted\n");
        EXPECT_EQ(ReadFile(Folder / "results.json"), "earlier");
        EXPECT_EQ(FilesIn("."), 1 + 300 + 4); // results.json, tables, out.txt and err.txt
        EXPECT_THAT(ReadFile(Folder / "tables/copy1-Gradeline.csv"), ContainsRegex("\n2[0-9]*,[^\n]*\n$"));
    }
}

TEST_F(ProcessTest, WorkersDieWithTheProgram)
{
    WriteBig();
    WriteCopies(300);
    Started Batch(Folder, "analyse copy*.vlx --jobs 1 --json results.json");
    const pid_t Worker = Batch.StoppedWorker();
    ASSERT_NE(Worker, 0);
    Batch.Send(SIGKILL);
    EXPECT_EQ(Batch.Wait(), -SIGKILL);
    for (int Tries = 0; Tries < 1000 && Started::IsAlive(Worker); ++Tries)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_FALSE(Started::IsAlive(Worker));
    EXPECT_FALSE(std::filesystem::exists(Folder / "results.json"));
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
