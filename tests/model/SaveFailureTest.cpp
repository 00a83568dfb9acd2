// What is left of a file when its write fails, is killed, or meets other programs: tried at every call of the
// system that the write makes. The calls are caught here, by functions of their names.
#include "base/Failure.h"
#include "base/NewFile.h"
#include "input/ProjectTest.h"
#include "model/ProjectFile.h"

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <dlfcn.h>
#include <fcntl.h>
#include <functional>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

struct CallPlan {
    int Fatal = 0;        // the call to hit, counted from 1
    int Error = 0;        // it fails with this; 0: the process is killed
    int Made = 0;         // so far
    std::string Hit = {}; // its name
    bool Counting = false;
    bool LinksAreForeign = false; // links are shown as another user's
} Plan;

// Counts the call; whether the plan has it fail.
bool Fails(const char* Name)
{
    if (!Plan.Counting || ++Plan.Made != Plan.Fatal) return false;
    if (Plan.Error == 0) ::kill(::getpid(), SIGKILL);
    Plan.Hit = Name;
    errno = Plan.Error;
    return true;
}

// The system's own function of that name, unless it is to fail.
template <class Function, class... Arguments>
auto Through(const char* Name, Arguments... Passed)
{
    using Result = decltype(std::declval<Function*>()(Passed...));
    if (Fails(Name)) return static_cast<Result>(-1);
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, Name))(Passed...);
}

} // namespace

