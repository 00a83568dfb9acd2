// Reading and writing of project files, and what is left when they fail.
#include "project/ProjectFile.h"
#include "ProjectTest.h"
#include "base/Failure.h"
#include "project/File.h"
#include "project/WriteNote.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velorix {
namespace {

class ProjectFileTest : public ProjectTest {
protected:
    static std::string Filled(std::size_t Count, char Byte) { return std::string(Count, Byte); }

    static ProjectFields SampleRecord()
    {
        ProjectFields Record;
        Record.Life = 42;
        Record.Reserved1 = Single::FromBits(0x7FA12345); // a signalling NaN: nothing may touch it
        SetText(Record.Project, "Sample");
        return Record;
    }
};

TEST_F(ProjectFileTest, RecordNumberRoundsHalvesToEven)
{
    const std::pair<std::uintmax_t, std::int64_t> Cases[] = {
        {0, 0},     {1, 0},     {8325, 0},  {8326, 1},  {16650, 1}, {16651, 1},
        {24974, 1}, {24975, 2}, {33300, 2}, {41625, 2}, {58275, 4}, {166500, 10}};
    for (const auto& [Length, Number] : Cases) EXPECT_EQ(RecordNumber(Length), Number) << Length;
}

TEST_F(ProjectFileTest, ReadsTheLastWholeRecord)
{
    const std::string Record = BytesOf(SampleRecord());
    for (const std::string& Bytes :
         {Record, Filled(16650, 'x') + Record, Filled(16650, 'x') + Record + Filled(8325, 'y')})
        EXPECT_EQ(BytesOf(ReadProjectFile(WriteFile("read.vlx", Bytes))), Record) << Bytes.size();
}

TEST_F(ProjectFileTest, ShortRecordEndsInZeroBytes)
{
    const std::string Path = WriteFile("short.vlx", Filled(16650, 'x') + Filled(8325, 'y'));
    EXPECT_EQ(BytesOf(ReadProjectFile(Path)), Filled(8325, 'y') + Filled(8325, '\0'));
    EXPECT_EQ(BytesOf(ReadProjectFile(WriteFile("empty.vlx", ""))), Filled(16650, '\0'));
}

TEST_F(ProjectFileTest, WritesOnlyItsOwnRecord)
{
    const std::string Record = BytesOf(SampleRecord());
    const auto Written = [&](const std::string& Before) {
        const std::string Path = WriteFile("write.vlx", Before);
        WriteProjectFile(Path, SampleRecord(), ShortFile::Fails);
        return ReadFile(Path);
    };
    EXPECT_EQ(Written(Filled(16650, 'x')), Record);
    EXPECT_EQ(Written(Filled(33300, 'x')), Filled(16650, 'x') + Record);
    EXPECT_EQ(Written(Filled(20000, 'x')), Record + Filled(3350, 'x'));  // the tail stays
    EXPECT_EQ(Written(Filled(25000, 'x')), Filled(16650, 'x') + Record); // grows to the whole record
    EXPECT_EQ(Written(Filled(41625, 'x')).substr(33300), Filled(8325, 'x'));
}

TEST_F(ProjectFileTest, OnlySaveAsWritesIntoAFileWithoutARecord)
{
    const std::string Path = WriteFile("half.vlx", Filled(8325, 'x'));
    EXPECT_THROW(WriteProjectFile(Path, SampleRecord(), ShortFile::Fails), FileFailure);
    EXPECT_EQ(ReadFile(Path), Filled(8325, 'x'));

    WriteProjectFile(Path, SampleRecord(), ShortFile::TakesRecordOne);
    EXPECT_EQ(ReadFile(Path), BytesOf(SampleRecord()));
    WriteProjectFile(Folder / "new.vlx", SampleRecord(), ShortFile::TakesRecordOne);
    EXPECT_EQ(ReadFile(Folder / "new.vlx"), BytesOf(SampleRecord()));
}

TEST_F(ProjectFileTest, LinksAndPermissionsStay)
{
    const std::string Path = WriteFile("real.vlx", Filled(16650, 'x'));
    ASSERT_EQ(::chmod(Path.c_str(), 0640), 0);
    std::filesystem::create_symlink(Path, Folder / "link.vlx");
    std::filesystem::create_hard_link(Path, Folder / "twin.vlx");

    WriteProjectFile(Folder / "link.vlx", SampleRecord(), ShortFile::Fails);
    EXPECT_TRUE(std::filesystem::is_symlink(Folder / "link.vlx"));
    EXPECT_EQ(ReadFile(Folder / "twin.vlx"), BytesOf(SampleRecord()));
    EXPECT_EQ(static_cast<int>(std::filesystem::status(Path).permissions()), 0640);
    EXPECT_FALSE(std::filesystem::exists(NotePath(Path)));
}

TEST_F(ProjectFileTest, WhatIsNoFileIsRefusedWithItsName)
{
    ASSERT_EQ(::mkfifo((Folder / "pipe").c_str(), 0600), 0);
    for (const std::filesystem::path& Path : {Folder, Folder / "missing.vlx", Folder / "pipe"}) {
        try {
            ReadProjectFile(Path);
            ADD_FAILURE() << Path << " was read";
        } catch (const FileFailure& Problem) {
            EXPECT_NE(std::string(Problem.what()).find(Path.string()), std::string::npos);
        }
    }
    EXPECT_THROW(WriteProjectFile(Folder, SampleRecord(), ShortFile::TakesRecordOne), FileFailure);
}

// The limit on file sizes stands for a disk without room: a write beyond it fails half-way.
TEST_F(ProjectFileTest, FullDiskLeavesTheFileAsItWas)
{
    const auto WriteWithRoomFor = [&](const std::string& Path, rlim_t Room) {
        rlimit Before{};
        ::getrlimit(RLIMIT_FSIZE, &Before);
        const rlimit Tight{Room, Before.rlim_max};
        const auto Handler = std::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &Tight);
        EXPECT_THROW(WriteProjectFile(Path, SampleRecord(), ShortFile::TakesRecordOne), FileFailure);
        ::setrlimit(RLIMIT_FSIZE, &Before);
        std::signal(SIGXFSZ, Handler);
    };
    const std::string NoRoomForNote = WriteFile("one.vlx", Filled(16650, 'x'));
    WriteWithRoomFor(NoRoomForNote, 17000);
    EXPECT_EQ(ReadFile(NoRoomForNote), Filled(16650, 'x'));

