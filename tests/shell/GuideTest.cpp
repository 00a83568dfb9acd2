// The guide's way onto the screen.
#include "screens/Guide.h"
#include "ShellTest.h"
#include "shell/GuideEvents.h"

#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace velorix {
namespace {

namespace fs = std::filesystem;

// The user who puts the guide back before the second retry.
class Restoring : public ScriptedPlatform {
public:
    Answer Show(const Message& Box) override
    {
        ScriptedPlatform::Show(Box);
        if (Messages.size() == 2) {
            fs::create_directories(GuideFile().parent_path());
            std::ofstream(GuideFile()) << "no look is taken at what it holds";
        }
        return Answer::Retry;
    }
};

class GuideTest : public ShellTest {
protected:
    GuideTest() { Windows.Folder = Home; }
    ~GuideTest() override
    {
        InstallPlatform(&Windows);
        fs::remove_all(Home);
    }

    const fs::path Home = fs::temp_directory_path() / ("velorix-guide-" + std::to_string(getpid()));
    const std::string Place = (Home / "Guide" / "Step-by-step LCCA guide.pdf").string();
};

TEST_F(GuideTest, WithoutItTheScreenComesUpEmpty)
{
    Windows.ModalScripts["frmPDFView"] = [] {
        EXPECT_EQ(frmPDFView.Caption.Get(), "  STEP-BY-STEP LCCA GUIDE");
        EXPECT_EQ(frmPDFView.pdfReport.File.Get(), "");
        EXPECT_TRUE(frmLCC.Visible);
        frmPDFView.sscOK.Click();
    };
    MDIProject.mnuStep.Click();
    ASSERT_EQ(Windows.Messages.size(), 1u);
    const Message& Told = Windows.Messages.front();
    EXPECT_EQ(Told.Text, "Could not find the required file, (" + Place +
                             ") under the indicated directory.  Please ensure that the file is under the "
                             "directory.");
    EXPECT_EQ(Told.Title, "Error");
    EXPECT_EQ(Told.Icon, MessageIcon::Critical);
    EXPECT_EQ(Told.Buttons, MessageButtons::RetryCancel);
    EXPECT_FALSE(frmPDFView.IsLoaded());
}

TEST_F(GuideTest, RetryLooksAgainAsOftenAsAsked)
{
    Restoring User;
    User.Folder = Home;
    InstallPlatform(&User);
    User.ModalScripts["frmPDFView"] = [this] {
        EXPECT_EQ(frmPDFView.Caption.Get(), Place);
        EXPECT_EQ(frmPDFView.pdfReport.File.Get(), Place);
    };
    for (int Opened = 1; Opened <= 2; ++Opened) { // the second time it is there
        MDIProject.mnuStep.Click();
        EXPECT_EQ(User.ModalScreens.size(), Opened);
        EXPECT_EQ(User.Messages.size(), 2U);
    }
}

TEST_F(GuideTest, HelpOfTheResultsOpensTheChapterOfThePage)
{
    std::vector<std::string> Opened;
    Windows.ModalScripts["frmPDFView"] = [&] { Opened.push_back(frmPDFView.pdfReport.Bookmark); };
    for (const CommandButton* Each : {&frmResults.sscHelp1, &frmResults.sscHelp2, &frmResults.sscHelp3}) {
        EXPECT_TRUE(Each->Enabled);
        Each->Click();
    }
    MDIProject.mnuStep.Click(); // from its beginning again
    EXPECT_EQ(Opened,
              (std::vector<std::string>{"Hydraulic analysis", "System analysis", "Cost analysis", ""}));
}

} // namespace
} // namespace velorix