#define CATCH(Result, Name, Parameters, ...)                                                                 \
    extern "C" Result Name Parameters                                                                        \
    {                                                                                                        \
        return Through<Result Parameters>(#Name, __VA_ARGS__);                                               \
    }
CATCH(int, fstat, (int H, struct stat* S) noexcept, H, S)
CATCH(int, stat, (const char* P, struct stat* S) noexcept, P, S)
CATCH(ssize_t, pread, (int H, void* B, size_t N, off_t A), H, B, N, A)
CATCH(ssize_t, pwrite, (int H, const void* B, size_t N, off_t A), H, B, N, A)
CATCH(off_t, lseek, (int H, off_t A, int W) noexcept, H, A, W)
CATCH(int, ftruncate, (int H, off_t N) noexcept, H, N)
CATCH(int, fchmod, (int H, mode_t M) noexcept, H, M)
CATCH(ssize_t, fgetxattr, (int H, const char* A, void* V, size_t N) noexcept, H, A, V, N)
CATCH(int, fremovexattr, (int H, const char* A) noexcept, H, A)
CATCH(int, rename, (const char* From, const char* To) noexcept, From, To)
CATCH(int, unlink, (const char* P) noexcept, P)
#undef CATCH

// What the disk keeps can't be seen here, and would take its time.
extern "C" int fsync(int)
{
    return Fails("fsync") ? -1 : 0;
}

extern "C" int lstat(const char* Path, struct stat* Status) noexcept
{
    const int Result = Through<int(const char*, struct stat*)>("lstat", Path, Status);
    if (Result == 0 && Plan.LinksAreForeign && S_ISLNK(Status->st_mode)) Status->st_uid = 4242;
    return Result;
}

extern "C" int open(const char* Path, int Flags, ...)
{
    va_list Rest;
    va_start(Rest, Flags);
    const mode_t Mode = va_arg(Rest, mode_t);
    va_end(Rest);
    return Through<int(const char*, int, ...)>("open", Path, Flags, Mode);
}

extern "C" int fcntl(int Handle, int Command, ...)
{
    va_list Rest;
    va_start(Rest, Command);
    void* const Argument = va_arg(Rest, void*);
    va_end(Rest);
    return Through<int(int, int, ...)>("fcntl", Handle, Command, Argument);
}

namespace velorix {
namespace {

using Content = std::optional<std::string>; // nothing: no file

struct Save {
    std::string Name;
    Content Before;
    std::string After;
    bool FolderClosed = false;
    std::function<void(const std::filesystem::path&)> Write;
};

class SaveFailureTest : public ProjectTest {
protected:
    SaveFailureTest()
    {
        // Nothing is closed to root: the tests run as another user.
        const bool IsRoot = ::getuid() == 0;
        EXPECT_TRUE(!IsRoot || ::chown(Folder.c_str(), Nobody, Nobody) + ::seteuid(Nobody) == 0);
        const auto WriteProject = [this](const std::filesystem::path& Path) {
            WriteProjectFile(Path, Record, ShortFile::TakesRecordOne);
        };
        const auto WriteText = [](const std::filesystem::path& Path) {
            NewFile Text(Path);
            Text.Append("one ");
            Text.Append("two");
            Text.Commit();
        };
        SetText(Record.Project, "Sample");
        const std::string Three = std::string(45000, 'x'); // the third record grows to its length
        const std::string Written = Three.substr(0, 33300) + BytesOf(Record);
        Saves = {{"new", std::nullopt, BytesOf(Record), false, WriteProject},
                 {"one record", std::string(16650, 'x'), BytesOf(Record), false, WriteProject},
                 {"three records", Three, Written, false, WriteProject},
                 {"closed folder", Three, Written, true, WriteProject},
                 {"new text", std::nullopt, "one two", false, WriteText},
                 {"text", Three, "one two", false, WriteText}};
    }

    ~SaveFailureTest() override
    {
        Close(false);
        EXPECT_EQ(::seteuid(::getuid()), 0);
    }

    void Close(bool Closed) const { EXPECT_EQ(::chmod(Folder.c_str(), Closed ? 0555 : 0755), 0); }

    void Prepare(const Content& Before, bool FolderClosed) const
    {
        Close(false);
        for (const auto& Entry : std::filesystem::directory_iterator(Folder)) std::filesystem::remove(Entry);
        if (Before) WriteFile("main.vlx", *Before);
        Close(FolderClosed);
    }

    // Whether the save went through, and how it went against the plan.
    bool Succeeds(const Save& Each, int Fatal = 0, int Error = 0) const
    {
        Plan = {.Fatal = Fatal, .Error = Error, .Counting = true};
        try {
            Each.Write(Target);
            Plan.Counting = false;
            return true;
        } catch (const FileFailure&) {
            Plan.Counting = false;
            return false;
        }
    }

    Content Found() const
    {
        return std::filesystem::exists(Target) ? Content(ReadFile(Target)) : std::nullopt;
    }

    // Nothing but the file itself, where there is one.
    bool IsTidy() const
    {
        const std::filesystem::directory_iterator Entries(Folder);
        return std::distance(begin(Entries), end(Entries)) == (Found() ? 1 : 0);
    }

    void ExpectNextSaveStands(const Save& Each) const
    {
        EXPECT_TRUE(Succeeds(Each));
        EXPECT_TRUE(IsTidy());
    }

    // The process ends with 0 when the work gave true.
    static pid_t InProcess(const std::function<bool()>& Work)
    {
        const pid_t Child = ::fork();
        if (Child != 0) return Child;
        try {
            ::_exit(Work() ? 0 : 1);
        } catch (const std::exception& Problem) {
            ::_exit(2);
        }
    }

    static int StatusOf(pid_t Child)
    {
        int Status = -1;
        ::waitpid(Child, &Status, 0);
        return Status;
    }

    static constexpr uid_t Nobody = 65534;
    const std::filesystem::path Target = Folder / "main.vlx";
    ProjectFields Record;
    std::vector<Save> Saves;
};

TEST_F(SaveFailureTest, EachCallMayFailOrBeTheLast)
{
    for (const Save& Each : Saves) {
        Prepare(Each.Before, Each.FolderClosed);
        ASSERT_TRUE(Succeeds(Each)) << Each.Name;
        ASSERT_EQ(Found(), Each.After) << Each.Name;
        const int Calls = Plan.Made;
        for (int Call = 1; Call <= Calls; ++Call) {
            for (const int Error : {EIO, EACCES}) {
                Prepare(Each.Before, Each.FolderClosed);
                const bool Stood = Succeeds(Each, Call, Error);
                SCOPED_TRACE(Each.Name + ", call " + std::to_string(Call) + ", " + Plan.Hit + ", " +
                             std::to_string(Error));
                EXPECT_TRUE(Found() == (Stood ? Content(Each.After) : Each.Before));
                // A temporary file that another program seems to have taken over is left to that one.
                EXPECT_TRUE(IsTidy() || Plan.Hit == "fstat" || Plan.Hit == "lstat" || Plan.Hit == "fcntl");
                ExpectNextSaveStands(Each);
            }
            Prepare(Each.Before, Each.FolderClosed);
            EXPECT_TRUE(WIFSIGNALED(StatusOf(InProcess([&] { return Succeeds(Each, Call); }))));
            SCOPED_TRACE(Each.Name + ", killed at call " + std::to_string(Call));
            EXPECT_TRUE(Found() == Each.Before || Found() == Each.After);
            ExpectNextSaveStands(Each);
        }
    }
}

// The limit on file sizes stands for a disk without room: a write beyond it fails half-way.
TEST_F(SaveFailureTest, FullDiskLeavesTheFileAsItWas)
{
    rlimit Before{};
    ::getrlimit(RLIMIT_FSIZE, &Before);
    const auto Handler = std::signal(SIGXFSZ, SIG_IGN);
    int Failed = 0;
    for (const Save& Each : Saves)
        for (const rlim_t Room : {3, 5000, 20000, 46000}) {
            Prepare(Each.Before, Each.FolderClosed);
            const rlimit Tight{Room, Before.rlim_max};
            ::setrlimit(RLIMIT_FSIZE, &Tight);
            const bool Stood = Succeeds(Each);
            ::setrlimit(RLIMIT_FSIZE, &Before);
            EXPECT_TRUE(Found() == (Stood ? Content(Each.After) : Each.Before)) << Each.Name << Room;
            EXPECT_TRUE(IsTidy()) << Each.Name << Room;
            Failed += Stood ? 0 : 1;
        }
    std::signal(SIGXFSZ, Handler);
    EXPECT_EQ(Failed, 14); // by the lengths written: 2, 2, 4, 4, 1, 1
}

// Two programs save two records of one file, again and again; three read the last one.
TEST_F(SaveFailureTest, SaversTakeTurnsAndReadersSeeWholeRecords)
{
    const auto Filled = [](int Round) { return std::string(16650, static_cast<char>('A' + Round)); };
    const auto SaverOf = [&](std::uintmax_t Start) {
        return [&Filled, Start, this] {
            std::string Last(16650, ' ');
            for (int Round = 0; Round < 50; ++Round) {
                NewFile Next(Target);
                Next.Old()->Read(Start, Last.data(), Last.size());
                if (Last != Filled(Round)) return false; // the other has undone this one's
                Next.KeepOldBytes();
                Next.Write(Start, Filled(Round + 1).data(), Last.size());
                Next.Commit();
            }
            return true;
        };
    };
    const auto Read = [&] {
        for (int Time = 0; Time < 2000; ++Time) {
            const std::string Bytes = BytesOf(ReadProjectFile(Target));
            if (Bytes.find_first_not_of(Bytes.front()) != std::string::npos) return false;
        }
        return true;
    };
    for (const bool FolderClosed : {false, true}) {
        Prepare(Filled(0) + Filled(0), FolderClosed);
        std::vector<pid_t> Processes = {InProcess(SaverOf(0)), InProcess(SaverOf(16650))};
        for (int Reader = 0; Reader < 3; ++Reader) Processes.push_back(InProcess(Read));
        for (const pid_t Each : Processes) EXPECT_EQ(StatusOf(Each), 0) << FolderClosed;
        EXPECT_TRUE(Found() == Filled(50) + Filled(50)) << FolderClosed;
        EXPECT_TRUE(IsTidy());
    }
}

TEST_F(SaveFailureTest, NothingStaysOfWhatIsNotCommitted)
{
    for (const bool FolderClosed : {false, true}) {
        Prepare("before", FolderClosed);
        {
            NewFile Next(Target);
            Next.KeepOldBytes();
            Next.Write(2, "12345678", 8);
            Next.Write(0, "abcd", 4);
            Next.Append("end");
        }
        EXPECT_EQ(Found(), "before");
        EXPECT_TRUE(IsTidy());
    }
}

// The names that a write takes are known to all: what stands there may be a trap, or another's write.
TEST_F(SaveFailureTest, WhatOthersPutInTheWayIsLeftAlone)
{
    const std::filesystem::path Victim = WriteFile("victim", "keep");
    std::filesystem::create_symlink(Victim, Folder / ".main.vlx.saving-0");
    ASSERT_EQ(::mkfifo((Folder / ".main.vlx.saving-1").c_str(), 0666), 0);
    NewFile Other(Target);
    ASSERT_TRUE(std::filesystem::exists(Folder / ".main.vlx.saving-2"));
    WriteProjectFile(Target, Record, ShortFile::TakesRecordOne);
    EXPECT_EQ(Found(), BytesOf(Record));
    Other.Append("other");
    Other.Commit();
    EXPECT_EQ(Found(), "other");
    EXPECT_TRUE(std::filesystem::is_symlink(Folder / ".main.vlx.saving-0"));

    std::filesystem::create_symlink(Victim, Folder / "link.vlx");
    Plan.LinksAreForeign = true;
    EXPECT_THROW(WriteProjectFile(Folder / "link.vlx", Record, ShortFile::TakesRecordOne), FileFailure);
    Plan.LinksAreForeign = false;
    EXPECT_EQ(ReadFile(Victim), "keep");
}

} // namespace
} // namespace velorix
