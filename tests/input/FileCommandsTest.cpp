// The file commands as a user runs them, on real files.
#include "input/FileCommands.h"
#include "ProjectTest.h"
#include "base/Failure.h"
#include "base/Text.h"
#include "screens/Dialogs.h"
#include "screens/Viewers.h"

#include <gmock/gmock.h>

namespace velorix {
namespace {

using testing::HasSubstr;

class FileCommandsTest : public ProjectTest {
protected:
    // A complete gravity project in a file of that name.
    std::filesystem::path StartSaved(const std::string& Name)
    {
        StartComplete(0);
        Windows.Files = {Folder / Name};
        SaveCommand();
        return Folder / Name;
    }

    static void TypeKsNew(const std::string& Text)
    {
        frmLCC.txtKsNew.Text = Text;
        MarkChanged();
    }

    // Deletes the project as a user who is sure.
    void Delete()
    {
        Windows.Answers = {Answer::Yes};
        DeleteCommand();
    }

    // Shows the results of an analysis.
    static void ShowResults()
    {
        frmResults.LoadHidden();
        frmResults.Visible = true;
        Analysed = 1;
    }

    static Single KsNewIn(const std::filesystem::path& Path)
    {
        RecordImage Image{};
        ReadFile(Path).copy(Image.data(), Image.size());
        return FromImage(Image).KsNew;
    }

    // What stands in the main window.
    static std::string Shown()
    {
        std::string Names;
        if (frmLCC.Visible) Names += "input ";
        if (frmResults.Visible) Names += "results ";
        if (MDIProject.lblProgessBar.Visible || MDIProject.proProgressBar.Visible) Names += "progress ";
        return Names;
    }

