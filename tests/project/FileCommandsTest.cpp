// The file commands as a user runs them, on real files.
#include "project/FileCommands.h"
#include "ProjectTest.h"
#include "base/Failure.h"
#include "screens/Dialogs.h"
#include "screens/Viewers.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace velorix {
namespace {

class FileCommandsTest : public ProjectTest {
protected:
    FileCommandsTest()
    {
        for (Screen* Each : std::initializer_list<Screen*>{&frmLCCType, &frmView, &frmPumpView})
            Each->Unload();
    }

    // A complete gravity project in a file of that name.
    std::filesystem::path StartSaved(const std::string& Name)
    {
        StartNew(0);
        frmLCC.txtProject.Text = "Hill main";
        frmLCC.txtDesigner.Text = "A. Designer";
        Windows.Files = {Folder / Name};
        SaveCommand();
        return Folder / Name;
    }

    static void TypeKsNew(const std::string& Text)
    {
        frmLCC.txtKsNew.Text = Text;
        MarkChanged();
    }

    static ProjectFields RecordIn(const std::filesystem::path& Path)
    {
        const std::string Bytes = ReadFile(Path);
        RecordImage Image{};
        EXPECT_EQ(Bytes.size(), Image.size());
        std::copy_n(Bytes.begin(), std::min(Bytes.size(), Image.size()), Image.begin());
        return FromImage(Image);
    }

    std::string LastMessage() const { return Windows.Messages.empty() ? "" : Windows.Messages.back().Text; }

    static void ExpectNothingVisible()
    {
        EXPECT_FALSE(frmLCC.Visible);
        EXPECT_FALSE(frmResults.Visible);
        ExpectNoProgress();
    }