    const std::string NoRoomForRecord = WriteFile("three.vlx", Filled(45000, 'x')); // grows to three records
    WriteWithRoomFor(NoRoomForRecord, 46000);
    EXPECT_EQ(ReadFile(NoRoomForRecord), Filled(45000, 'x'));

    WriteWithRoomFor((Folder / "fresh.vlx").string(), 5000);
    EXPECT_EQ(ReadFile(Folder / "fresh.vlx"), "");
    EXPECT_FALSE(std::filesystem::exists(NotePath(NoRoomForNote)));
    EXPECT_FALSE(std::filesystem::exists(NotePath(NoRoomForRecord)));
}

class InterruptedWriteTest : public ProjectFileTest {
protected:
    InterruptedWriteTest()
    {
        const std::string Record = BytesOf(SampleRecord());
        std::copy(Record.begin(), Record.end(), Change.New.begin());
        Change.Old.fill('x');
        Change.Length = 16650;
        Path = WriteFile("project.vlx", Record.substr(0, 4096) + Filled(16650 - 4096, 'x'));
        NoteWrite(Path, Change);
    }

    PendingWrite Change;
    std::string Path;
};

TEST_F(InterruptedWriteTest, IsCompletedAtTheNextUse)
{
    EXPECT_EQ(BytesOf(ReadProjectFile(Path)), BytesOf(SampleRecord()));
    EXPECT_EQ(ReadFile(Path), BytesOf(SampleRecord()));
    EXPECT_FALSE(std::filesystem::exists(NotePath(Path)));
}

TEST_F(ProjectFileTest, LongNamesAreWrittenToo)
{
    const std::string Long = WriteFile(Filled(251, 'n') + ".vlx", Filled(16650, 'x'));
    WriteProjectFile(Long, SampleRecord(), ShortFile::Fails);
    EXPECT_EQ(ReadFile(Long), BytesOf(SampleRecord()));
}

TEST_F(InterruptedWriteTest, NoteThatFitsNoLongerIsDropped)
{
    const std::string Other = Filled(16650, 'z');
    WriteFile("project.vlx", Other);
    EXPECT_EQ(BytesOf(ReadProjectFile(Path)), Other);
    EXPECT_FALSE(std::filesystem::exists(NotePath(Path)));
}

TEST_F(InterruptedWriteTest, TornNoteIsDropped)
{
    const std::string Before = ReadFile(Path);
    std::filesystem::resize_file(NotePath(Path), 20000);
    EXPECT_EQ(BytesOf(ReadProjectFile(Path)), Before);
    EXPECT_FALSE(std::filesystem::exists(NotePath(Path)));
}

} // namespace
} // namespace velorix
