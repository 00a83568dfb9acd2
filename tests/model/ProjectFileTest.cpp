// Reading and writing of project files, and what is left when they fail.
#include "model/ProjectFile.h"
#include "base/Failure.h"
#include "input/ProjectTest.h"
#include "model/WriteNote.h"

#include <csignal>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>

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

    // The limit on file sizes stands for a disk without room: a write beyond it fails half-way.
    static void WithRoomFor(rlim_t Room, const std::function<void()>& Work)
    {
        rlimit Before{};
        ::getrlimit(RLIMIT_FSIZE, &Before);
        const rlimit Tight{Room, Before.rlim_max};
        const auto Handler = std::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &Tight);
        Work();
        ::setrlimit(RLIMIT_FSIZE, &Before);
        std::signal(SIGXFSZ, Handler);
    }

    const std::string Sample = BytesOf(SampleRecord());
};

TEST_F(ProjectFileTest, ReadsTheLastWholeRecord)
{
    const std::pair<std::string, std::string> Cases[] = {
        {Sample, Sample},
        {Filled(16650, 'x') + Sample + Filled(8325, 'y'), Sample},
        {Filled(16650, 'x') + Filled(8325, 'y'), Filled(8325, 'y') + Filled(8325, '\0')},
        {"", Filled(16650, '\0')}};
    for (const auto& [Bytes, Record] : Cases)
        EXPECT_EQ(BytesOf(ReadProjectFile(WriteFile("read.vlx", Bytes))), Record) << Bytes.size();
}

// The number of records is rounded, halves to even.
TEST_F(ProjectFileTest, WritesOnlyItsOwnRecord)
{
    const auto Written = [this](const std::string& Before) {
        const std::string Path = WriteFile("write.vlx", Before);
        WriteProjectFile(Path, SampleRecord(), ShortFile::Fails);
        return ReadFile(Path);
    };
    EXPECT_EQ(Written(Filled(16650, 'x')), Sample);
    EXPECT_EQ(Written(Filled(8326, 'x')), Sample);
    EXPECT_EQ(Written(Filled(20000, 'x')), Sample + Filled(3350, 'x'));  // the tail stays
    EXPECT_EQ(Written(Filled(24975, 'x')), Filled(16650, 'x') + Sample); // grows to the whole record
    EXPECT_EQ(Written(Filled(41625, 'x')), Filled(16650, 'x') + Sample + Filled(8325, 'x'));
}

TEST_F(ProjectFileTest, OnlySaveAsWritesIntoAFileWithoutARecord)
{
    const std::string Path = WriteFile("half.vlx", Filled(8325, 'x'));
    EXPECT_THROW(WriteProjectFile(Path, SampleRecord(), ShortFile::Fails), FileFailure);
    EXPECT_EQ(ReadFile(Path), Filled(8325, 'x'));
    for (const std::filesystem::path& Each : {std::filesystem::path(Path), Folder / "new.vlx"}) {
        WriteProjectFile(Each, SampleRecord(), ShortFile::TakesRecordOne);
        EXPECT_EQ(ReadFile(Each), Sample);
    }
}

TEST_F(ProjectFileTest, LinksAndPermissionsStay)
{
    const std::string Path = WriteFile("real.vlx", Filled(16650, 'x'));
    ASSERT_EQ(::chmod(Path.c_str(), 0640), 0);
    std::filesystem::create_symlink(Path, Folder / "link.vlx");
    std::filesystem::create_hard_link(Path, Folder / "twin.vlx");

    WriteProjectFile(Folder / "link.vlx", SampleRecord(), ShortFile::Fails);
    EXPECT_TRUE(std::filesystem::is_symlink(Folder / "link.vlx"));
    EXPECT_EQ(ReadFile(Folder / "twin.vlx"), Sample);
    EXPECT_EQ(static_cast<int>(std::filesystem::status(Path).permissions()), 0640);
    EXPECT_EQ(NotePath(Folder / "link.vlx"), NotePath(Path)); // all names find the same note
    EXPECT_FALSE(std::filesystem::exists(NotePath(Path)));
}