    static void ExpectNoProgress()
    {
        EXPECT_FALSE(MDIProject.lblProgessBar.Visible);
        EXPECT_FALSE(MDIProject.proProgressBar.Visible);
    }
};

// --- Save and Save As ---

TEST_F(FileCommandsTest, ChecksComeBeforeTheSaveDialog)
{
    StartNew(0);
    SaveCommand();
    EXPECT_EQ(LastMessage(), "Enter the project name !");
    EXPECT_THAT(Windows.FileDialogs, testing::IsEmpty());
    EXPECT_TRUE(frmLCC.Visible);
    EXPECT_EQ(SaveAs, 1);
    ExpectNoProgress();
}

TEST_F(FileCommandsTest, SaveAsShowsWhatIsStoredUnderTheNewName)
{
    const std::filesystem::path File = StartSaved("first.vlx");
    ASSERT_EQ(Windows.FileDialogs.size(), 1U);
    EXPECT_EQ(Windows.FileDialogs[0].Folder, Folder / "Projects");
    EXPECT_TRUE(std::filesystem::is_directory(Folder / "Projects"));
    EXPECT_TRUE(Windows.FileDialogs[0].OverwritePrompt);
    EXPECT_EQ(FileName, File.string());
    EXPECT_EQ(frmLCC.lblFileName.Caption.Get(), File.string());
    EXPECT_EQ(MDIProject.Caption.Get(), "  Velorix (Hill main)");
    EXPECT_EQ(SaveAs, 0);

    const std::string Before = ReadFile(File);
    TypeKsNew("0.3");
    Windows.Files = {Folder / "second.vlx"};
    SaveAsCommand();
    EXPECT_EQ(FileName, (Folder / "second.vlx").string());
    EXPECT_EQ(RecordIn(Folder / "second.vlx").KsNew, Single(0.3));
    EXPECT_EQ(ReadFile(File), Before);
}

TEST_F(FileCommandsTest, CancelledSaveAsKeepsTheNextSaveFromWriting)
{
    const std::filesystem::path File = StartSaved("main.vlx");
    const std::string Before = ReadFile(File);
    TypeKsNew("0.3");
    SaveAsCommand(); // no file chosen
    ExpectNothingVisible();
    EXPECT_EQ(MDIProject.lblProgessBar.Caption.Get(), "");
    EXPECT_EQ(ProjectRecord.KsNew, Single(0.3));
    EXPECT_EQ(SaveAs, 1);

    TypeKsNew("0.4");
    SaveCommand();
    EXPECT_EQ(ReadFile(File), Before);
    EXPECT_EQ(ProjectRecord.KsNew, Single(0.4));
    EXPECT_EQ(Committing, 0);
    EXPECT_EQ(Saved, 0);
    EXPECT_THAT(Windows.Messages, testing::IsEmpty());

    Windows.Files = {File};
    SaveAsCommand();
    EXPECT_EQ(RecordIn(File).KsNew, Single(0.4));
    TypeKsNew("0.5");
    SaveCommand();
    EXPECT_EQ(RecordIn(File).KsNew, Single(0.5));
}

TEST_F(FileCommandsTest, ExtensionIsAddedAndAsksBeforeItReplacesAFile)
{
    const std::string Before = "someone's file";
    WriteFile("main.vlx", Before);
    StartSaved("other"); // no such file
    EXPECT_EQ(FileName, (Folder / "other.vlx").string());
    EXPECT_THAT(Windows.Messages, testing::IsEmpty());

    Windows.Files = {Folder / "main", Folder / "third.dat"};
    Windows.Answers = {Answer::No};
    SaveAsCommand();
    EXPECT_THAT(LastMessage(), testing::HasSubstr("main.vlx"));
    EXPECT_EQ(ReadFile(Folder / "main.vlx"), Before);
    EXPECT_EQ(FileName, (Folder / "third.dat").string());

    Windows.Files = {Folder / "main."};
    Windows.Answers = {Answer::Yes};
    SaveAsCommand();
    EXPECT_EQ(TextOf(RecordIn(Folder / "main.vlx").Project), "Hill main");
}

TEST_F(FileCommandsTest, FailingSaveTellsTheReasonAndKeepsTheProject)
{
    const std::filesystem::path File = StartSaved("main.vlx");
    frmLCC.txtKsNew.Text = "0.3";
    ASSERT_EQ(Saved, 1);                      // even so it is unsaved after the failure
    std::filesystem::resize_file(File, 8325); // half a record: none to replace
    const std::string Before = ReadFile(File);
    SaveCommand();
    EXPECT_THAT(LastMessage(), testing::HasSubstr(File.string()));
    EXPECT_EQ(Windows.Messages.back().Title, "Velorix");
    EXPECT_EQ(Windows.Messages.back().Icon, MessageIcon::Exclamation);
    EXPECT_EQ(ReadFile(File), Before);

    std::filesystem::remove(File);
    std::filesystem::create_directory(File);
    SaveCommand();
    EXPECT_EQ(Windows.Messages.size(), 2U);
    EXPECT_THAT(LastMessage(), testing::HasSubstr("directory"));
    EXPECT_EQ(ProjectOpen, 1);
    EXPECT_EQ(Saved, 0);
    EXPECT_EQ(frmLCC.txtKsNew.Text.Get(), "0.3");
    EXPECT_TRUE(frmLCC.Visible);
    ExpectNoProgress();
}

TEST_F(FileCommandsTest, FailingSaveAsKeepsTheOldName)
{
    StartNew(0);
    frmLCC.txtProject.Text = frmLCC.txtDesigner.Text = "x";
    Windows.Files = {Folder / "missing" / "main.vlx"};
    SaveCommand();
    EXPECT_THAT(LastMessage(), testing::HasSubstr("No such file or directory"));
    EXPECT_EQ(FileName, "");
    EXPECT_EQ(frmLCC.lblFileName.Caption.Get(), NewProjectCaption); // so the next save asks again
    EXPECT_EQ(SaveAs, 0);                                           // the next save in place writes
    EXPECT_EQ(Saved, 0);
    EXPECT_EQ(frmLCC.txtProject.Text.Get(), "x");
    EXPECT_TRUE(frmLCC.Visible);
    ExpectNoProgress();
}

TEST_F(FileCommandsTest, SavingTakesTheOtherScreensOutOfTheWay)
{
    StartSaved("main.vlx");
    frmResults.LoadHidden();
    frmView.LoadHidden();
    frmResults.Visible = frmView.Visible = true;
    Analysed = 1;
    SaveCommand();
    EXPECT_FALSE(frmResults.Visible);
    EXPECT_FALSE(frmView.IsLoaded());
    EXPECT_TRUE(frmLCC.Visible);
    EXPECT_EQ(Analysed, 0);
    EXPECT_TRUE(RedrawProfileView);
}

// --- Open ---

TEST_F(FileCommandsTest, OpenAsksForAFileAndLoadsIt)
{
    const std::filesystem::path File = StartSaved("main.vlx");
    StartNew(1);
    SaveAs = 1;
    MDIProject.tmrWelcome.Enabled = true;
    Windows.Files = {File};
    OpenProjectCommand();
    EXPECT_EQ(frmLCC.txtProject.Text.Get(), "Hill main");
    EXPECT_FALSE(MDIProject.tmrWelcome.Enabled);
    EXPECT_EQ(SaveAs, 0);

    OpenProjectCommand(); // cancelled
    ExpectNothingVisible();
    EXPECT_EQ(MDIProject.Caption.Get(), "  Velorix");
    EXPECT_EQ(frmLCC.txtProject.Text.Get(), "Hill main");
    EXPECT_EQ(FileName, File.string());
    EXPECT_EQ(ProjectOpen, 1);
}

TEST_F(FileCommandsTest, UnreadableFileKeepsTheOpenProject)
{
    const std::filesystem::path File = StartSaved("main.vlx");
    const std::string Before = BytesOf(ProjectRecord);
    TypeKsNew("0.3");
    Windows.Files = {Folder / "gone.vlx"};
    OpenProjectCommand();
    EXPECT_THAT(LastMessage(), testing::HasSubstr("No such file or directory"));
    OpenProjectFile(Folder); // dropped on the window
    EXPECT_THAT(LastMessage(), testing::HasSubstr("directory"));
    EXPECT_EQ(Windows.Messages.size(), 2U);
    EXPECT_EQ(Windows.Messages.back().Title, "Velorix");
    EXPECT_EQ(FileName, File.string());
    EXPECT_EQ(frmLCC.lblFileName.Caption.Get(), File.string());
    EXPECT_EQ(BytesOf(ProjectRecord), Before);
    EXPECT_EQ(frmLCC.txtKsNew.Text.Get(), "0.3");
    EXPECT_TRUE(frmLCC.Visible);
    ExpectNoProgress();
}

// A window system whose file dialogs don't come up.
struct WithoutDialogs : ScriptedPlatform {
    std::optional<std::filesystem::path> AskFileToOpen(const FileDialog&) override
    {
        throw Failure("no dialog");
    }
};

TEST_F(FileCommandsTest, DialogThatDoesNotComeUpHasItsMessage)
{
    StartSaved("main.vlx");
    WithoutDialogs Bare;
    Bare.Folder = Folder;
    InstallPlatform(&Bare);
    OpenProjectCommand();
    EXPECT_TRUE(frmLCC.Visible);
    SaveAsCommand();
    EXPECT_TRUE(frmLCC.Visible);
    ASSERT_EQ(Bare.Messages.size(), 2U);
    EXPECT_EQ(Bare.Messages[0].Text, " Can't open project !");
    EXPECT_EQ(Bare.Messages[1].Text, "Can't Save the project !");
    ExpectNoProgress();
}

// --- New ---

TEST_F(FileCommandsTest, NewProjectOffersToSaveTheOpenOne)
{
    const std::filesystem::path File = StartSaved("main.vlx");
    TypeKsNew("0.3");
    MDIProject.tmrWelcome.Enabled = true;
    Windows.Answers = {Answer::Yes};
    Windows.ModalScripts["frmLCCType"] = [] {
        EXPECT_FALSE(frmLCC.Visible);
        frmLCCType.optPumping.Value = true;
        LccTypeContinue();
    };
    NewProjectCommand();
    EXPECT_EQ(LastMessage(), "Do you want to save the project ?");
    EXPECT_EQ(RecordIn(File).KsNew, Single(0.3));
    EXPECT_EQ(wSystemType, 1);
    EXPECT_EQ(frmLCC.txtKsNew.Text.Get(), "0");
    EXPECT_EQ(frmLCC.lblFileName.Caption.Get(), NewProjectCaption);
    EXPECT_EQ(MDIProject.Caption.Get(), "  Velorix");
    EXPECT_FALSE(MDIProject.tmrWelcome.Enabled);
    EXPECT_TRUE(frmLCC.Visible);
    EXPECT_FALSE(frmLCCType.IsLoaded());
}

TEST_F(FileCommandsTest, CancelledNewKeepsTheOldProjectHidden)
{
    const std::filesystem::path File = StartSaved("main.vlx");
    const std::string Before = ReadFile(File);
    TypeKsNew("0.3");
    frmResults.LoadHidden();
    frmResults.Visible = true;
    Analysed = 1;
    Windows.ModalScripts["frmLCCType"] = LccTypeCancel;
    NewProjectCommand();
    EXPECT_EQ(ReadFile(File), Before);
    ExpectNothingVisible();
    EXPECT_FALSE(frmLCCType.IsLoaded());
    EXPECT_EQ(frmLCC.txtKsNew.Text.Get(), "0.3");
    EXPECT_EQ(ProjectOpen, 1);
    EXPECT_EQ(Analysed, 1);
}

// --- Delete ---

TEST_F(FileCommandsTest, DeleteAsksAndRemovesTheFile)
{
    const std::filesystem::path File = StartSaved("main.vlx");
    TypeKsNew("0.3");
    DeleteCommand();
    EXPECT_EQ(LastMessage(), "The project has not been saved and thus cannot be deleted");
    EXPECT_EQ(Windows.Messages.back().Icon, MessageIcon::None);

    SaveCommand();
    DeleteCommand(); // No
    EXPECT_EQ(LastMessage(), "Are you sure you want to delete the current project ?");
    EXPECT_TRUE(frmLCC.Visible);
    EXPECT_TRUE(std::filesystem::exists(File));

    Windows.Answers = {Answer::Yes};
    DeleteCommand();
    EXPECT_EQ(LastMessage(), "The current project was successfully deleted");
    EXPECT_FALSE(std::filesystem::exists(File));
    EXPECT_EQ(ProjectOpen, 0);
    EXPECT_EQ(Saved, 0);
    ExpectNothingVisible();

    for (void (*Command)() : {SaveCommand, SaveAsCommand}) {
        Command();
        EXPECT_EQ(LastMessage(), "First open an existing project or start a new project");
        ExpectNothingVisible();
    }
    DeleteCommand();
    EXPECT_EQ(LastMessage(), "First open the project that you want to delete");
}

// The name of the last file stays when a project is begun, and so does what Delete goes by.
TEST_F(FileCommandsTest, DeleteAfterNewGoesByTheOldName)
{
    StartNew(0);
    Windows.Answers = {Answer::Yes};
    DeleteCommand();
    EXPECT_EQ(LastMessage(), "Could not delete the project.");
    EXPECT_EQ(Windows.Messages.back().Title, "Error !");
    EXPECT_EQ(Windows.Messages.back().Icon, MessageIcon::None);
    EXPECT_EQ(ProjectOpen, 1);
    EXPECT_EQ(Saved, 1);
    ExpectNothingVisible();

    const std::filesystem::path File = StartSaved("older.vlx");
    StartNew(0);
    Windows.Answers = {Answer::Yes};
    DeleteCommand();
    EXPECT_FALSE(std::filesystem::exists(File));

    StartNew(0);
    std::filesystem::create_directory(File); // an empty folder is no project
    Windows.Answers = {Answer::Yes};
    DeleteCommand();
    EXPECT_EQ(LastMessage(), "Could not delete the project.");
    EXPECT_TRUE(std::filesystem::exists(File));
}

// --- Exit ---

TEST_F(FileCommandsTest, ExitAsksOnce)
{
    StartNew(0);
    MarkChanged();
    MDIProject.Visible = true;
    ExitCommand(); // No
    EXPECT_FALSE(Windows.Ended);
    EXPECT_TRUE(MDIProject.Visible);
    Windows.Answers = {Answer::Yes};
    ExitCommand();
    EXPECT_TRUE(Windows.Ended);
    EXPECT_FALSE(MDIProject.Visible);
    EXPECT_EQ(Windows.Messages.size(), 2U);
}

} // namespace
} // namespace velorix
