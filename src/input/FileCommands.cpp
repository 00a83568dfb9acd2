// The course of each file command: its questions, its messages and the screens that it leaves.
#include "input/FileCommands.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "input/Commit.h"
#include "input/Progress.h"
#include "input/Session.h"
#include "input/ViewState.h"
#include "model/ProjectFile.h"
#include "model/WorkingSet.h"
#include "platform/Platform.h"
#include "screens/Dialogs.h"
#include "screens/Lcc.h"
#include "screens/MainWindow.h"
#include "screens/Results.h"

#include <algorithm>
#include <cctype>

namespace velorix {
namespace {

constexpr const char* ProjectExtension = ".vlx";
constexpr int ProjectFilter = 2; // the second filter of both dialogs

// A command has failed: the user is told, and the project that stays open is shown again.
void ReportFailure(const std::string& Reason, const std::string& Detail = {})
{
    HideProgress();
    Warn(Reason, "Velorix", Detail);
    if (ProjectOpen != 1) return;
    ShowInputScreen();
    ShowTitle();
}

void StopWelcome()
{
    MDIProject.tmrWelcome.Enabled = false;
    MDIProject.Caption = ProgramTitle;
}

void LeaveForOpening()
{
    StopWelcome();
    LeaveProjectScreens();
    ShowDoing("Opening project");
}

void LeaveForSaving()
{
    LeaveProjectScreens();
    if (Analysed == 1) frmResults.Visible = false; // with no project open as well
}

// False, with a message, when there is no project to save.
bool SavingStarts()
{
    LeaveForSaving();
    if (ProjectOpen != 1) {
        Warn("First open an existing project or start a new project");
        return false;
    }
    ShowDoing("Saving project");
    return true;
}

std::string AdviceAfter(const std::string& Problem)
{
    return Problem + ". File, Save Project As saves the project in a new one.";
}

// What can be done about a project whose file isn't there any more; nothing to tell of any other.
std::string AdviceIfVanished()
{
    std::error_code Unknown;
    const std::string Path = Trim(FileName);
    if (std::filesystem::exists(Path, Unknown)) return {};
    return AdviceAfter(Path.empty() ? "The project has no file" : Path + " is not there any more");
}

// The same for a save, which replaces a record: a vanished file has none from the first save on.
std::string AdviceIfWithoutRecord()
{
    std::error_code Unknown;
    const std::string Path = Trim(FileName);
    const std::uintmax_t Length = std::filesystem::file_size(Path, Unknown);
    if (Unknown || RecordNumber(Length) > 0) return AdviceIfVanished();
    return AdviceAfter(Path + " holds no project any more");
}

// False when a check has failed or the file couldn't be written; the user has been told.
bool SaveInPlace()
{
    const std::string Advice = AdviceIfWithoutRecord(); // ahead of the write, which may leave something there
    try {
        CommitProject();
        HideProgress();
        return Committing == 0;
    } catch (const Failure& Problem) {
        Saved = 0;
        ReportFailure(Problem.what(), Advice);
        return false;
    }
}

FileDialog SaveDialog()
{
    return {.Title = "SAVE THE VELORIX PROJECT",
            .Folder = ProjectsFolder(),
            .Filter = "All Files (*.*)|*.* |Velorix Files (*.vlx)|*.vlx",
            .FilterIndex = ProjectFilter,
            .OverwritePrompt = true};
}

// What stands behind the last point of "Phase 1.2" is none.
bool HasExtension(const std::filesystem::path& Path)
{
    const std::string Extension = Path.extension().string();
    const auto IsLetter = [](unsigned char Each) { return std::isalpha(Each) != 0; };
    const auto IsSign = [](unsigned char Each) { return std::isalnum(Each) != 0; };
    return Extension.size() > 1 && IsLetter(static_cast<unsigned char>(Extension[1])) &&
           std::all_of(Extension.begin() + 1, Extension.end(), IsSign);
}

bool IsFile(const std::filesystem::path& Path)
{
    std::error_code Unknown;
    return std::filesystem::is_regular_file(Path, Unknown);
}

// A new file gets the extension when its name was typed without one. The dialog has asked about replacing the
// file of the name as typed, this may be another.
std::optional<std::filesystem::path> AskWhereToSave(const FileDialog& Dialog)
{
    while (true) {
        std::optional<std::filesystem::path> Chosen = System().AskFileToSave(Dialog);
        if (!Chosen || HasExtension(*Chosen) || IsFile(*Chosen)) return Chosen;
        if (Chosen->extension() == ".") Chosen->replace_extension();
        *Chosen += ProjectExtension;
        if (!IsFile(*Chosen) ||
            Confirm(Chosen->filename().string() + " already exists. Do you want to replace it ?"))
            return Chosen;
    }
}

void SaveTo(const std::filesystem::path& Path)
{
    const std::string FileBefore = FileName;
    const std::string CaptionBefore = frmLCC.lblFileName.Caption;
    try {
        ShowProgress(80);
        FileName = Path.string();
        ShowProgress(90);
        WriteProjectFile(FileName, ProjectRecord, ShortFile::TakesRecordOne);
        ShowProgress(100);

        // The load step shows the screen, once its frames stand: those that it hides would lose the focus.
        frmLCC.lblFileName.Caption = Trim(FileName);
        ShowDoing("Opening project");
        LoadProject();
    } catch (const FileFailure& Problem) {
        FileName = FileBefore;
        frmLCC.lblFileName.Caption = CaptionBefore;
        Saved = 0;
        SaveAs = 0; // so that the next Save in place writes
        ReportFailure(Problem.what());
    }
}

// Deletes the file of the trimmed FileName. Files only: a folder, or a file that isn't there, can't be
// deleted; nor one whose name is that of the project but for blanks.
bool DeleteProjectFile()
{
    const std::string Path = Trim(FileName);
    if (Path != FileName && IsFile(FileName)) return false;
    std::error_code Refused;
    return IsFile(Path) && std::filesystem::remove(Path, Refused);
}

} // namespace

std::filesystem::path ProjectsFolder()
{
    std::filesystem::path Folder = System().ProgramFolder() / "Projects";
    std::error_code Refused; // beside a program that isn't the user's own; the dialog starts elsewhere then
    std::filesystem::create_directories(Folder, Refused);
    return Folder;
}

void NewProjectCommand()
{
    SaveAs = 0;
    StopWelcome();
    frmLCC.Visible = false;
    if (ProjectOpen == 1) {
        if (Confirm("Do you want to save the project ?")) SaveCommand();
        MDIProject.Caption = ProgramTitle; // a save has shown the old project's name
        LeaveProjectScreens();
    }
    System().ShowModal(frmLCCType);
}

void LccTypeContinue()
{
    wSystemType = frmLCCType.optPumping.Value ? 1 : 0;
    frmLCCType.Unload();
    frmLCC.Visible = true;
    NewProjectDefaults();
    frmLCC.sstInput.Tab = 0; // an engineer starts with the name
    System().SetFocus(frmLCC.txtProject);
}

void LccTypeCancel()
{
    frmLCCType.Unload();
}

void OpenProjectCommand()
{
    LeaveForOpening();
    OpenProject();
}

void OpenProject()
{
    std::optional<std::filesystem::path> Chosen;
    try {
        Chosen = System().AskFileToOpen({.Title = "OPEN AN EXISTING VELORIX PROJECT",
                                         .Folder = ProjectsFolder(),
                                         .Filter = "All Files (*.*)|*.*|Velorix Files (*.vlx)|*.vlx",
                                         .FilterIndex = ProjectFilter});
    } catch (const Failure&) {
        return ReportFailure(" Can't open project !");
    }
    if (!Chosen) return HideProgress();
    OpenProjectFile(*Chosen);
}

void OpenProjectFile(const std::filesystem::path& Path)
{
    LeaveForOpening(); // for a file that didn't come from the dialog
    const std::string FileBefore = FileName;
    try {
        FileName = Path.string();
        LoadProject();
    } catch (const FileFailure& Problem) {
        FileName = FileBefore;
        ReportFailure(Problem.what());
    }
}

void SaveCommand()
{
    if (!SavingStarts()) return;
    if (HasFile())
        SaveInPlace();
    else
        SaveProjectAs();
}

void SaveAsCommand()
{
    if (SavingStarts()) SaveProjectAs();
}

void SaveProjectAs()
{
    std::optional<std::filesystem::path> Chosen;
    try {
        ShowProgress(0);
        const FileDialog Dialog = SaveDialog();
        ShowProgress(10);
        Committing = 0;
        SaveAs = 1;
        CommitProject();
        if (Committing == 1) return HideProgress();
        Chosen = AskWhereToSave(Dialog);
    } catch (const Failure&) {
        return ReportFailure("Can't Save the project !");
    }
    if (!Chosen) return HideProgress();
    SaveTo(*Chosen);
}

bool SaveToViewProfile()
{
    ShowDoing("Saving project");
    if (HasFile()) return SaveInPlace();
    Warn("The project must first be saved before the profile can be viewed");
    SaveProjectAs();
    return HasFile();
}

void DeleteCommand()
{
    LeaveForSaving();
    DeleteProject();
}

void DeleteProject()
{
    if (ProjectOpen != 1) return Warn("First open the project that you want to delete");
    if (Saved == 0) {
        System().Show(
            {.Text = "The project has not been saved and thus cannot be deleted", .Icon = MessageIcon::None});
        return;
    }
    const std::string File = Trim(FileName);
    if (!Confirm("Are you sure you want to delete the current project ?", "Velorix",
                 File.empty() ? "The project has no file." : "File: " + File)) {
        frmLCC.Visible = true;
        return;
    }
    if (!DeleteProjectFile()) {
        System().Show({.Text = "Could not delete the project.",
                       .Title = "Error !",
                       .Detail = AdviceIfVanished(),
                       .Icon = MessageIcon::None});
        return;
    }
    ProjectOpen = 0;
    TellWayOn();
    Saved = 0;
    frmLCC.Visible = false;
    if (Analysed == 1) frmResults.Visible = false;
    MDIProject.Caption = ProgramTitle;
    MDIProject.lblSystem.Caption = "";
    Warn("The current project was successfully deleted");
}

void ExitCommand()
{
    if (!Confirm("Are you sure you want to quit ?")) return;
    MDIProject.Visible = false;
    MDIProject.Unload();
    System().EndProgram();
}

} // namespace velorix