TEST_F(ProjectFileTest, WhatIsNoFileIsRefusedWithItsName)
{
    ASSERT_EQ(::mkfifo((Folder / "pipe").c_str(), 0600), 0);
    for (const std::filesystem::path& Path : {Folder, Folder / "missing.vlx", Folder / "pipe"})
        EXPECT_THAT([&] { ReadProjectFile(Path); },
                    testing::ThrowsMessage<FileFailure>(testing::HasSubstr(Path.string())));
    EXPECT_THROW(WriteProjectFile(Folder, SampleRecord(), ShortFile::TakesRecordOne), FileFailure);
}

TEST_F(ProjectFileTest, FullDiskLeavesTheFileAsItWas)
{
    // No room for the note; for the note, but not for the growth to three records.
    for (const auto& [Length, Room] : {std::pair{16650, 17000}, std::pair{45000, 46000}}) {
        const std::string Before(static_cast<std::size_t>(Length), 'x');
        const std::string Path = WriteFile("main.vlx", Before);
        WithRoomFor(static_cast<rlim_t>(Room), [&] {
            EXPECT_THROW(WriteProjectFile(Path, SampleRecord(), ShortFile::Fails), FileFailure);
        });
        EXPECT_EQ(ReadFile(Path), Before);
        EXPECT_FALSE(std::filesystem::exists(NotePath(Path)));
    }
    const std::filesystem::path Fresh = Folder / "fresh.vlx";
    WithRoomFor(5000, [&] {
        EXPECT_THROW(WriteProjectFile(Fresh, SampleRecord(), ShortFile::TakesRecordOne), FileFailure);
    });
    EXPECT_FALSE(std::filesystem::exists(Fresh)); // empty, it would pass for a project
}

TEST_F(ProjectFileTest, AnyNameIsWrittenWithANoteOrWithout)
{
    const std::string Long = WriteFile(Filled(251, 'n') + ".vlx", Filled(16650, 'x'));
    EXPECT_LE(NotePath(Long).filename().string().size(), 255U); // a name that a file can have
    const std::string NoNote = WriteFile("main.vlx", Filled(16650, 'x'));
    std::filesystem::create_directory(NotePath(NoNote)); // stands in the note's way
    for (const std::string& Path : {Long, NoNote}) {
        WriteProjectFile(Path, SampleRecord(), ShortFile::Fails);
        EXPECT_EQ(ReadFile(Path), Sample);
    }
}

class InterruptedWriteTest : public ProjectFileTest {
protected:
    InterruptedWriteTest()
    {
        PendingWrite Change;
        Change.New = ToImage(SampleRecord());
        Change.Old.fill('x');
        Change.Length = 16650;
        Path = WriteFile("project.vlx", Sample.substr(0, 4096) + Filled(16650 - 4096, 'x'));
        NoteWrite(Path, Change);
    }

    std::string Path;
};

TEST_F(InterruptedWriteTest, IsCompletedAsSoonAsItCanBe)
{
    WithRoomFor(10000, [this] { EXPECT_EQ(BytesOf(ReadProjectFile(Path)), Sample); });
    EXPECT_TRUE(std::filesystem::exists(NotePath(Path)));
    EXPECT_EQ(BytesOf(ReadProjectFile(Path)), Sample);
    EXPECT_EQ(ReadFile(Path), Sample);
    EXPECT_FALSE(std::filesystem::exists(NotePath(Path)));
}

TEST_F(InterruptedWriteTest, NoteThatIsTornOrFitsNoLongerIsDropped)
{
    const std::string Before = ReadFile(Path);
    const std::string Note = ReadFile(NotePath(Path));
    const std::string Torn = Note.substr(0, 20000);
    const std::string Blank = Torn + Filled(Note.size() - 20000, '\0'); // a machine that stops leaves this
    const std::pair<std::string, std::string> Cases[] = {
        {Before, Torn}, {Before, Blank}, {Filled(16650, 'z'), Note}};
    for (const auto& [Bytes, Found] : Cases) {
        WriteFile("project.vlx", Bytes);
        WriteFile(NotePath(Path).filename(), Found);
        EXPECT_EQ(BytesOf(ReadProjectFile(Path)), Bytes);
        EXPECT_FALSE(std::filesystem::exists(NotePath(Path)));
    }
}

} // namespace
} // namespace velorix
