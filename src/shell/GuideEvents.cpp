// The check of the guide's file, and its chapters.
#include "shell/GuideEvents.h"

#include "base/Failure.h"
#include "base/File.h"
#include "base/Text.h"
#include "platform/Platform.h"
#include "screens/Guide.h"
#include "screens/Results.h"

namespace velorix {
namespace {

bool CanBeOpened(const std::filesystem::path& Path)
{
    try {
        File::OpenToRead(Path);
        return true;
    } catch (const FileFailure&) { // the user is asked what to do
        return false;
    }
}

bool WantsRetry(const std::string& Path)
{
    return System().Show({.Text = "Could not find the required file, (" + Path +
                                  ") under the indicated directory.  Please ensure that the file is under "
                                  "the directory.",
                          .Title = "Error",
                          .Icon = MessageIcon::Critical,
                          .Buttons = MessageButtons::RetryCancel}) == Answer::Retry;
}

// Without the guide the screen comes up all the same, empty.
void GuideLoads()
{
    std::filesystem::path Path = GuideFile();
    while (!CanBeOpened(Path)) {
        if (!WantsRetry(Trim(Path.string()))) return;
        Path = GuideFile();
    }
    frmPDFView.Caption = Trim(Path.string());
    frmPDFView.pdfReport.LoadFile(frmPDFView.Caption);
}

} // namespace

std::filesystem::path GuideFile()
{
    return System().ProgramFolder() / VELORIX_GUIDE_FILE;
}

void ShowGuideAt(const std::string& Chapter)
{
    frmPDFView.pdfReport.Bookmark = Chapter;
    System().ShowModal(frmPDFView);
}

void ConnectGuide()
{
    frmPDFView.Load = GuideLoads;
    frmPDFView.sscOK.Click = [] { frmPDFView.Unload(); };
    CommandButton* const Buttons[] = {&frmResults.sscHelp1, &frmResults.sscHelp2, &frmResults.sscHelp3};
    std::size_t Page = 0;
    for (CommandButton* Each : Buttons)
        Each->Click = [Chapter = frmResults.sstResults.TabCaptions[Page++]] { ShowGuideAt(Chapter); };
}

} // namespace velorix
