// Texts and handlers of the opening dialogs and the notices.
#include "shell/Notices.h"

#include "base/Version.h"
#include "input/ViewState.h"
#include "platform/Platform.h"
#include "screens/Dialogs.h"

namespace velorix {
namespace {

constexpr PixelSize RecommendedSize = {800, 600};

constexpr const char* Agreement =
    "Velorix helps to estimate the life cycle cost of bulk water pipelines.\n\n"
    "Before you start, please agree to the following:\n\n"
    "1.  The results depend on the data that you enter and on the methods that the help describes. They "
    "support the "
    "judgement of a trained engineer and do not replace it.\n\n"
    "2.  You check the input data and the results before you base a design, a tariff or a budget on them.\n\n"
    "3.  The program is free software under the MIT licence, provided as it is, without warranty of any "
    "kind. "
    "Its developers are not liable for any use that is made of the program or of its results.\n\n"
    "Choose Accept to start the program, or Cancel to leave it.";

constexpr std::array<const char*, 7> Disclaimer = {
    "Velorix was developed for the convenience of its users.",
    "Although every reasonable effort has been made to ensure that the results are correct and accurate,",
    "the developers assume no responsibility for any results, for the interpretation of results,",
    "or for any use that is made of the results obtained with this program.",
    "The program is not a complete study and is not intended to be used as one.",
    "Its use shall be under the direction of trained engineers,",
    "who exercise their independent judgement regarding the proposed design."};

bool Accepted = false;

constexpr std::size_t LastCount = 10;

// The counter is what its label shows: one dot more each tick, and from the last back to one.
void CountOn()
{
    const std::size_t Count = frmIntro.lblCounter.Caption.Get().size();
    frmIntro.lblCounter.Caption = std::string(Count % LastCount + 1, '.');
}

void IntroLoads()
{
    frmIntro.lblCounter.Caption = ".";
    frmIntro.lblVersion.Caption = VersionCaption();
    frmIntro.tmrIntro.Enabled = true;
    frmIntro.tmrWelcome.Enabled = true;
}

void DisclaimerLoads()
{
    HideScreens();
    int Line = 0;
    for (const char* Each : Disclaimer) frmDisclaimer.Lines[++Line].Caption = Each;
}

void AboutLoads()
{
    HideScreens();
    frmAbout.lblVersion.Caption = VersionCaption();
    frmAbout.lblBuildDate.Caption = std::string("Built: ") + __DATE__;
    frmAbout.lblNotice.Caption =
        "Life cycle costing of bulk water pipelines.\nFree software under the MIT licence, "
        "© 2026 The Velorix developers.";
}

void LeaveNotice(Screen& Notice)
{
    Notice.Unload();
    RestoreScreens();
}

void SystemInformationPressed()
{
    if (!System().ShowSystemInformation()) Warn("System Information Is Unavailable At This Time");
}

} // namespace

void ConnectNotices()
{
    frmAgree.Load = [] { frmAgree.Text1.Caption = Agreement; };
    frmAgree.sscAccept.Click = AcceptPressed;
    frmAgree.sscCancel.Click = RefusePressed;
    frmAgree.Close = RefusePressed;

    frmIntro.Load = IntroLoads;
    frmIntro.Close = IntroEnds;
    frmIntro.tmrIntro.Tick = IntroEnds;
    frmIntro.tmrWelcome.Tick = CountOn;

    frmDisclaimer.Load = DisclaimerLoads;
    frmDisclaimer.Close = frmDisclaimer.sscOK.Click = [] { LeaveNotice(frmDisclaimer); };
    frmAbout.Load = AboutLoads;
    frmAbout.Close = frmAbout.sscOK.Click = [] { LeaveNotice(frmAbout); };
    frmAbout.sscSystemInfo.Click = SystemInformationPressed;
}

bool AgreementAccepted()
{
    Accepted = false;
    System().ShowModal(frmAgree);
    return Accepted;
}

void AcceptPressed()
{
    if (System().ScreenSize() != RecommendedSize)
        System().Show(
            {.Text = "The recommended screen size is 800 x 600 !", .Icon = MessageIcon::Information});
    Accepted = true;
    frmAgree.Visible = false;
    System().ShowModal(frmIntro);
    frmAgree.Unload();
}

void RefusePressed()
{
    frmAgree.Unload();
}

void IntroEnds()
{
    frmIntro.tmrIntro.Enabled = false;
    frmIntro.tmrWelcome.Enabled = false;
    frmIntro.Unload();
}

std::string VersionCaption()
{
    return std::string("Version: ") + ProgramVersion();
}

} // namespace velorix
