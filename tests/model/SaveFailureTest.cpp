// What is left of a file when its write fails, is killed, or meets other programs: tried at every call of the
// system that the write makes. The calls are caught here, by functions of their names.
#include "base/Failure.h"
#include "base/NewFile.h"
#include "input/ProjectTest.h"
#include "model/ProjectFile.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <dlfcn.h>
#include <fcntl.h>
#include <functional>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

struct CallPlan {
    bool Counting = false;
    int Fatal = 0;              // the call to hit, counted from 1
    int Error = 0;              // it fails with this; 0: the process is killed
    int Made = 0;               // so far
    std::string Hit = {};       // the name of the call that failed
    std::string Log = {};       // the names of all
    size_t Portion = 1U << 30U; // the most bytes that one call writes
    bool IsStranger = false;    // the user owns nothing
    bool IsMounted = false;     // each file, by itself
    std::string Refused = {};   // the name of a call that always fails with the error
} Plan;

bool Fails(const char* Name)
{
    if (Plan.Refused == Name) {
        errno = Plan.Error;
        return true;
    }
    if (!Plan.Counting) return false;
    Plan.Log += std::string(Name) + " ";
    if (++Plan.Made != Plan.Fatal) return false;
    if (Plan.Error == 0) ::kill(::getpid(), SIGKILL);
    Plan.Hit = Name;
    errno = Plan.Error;
    return true;
}

// The system's own function of that name, unless it is to fail.
template <class Function, class... Arguments>
auto Through(const char* Name, Arguments... Passed)
{
    const bool Hit = Fails(Name);
    auto* const Own = reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, Name));
    return Hit ? decltype(Own(Passed...)){-1} : Own(Passed...);
}

} // namespace

