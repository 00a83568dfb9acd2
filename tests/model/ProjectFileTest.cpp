// Reading and writing of project files: which record, and what becomes of the rest.
#include "model/ProjectFile.h"
#include "base/Failure.h"
#include "base/File.h"
#include "input/ProjectTest.h"

#include <gmock/gmock.h>
#include <random>
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
        SetText(Record.Project, "Sample");
        return Record;
    }

    // A record of any bits: signalling NaNs are among its numbers.
    static std::string AnyBits()
    {
        std::mt19937 Random(7);
        std::string Bytes = Filled(16650, ' ');
        for (char& Each : Bytes) Each = static_cast<char>(Random());
        return Bytes;
    }

    const std::string Sample = BytesOf(SampleRecord());
};

TEST_F(ProjectFileTest, ReadsTheLastWholeRecord)
{
    const std::pair<std::string, std::string> Cases[] = {
        {AnyBits(), AnyBits()},
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

// A hard link is another name of the old file.
TEST_F(ProjectFileTest, SymbolicLinksAndPermissionsStay)
{
    const std::string Before = Filled(16650, 'x');
    const std::string Path = WriteFile(Filled(251, 'n') + ".vlx", Before); // the longest name there is
    ASSERT_EQ(::chmod(Path.c_str(), 0606), 0);
    std::filesystem::create_hard_link(Path, Folder / "twin.vlx");
    std::filesystem::create_directory(Folder / "far");
    std::filesystem::create_symlink(".." / std::filesystem::path(Path).filename(), Folder / "far/link.vlx");
    std::filesystem::create_symlink("far/link.vlx", Folder / "link.vlx");
    std::filesystem::create_symlink("new.vlx", Folder / "dangling.vlx");

    WriteProjectFile(Folder / "link.vlx", SampleRecord(), ShortFile::Fails);
    EXPECT_EQ(ReadFile(Path), Sample);
    EXPECT_EQ(static_cast<int>(std::filesystem::status(Path).permissions()), 0606);
    EXPECT_EQ(ReadFile(Folder / "twin.vlx"), Before);
    WriteProjectFile(Folder / "dangling.vlx", SampleRecord(), ShortFile::TakesRecordOne);
    EXPECT_EQ(ReadFile(Folder / "new.vlx"), Sample);
    for (const char* Each : {"far/link.vlx", "link.vlx", "dangling.vlx"})
        EXPECT_TRUE(std::filesystem::is_symlink(Folder / Each)) << Each;
}

// 100 GB of nothing, and a record behind it.
TEST_F(ProjectFileTest, HolesOfALongFileStayHoles)
{
    constexpr std::uintmax_t Start = 6000000 * std::uintmax_t{16650};
    const std::string Path = WriteFile("long.vlx", "head");
    std::filesystem::resize_file(Path, Start + 16650);
    WriteProjectFile(Path, SampleRecord(), ShortFile::Fails);
    EXPECT_EQ(BytesOf(ReadProjectFile(Path)), Sample);
    EXPECT_EQ(std::filesystem::file_size(Path), Start + 16650);
    std::string Head(4, ' ');
    File::OpenToRead(Path).Read(0, Head.data(), Head.size());
    EXPECT_EQ(Head, "head");
    struct stat Status {};
    ASSERT_EQ(::stat(Path.c_str(), &Status), 0);
    EXPECT_LT(Status.st_blocks, 1000);
}

TEST_F(ProjectFileTest, WhatIsNoFileIsRefusedWithItsName)
{
    ASSERT_EQ(::mkfifo((Folder / "pipe").c_str(), 0600), 0);
    for (const std::filesystem::path& Path : {Folder, Folder / "missing.vlx", Folder / "pipe"})
        EXPECT_THAT([&] { ReadProjectFile(Path); },
                    testing::ThrowsMessage<FileFailure>(testing::HasSubstr(Path.string())));
    std::filesystem::create_symlink("loop", Folder / "loop");
    for (const char* Each : {"", "pipe", "loop", "missing/main.vlx"})
        EXPECT_THROW(WriteProjectFile(Folder / Each, SampleRecord(), ShortFile::TakesRecordOne), FileFailure);
    EXPECT_FALSE(std::filesystem::exists(Folder / "missing"));

    // Opening it to save in place makes it anew, without a record to replace.
    EXPECT_THROW(WriteProjectFile(Folder / "main.vlx", SampleRecord(), ShortFile::Fails), FileFailure);
    EXPECT_EQ(std::filesystem::file_size(Folder / "main.vlx"), 0U);
}

} // namespace
} // namespace velorix