    // The title, unless the welcome line is to go over it, the file, whether it is up to date, and the
    // screens.
    static std::string State()
    {
        const std::string File = std::filesystem::path(frmLCC.lblFileName.Caption.Get()).filename();
        const std::string Project = ProjectOpen == 0 ? "closed" : Saved == 0 ? "unsaved" : "saved";
        const std::string Title = MDIProject.tmrWelcome.Enabled ? "?" : MDIProject.Caption.Get();
        return Trim(Title + ", " + File + ", " + Project + ": " + Shown());
    }
};

// --- Save and Save As ---

TEST_F(FileCommandsTest, SaveAsShowsWhatIsStoredUnderTheNewName)
{
    MDIProject.tmrWelcome.Enabled = true;
    const std::filesystem::path File = StartSaved("first.vlx");
    ASSERT_EQ(Windows.FileDialogs.size(), 1U);
    EXPECT_EQ(Windows.FileDialogs[0].Folder, Folder / "Projects");
    EXPECT_TRUE(std::filesystem::is_directory(Folder / "Projects"));
    EXPECT_TRUE(Windows.FileDialogs[0].OverwritePrompt);
    EXPECT_EQ(State(), "Velorix (Hill main), first.vlx, saved: input");
    EXPECT_EQ(frmLCC.lblFileName.Caption.Get(), File.string());

    const std::string Before = ReadFile(File);
    TypeKsNew("0.3");
    Windows.Files = {Folder / "second.vlx"};
    SaveAsCommand();
    EXPECT_EQ(State(), "Velorix (Hill main), second.vlx, saved: input");
    EXPECT_EQ(KsNewIn(FileName), Single(0.3));
    EXPECT_EQ(ReadFile(File), Before);
}

TEST_F(FileCommandsTest, CancelledSaveAsKeepsTheNextSaveFromWriting)
{
    const std::filesystem::path File = StartSaved("main.vlx");
    const std::string Before = ReadFile(File);
    TypeKsNew("0.3");
    SaveAsCommand(); // no file chosen
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(ProjectRecord.KsNew, Single(0.3));
    EXPECT_EQ(SaveAs, 1);

    TypeKsNew("0.4");
    SaveCommand();
    EXPECT_EQ(ReadFile(File), Before);
    EXPECT_EQ(ProjectRecord.KsNew, Single(0.4));
    EXPECT_EQ(State(), "Velorix (Hill main), main.vlx, unsaved:");
    EXPECT_THAT(Windows.Messages, testing::IsEmpty());

    Windows.Files = {File};
    SaveAsCommand();
    EXPECT_EQ(KsNewIn(File), Single(0.4));
    TypeKsNew("0.5");
    SaveCommand();
    EXPECT_EQ(KsNewIn(File), Single(0.5));
}

TEST_F(FileCommandsTest, ExtensionIsAddedToANewNameAndAsksBeforeItReplacesAFile)
{
    const std::string Before = "someone's file";
    WriteFile("main.vlx", Before);
    StartSaved("Phase 1.2"); // no such file, and no extension
    EXPECT_EQ(FileName, (Folder / "Phase 1.2.vlx").string());
    EXPECT_THAT(Windows.Messages, testing::IsEmpty());

    Windows.Files = {Folder / "main", WriteFile("third", "")};
    Windows.Answers = {Answer::No};
    SaveAsCommand();
    EXPECT_EQ(LastMessage(), "main.vlx already exists. Do you want to replace it ?");
    EXPECT_EQ(ReadFile(Folder / "main.vlx"), Before);
    EXPECT_EQ(FileName, (Folder / "third").string());

    TypeKsNew("0.3");
    Windows.Files = {Folder / "main."};
    Windows.Answers = {Answer::Yes};
    SaveAsCommand();
    EXPECT_EQ(KsNewIn(Folder / "main.vlx"), Single(0.3));
}

TEST_F(FileCommandsTest, FailingSaveTellsTheReasonAndKeepsTheProject)
{
    const std::filesystem::path File = StartSaved("main.vlx");
    frmLCC.txtKsNew.Text = "0.3";
    ASSERT_EQ(Saved, 1);                      // even so it is unsaved after the failure
    std::filesystem::resize_file(File, 8325); // half a record: none to replace
    SaveCommand();
    ExpectTold("Can't write \"" + File.string() + "\": the file holds no project to replace");
    EXPECT_EQ(std::filesystem::file_size(File), 8325U);
    EXPECT_EQ(State(), "Velorix (Hill main), main.vlx, unsaved: input");
    EXPECT_EQ(frmLCC.txtKsNew.Text.Get(), "0.3");
}

TEST_F(FileCommandsTest, AVanishedFileSuggestsANewOne)
{
    std::filesystem::remove(StartSaved("main.vlx"));
    for (const char* Problem : {"not there", "holds no project"}) { // the first save leaves an empty one
        SaveCommand();
        EXPECT_THAT(LastMessage(), HasSubstr("Can't write"));
        EXPECT_THAT(Windows.Messages.back().Detail, AllOf(HasSubstr(Problem), HasSubstr("Save Project As")));
    }
}

TEST_F(FileCommandsTest, FailingSaveAsKeepsTheOldName)
{
    StartNew(0);
    SaveCommand();
    ExpectTold("Enter the project name !", "Error !");
    EXPECT_THAT(Windows.FileDialogs, testing::IsEmpty()); // the checks come first

    StartComplete(0);
    Windows.Files = {Folder / "missing" / "main.vlx"};
    SaveCommand();
    EXPECT_THAT(LastMessage(), HasSubstr("No such file or directory"));
    EXPECT_EQ(FileName, "");
    EXPECT_EQ(State(), "Velorix, " + NewProjectCaption + ", unsaved: input"); // the next save asks
    EXPECT_EQ(SaveAs, 0);                                                     // the next save in place writes
    EXPECT_EQ(frmLCC.txtProject.Text.Get(), "Hill main");
}

// --- Open ---

TEST_F(FileCommandsTest, OpenLoadsTheChosenFile)
{
    const std::filesystem::path File = StartSaved("main.vlx");
    StartNew(1);
    SaveAs = 1;
    MDIProject.tmrWelcome.Enabled = true;
    Windows.Files = {File};
    OpenProjectCommand();
    EXPECT_EQ(State(), "Velorix (Hill main), main.vlx, saved: input");
    EXPECT_EQ(SaveAs, 0);

    OpenProjectCommand(); // cancelled
    EXPECT_EQ(State(), "Velorix, main.vlx, saved:");
    EXPECT_EQ(frmLCC.txtProject.Text.Get(), "Hill main");
}

TEST_F(FileCommandsTest, UnreadableFileKeepsTheOpenProject)
{
    const std::filesystem::path File = StartSaved("main.vlx");
    const std::string Before = BytesOf(ProjectRecord);
    TypeKsNew("0.3");
    Windows.Files = {Folder / "gone.vlx"};
    OpenProjectCommand();
    ExpectTold("Can't read \"" + (Folder / "gone.vlx").string() + "\": No such file or directory");
    frmView.LoadHidden();
    frmView.Visible = true;
    OpenProjectFile(Folder); // dropped on the window
    EXPECT_FALSE(frmView.IsLoaded());
    EXPECT_THAT(LastMessage(), HasSubstr("Is a directory"));
    EXPECT_EQ(FileName, File.string());
    EXPECT_EQ(State(), "Velorix (Hill main), main.vlx, unsaved: input");
    EXPECT_EQ(BytesOf(ProjectRecord), Before);
    EXPECT_EQ(frmLCC.txtKsNew.Text.Get(), "0.3");
}

TEST_F(FileCommandsTest, ResultsGoWithEverySaveAndLoad)
{
    const std::filesystem::path File = StartSaved("main.vlx");
    ShowResults();
    frmView.LoadHidden();
    frmView.Visible = true;
    SaveCommand();
    EXPECT_EQ(Shown(), "input ");
    EXPECT_FALSE(frmView.IsLoaded());
    EXPECT_EQ(Analysed, 0);
    EXPECT_TRUE(RedrawProfileView);

    // A deleted project leaves its results, and the next one may differ in nothing that a box shows.
    std::filesystem::copy_file(File, Folder / "copy.vlx");
    ShowResults();
    Delete();
    frmResults.Visible = true; // by the menu
    OpenProjectFile(Folder / "copy.vlx");
    EXPECT_EQ(Shown(), "input ");
    EXPECT_FALSE(frmResults.IsLoaded());
    EXPECT_EQ(Analysed, 0);
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
    const std::pair<void (*)(), const char*> Cases[] = {{OpenProjectCommand, " Can't open project !"},
                                                        {SaveAsCommand, "Can't Save the project !"}};
    for (const auto& [Command, Text] : Cases) {
        Command();
        EXPECT_EQ(Bare.Messages.back().Text, Text);
        EXPECT_EQ(Shown(), "input ");
    }
}

// --- New ---

TEST_F(FileCommandsTest, NewProjectOffersToSaveTheOpenOne)
{
    const std::filesystem::path File = StartSaved("main.vlx");
    TypeKsNew("0.3");
    ShowResults();
    MDIProject.tmrWelcome.Enabled = true;
    Windows.ModalScripts["frmLCCType"] = LccTypeCancel;
    NewProjectCommand(); // not saved, and the old project stays, hidden
    EXPECT_EQ(LastMessage(), "Do you want to save the project ?");
    EXPECT_EQ(KsNewIn(File), 0.0);
    EXPECT_EQ(Shown(), "");
    EXPECT_FALSE(frmLCCType.IsLoaded());
    EXPECT_EQ(frmLCC.txtKsNew.Text.Get(), "0.3");
    EXPECT_EQ(Analysed, 1);

    Windows.Answers = {Answer::Yes};
    Windows.ModalScripts["frmLCCType"] = [] {
        EXPECT_EQ(Shown(), "");
        frmLCCType.optPumping.Value = true;
        LccTypeContinue();
    };
    NewProjectCommand();
    EXPECT_EQ(KsNewIn(File), Single(0.3));
    EXPECT_EQ(wSystemType, 1);
    EXPECT_EQ(frmLCC.txtKsNew.Text.Get(), "0");
    EXPECT_EQ(State(), "Velorix, " + NewProjectCaption + ", saved: input");
}

// --- Delete ---

TEST_F(FileCommandsTest, DeleteAsksAndRemovesTheFile)
{
    const std::filesystem::path File = StartSaved("main.vlx");
    TypeKsNew("0.3");
    DeleteCommand();
    ExpectTold("The project has not been saved and thus cannot be deleted", "Velorix", MessageIcon::None);

    SaveCommand();
    DeleteCommand(); // No
    EXPECT_EQ(LastMessage(), "Are you sure you want to delete the current project ?");
    EXPECT_EQ(Windows.Messages.back().Detail, "File: " + File.string());
    EXPECT_EQ(Shown(), "input ");
    EXPECT_TRUE(std::filesystem::exists(File));

    StartNew(1); // the name of the last file stays when a project is begun, and Delete goes by it
    Delete();
    ExpectTold("The current project was successfully deleted");
    EXPECT_FALSE(std::filesystem::exists(File));
    EXPECT_EQ(Saved, 0);
    EXPECT_EQ(State(), "Velorix, " + NewProjectCaption + ", closed:");
}

// No file, a folder, and a file whose name is that of another but for a blank.
TEST_F(FileCommandsTest, DeleteRefusesWhatIsNotTheFileOfTheProject)
{
    WriteFile("main.vlx", "");
    WriteFile("main.vlx ", "");
    std::filesystem::create_directory(Folder / "folder.vlx");
    for (const char* Name : {"gone.vlx", "folder.vlx", "main.vlx "}) {
        StartNew(0);
        FileName = (Folder / Name).string();
        Delete();
        ExpectTold("Could not delete the project.", "Error !", MessageIcon::None);
        EXPECT_EQ(ProjectOpen, 1);
        EXPECT_EQ(Saved, 1);
        EXPECT_EQ(Shown(), "");
        const std::string Detail = Windows.Messages.back().Detail;
        EXPECT_EQ(Detail.find("Save Project As") != std::string::npos, Name == std::string("gone.vlx"))
            << Detail;
    }
    for (const char* Each : {"main.vlx", "main.vlx ", "folder.vlx"})
        EXPECT_TRUE(std::filesystem::exists(Folder / Each)) << Each;
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