#define CATCH(Result, Name, Parameters, ...)                                                                 \
    extern "C" Result Name Parameters                                                                        \
    {                                                                                                        \
        return Through<Result Parameters>(#Name, __VA_ARGS__);                                               \
    }
CATCH(int, fstat, (int H, struct stat* S) noexcept, H, S)
CATCH(int, lstat, (const char* P, struct stat* S) noexcept, P, S)
CATCH(int, stat, (const char* P, struct stat* S) noexcept, P, S)
CATCH(ssize_t, pread, (int H, void* B, size_t N, off_t A), H, B, N, A)
CATCH(ssize_t, pwrite, (int H, const void* B, size_t N, off_t A), H, B, std::min(N, Plan.Portion), A)
CATCH(off_t, lseek, (int H, off_t A, int W) noexcept, H, A, W)
CATCH(int, ftruncate, (int H, off_t N) noexcept, H, N)
CATCH(int, fchmod, (int H, mode_t M) noexcept, H, M)
CATCH(ssize_t, fgetxattr, (int H, const char* A, void* V, size_t N) noexcept, H, A, V, N)
CATCH(int, fremovexattr, (int H, const char* A) noexcept, H, A)
CATCH(int, rename, (const char* From, const char* To) noexcept, From, To)
CATCH(int, unlink, (const char* P) noexcept, P)
#undef CATCH

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

extern "C" int statx(int Handle, const char* Path, int Flags, unsigned Mask, struct statx* Status) noexcept
{
    const int Result = Through<int(int, const char*, int, unsigned, struct statx*)>("statx", Handle, Path,
                                                                                    Flags, Mask, Status);
    if (Plan.IsMounted) Status->stx_attributes |= STATX_ATTR_MOUNT_ROOT;
    return Result;
}

// What the disk keeps can't be seen here, and would take its time.
extern "C" int fsync(int)
{
    return Fails("fsync") ? -1 : 0;
}

extern "C" uid_t geteuid() noexcept
{
    return Plan.IsStranger ? 4242 : static_cast<uid_t>(::syscall(SYS_geteuid));
}

namespace velorix {
namespace {

using Content = std::optional<std::string>; // nothing: no file

struct Save {
    std::string Name;
    Content Before;
    std::string After;
    std::function<void(const std::filesystem::path&)> Write;
    bool FolderClosed = false;
};

class SaveFailureTest : public ProjectTest {
protected:
    SaveFailureTest()
    {
        // Nothing is closed to root: the tests run as another user.
        constexpr uid_t Nobody = 65534;
        const bool IsRoot = ::getuid() == 0;
        EXPECT_TRUE(!IsRoot || ::chown(Folder.c_str(), Nobody, Nobody) + ::seteuid(Nobody) == 0);
        SetText(Record.Project, "Sample");
    }

    ~SaveFailureTest() override
    {
        Prepare(std::nullopt, false);
        EXPECT_EQ(::seteuid(::getuid()), 0);
    }

    std::vector<Save> AllSaves() const
    {
        const auto WriteProject = [this](const auto& Path) {
            WriteProjectFile(Path, Record, ShortFile::TakesRecordOne);
        };
        const auto WriteText = [](const auto& Path) {
            NewFile Text(Path);
            Text.Append("one ");
            Text.Append("two");
            Text.Commit();
        };
        const std::string Three(45000, 'x'); // the third record grows to its length
        const std::string Written = Three.substr(0, 33300) + BytesOf(Record);
        return {{"new", std::nullopt, BytesOf(Record), WriteProject},
                {"one record", std::string(16650, 'x'), BytesOf(Record), WriteProject},
                {"three records", Three, Written, WriteProject},
                {"closed folder", Three, Written, WriteProject, true},
                {"new text", std::nullopt, "one two", WriteText},
                {"text", Three, "one two", WriteText}};
    }

    void Prepare(const Content& Before, bool FolderClosed) const
    {
        EXPECT_EQ(::chmod(Folder.c_str(), 0755), 0);
        for (const auto& Entry : std::filesystem::directory_iterator(Folder)) std::filesystem::remove(Entry);
        if (Before) WriteFile("main.vlx", *Before);
        EXPECT_EQ(::chmod(Folder.c_str(), FolderClosed ? 0555 : 0755), 0);
    }

    // Saves as planned; whether that went through.
    bool Succeeds(const Save& Each, int Fatal = 0, int Error = 0) const
    {
        Plan = {.Counting = true, .Fatal = Fatal, .Error = Error};
        bool Stood = true;
        try {
            Each.Write(Target);
        } catch (const FileFailure&) {
            Stood = false;
        }
        Plan.Counting = false;
        return Stood;
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

    // The process ends with 0 when the work gave true.
    static pid_t InProcess(const std::function<bool()>& Work)
    {
        const pid_t Child = ::fork();
        if (Child != 0) return Child;
        try {
            ::_exit(Work() ? 0 : 1);
        } catch (const std::exception&) {
            ::_exit(2);
        }
    }

    static int StatusOf(pid_t Child)
    {
        int Status = -1;
        ::waitpid(Child, &Status, 0);
        return Status;
    }

    const std::filesystem::path Target = Folder / "main.vlx";
    ProjectFields Record;
};

TEST_F(SaveFailureTest, EachCallMayFailOrBeTheLast)
{
    for (const Save& Each : AllSaves()) {
        Prepare(Each.Before, Each.FolderClosed);
        ASSERT_TRUE(Succeeds(Each)) << Each.Name;
        ASSERT_EQ(Found(), Each.After) << Each.Name;
        EXPECT_THAT(Plan.Log, testing::EndsWith(Each.FolderClosed ? "fsync " : "fsync rename open fsync "));
        const int Calls = Plan.Made;
        for (int Call = 1; Call <= Calls; ++Call)
            for (const int Error : {EIO, EACCES, 0}) {
                SCOPED_TRACE(Each.Name + ", call " + std::to_string(Call) + ", " + std::to_string(Error));
                Prepare(Each.Before, Each.FolderClosed);
                const auto Try = [&] { return Succeeds(Each, Call, Error); };
                if (Error == 0) {
                    EXPECT_TRUE(WIFSIGNALED(StatusOf(InProcess(Try))));
                    EXPECT_TRUE(Found() == Each.Before || Found() == Each.After);
                } else {
                    EXPECT_TRUE(Found() == (Try() ? Content(Each.After) : Each.Before)) << Plan.Hit;
                    // A temporary file that another program seems to have taken over is left to that one.
                    const bool Left = Plan.Hit == "fstat" || Plan.Hit == "lstat" || Plan.Hit == "fcntl";
                    EXPECT_TRUE(IsTidy() || Left) << Plan.Hit;
                }
                EXPECT_TRUE(Succeeds(Each));
                EXPECT_TRUE(IsTidy());
            }
    }
}

// The limit on file sizes stands for a disk without room: a write beyond it fails half-way.
TEST_F(SaveFailureTest, FullDiskLeavesTheFileAsItWas)
{
    rlimit Limit{};
    ::getrlimit(RLIMIT_FSIZE, &Limit);
    const auto Handler = std::signal(SIGXFSZ, SIG_IGN);
    int Failed = 0;
    for (const Save& Each : AllSaves())
        for (const rlim_t Room : {3, 5000, 20000, 46000}) {
            Prepare(Each.Before, Each.FolderClosed);
            const rlimit Tight{Room, Limit.rlim_max};
            ::setrlimit(RLIMIT_FSIZE, &Tight);
            const bool Stood = Succeeds(Each);
            ::setrlimit(RLIMIT_FSIZE, &Limit);
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
    constexpr int Rounds = 50;
    const auto Filled = [](int Round) { return std::string(16650, static_cast<char>('A' + Round)); };
    const auto Saver = [&](std::uintmax_t Start) {
        std::string Last(16650, ' ');
        for (int Round = 0; Round < Rounds; ++Round) {
            NewFile Next(Target);
            Next.Old()->Read(Start, Last.data(), Last.size());
            if (Last != Filled(Round)) return false; // the other has undone this one's
            Next.KeepOldBytes();
            Next.Write(Start, Filled(Round + 1).data(), Last.size());
            Next.Commit();
        }
        return true;
    };
    const auto Reader = [&] {
        ::alarm(60);
        std::string Bytes = Filled(0);
        while (Bytes != Filled(Rounds)) {
            Bytes = BytesOf(ReadProjectFile(Target));
            if (Bytes.find_first_not_of(Bytes.front()) != std::string::npos) return false;
        }
        return true;
    };
    Plan = {.Portion = 100}; // so that a record is in the making for long
    for (const bool FolderClosed : {false, true}) {
        Prepare(Filled(0) + Filled(0), FolderClosed);
        std::vector<pid_t> Programs = {InProcess(Reader), InProcess(Reader), InProcess(Reader)};
        for (const std::uintmax_t Start : {0, 16650})
            Programs.push_back(InProcess([&] { return Saver(Start); }));
        for (const pid_t Each : Programs) EXPECT_EQ(StatusOf(Each), 0) << FolderClosed;
        EXPECT_TRUE(Found() == Filled(Rounds) + Filled(Rounds)) << FolderClosed;
        EXPECT_TRUE(IsTidy());
    }
    Plan = {};
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
    for (int Number = 3; Number < 16; ++Number)
        ASSERT_EQ(::mkfifo((Folder / (".main.vlx.saving-" + std::to_string(Number))).c_str(), 0666), 0);
    WriteProjectFile(Target, Record, ShortFile::TakesRecordOne);
    EXPECT_EQ(Found(), BytesOf(Record));
    Other.Append("other");
    Other.Commit();
    EXPECT_EQ(Found(), "other");

    // Another's link is refused; another's file in a folder that guards it is written over.
    std::filesystem::create_symlink(Victim, Folder / "link.vlx");
    std::filesystem::create_hard_link(Target, Folder / "twin.vlx");
    ASSERT_EQ(::chmod(Folder.c_str(), 01777), 0);
    Plan = {.IsStranger = true};
    EXPECT_THROW(WriteProjectFile(Folder / "link.vlx", Record, ShortFile::TakesRecordOne), FileFailure);
    WriteProjectFile(Target, Record, ShortFile::TakesRecordOne);
    Plan = {};
    EXPECT_EQ(ReadFile(Victim), "keep");
    EXPECT_EQ(ReadFile(Folder / "twin.vlx"), BytesOf(Record));
}

// A filesystem may leave out some calls. The old file is written over where a new one couldn't be like it.
TEST_F(SaveFailureTest, OwnerAndRightsStayWhateverIsRefused)
{
    const uid_t User = ::getuid();
    const uid_t Saver = ::geteuid();
    const struct {
        CallPlan Given;
        mode_t Mode;
        uid_t Owner;
        bool Overwritten;
    } Rows[] = {
        {{.Error = EINVAL, .Refused = "lseek"}, 0644, Saver, false},
        {{.Error = EINVAL, .Refused = "fsync"}, 0644, Saver, false},
        {{.Error = EPERM, .Refused = "fchmod"}, 0600, Saver, false},
        {{.Error = EPERM, .Refused = "fchmod"}, 0640, Saver, true},
        {{.Error = EPERM, .Refused = "fremovexattr"}, 0644, Saver, true},
        {{.IsMounted = true}, 0644, Saver, true},
        {{}, 0666, User, User != Saver}, // root's, when root runs the tests
    };
    for (const auto& Each : Rows) {
        SCOPED_TRACE(&Each - Rows);
        Prepare(std::string(16650, 'x'), false);
        struct stat Before {};
        struct stat After {};
        ASSERT_EQ(::chmod(Target.c_str(), Each.Mode), 0);
        ASSERT_EQ(::seteuid(User) + ::chown(Target.c_str(), Each.Owner, ::getegid()) + ::seteuid(Saver), 0);
        ASSERT_EQ(::stat(Target.c_str(), &Before), 0);
        Plan = Each.Given;
        EXPECT_NO_THROW(WriteProjectFile(Target, Record, ShortFile::Fails));
        Plan = {};
        ASSERT_EQ(::stat(Target.c_str(), &After), 0);
        EXPECT_EQ(Found(), BytesOf(Record));
        EXPECT_EQ(After.st_uid, Each.Owner);
        EXPECT_EQ(After.st_mode, Before.st_mode);
        EXPECT_EQ(After.st_ino == Before.st_ino, Each.Overwritten);
        EXPECT_TRUE(IsTidy());
    }
}

} // namespace
} // namespace velorix
