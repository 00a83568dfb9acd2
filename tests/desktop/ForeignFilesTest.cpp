// Files of any bytes, opened in the real window and looked at page by page.
#include "desktop/MainWindowTest.h"
#include "input/FileCommands.h"
#include "model/SampleRecords.h"

#include <fstream>
#include <random>

namespace velorix {
namespace {

class ForeignFilesTest : public MainWindowTest {
protected:
    // Opens the bytes as the window opens a dropped file, and paints every page of what they spell.
    void OpenAndLook(const std::string& Bytes)
    {
        const std::filesystem::path Path = Folder.filePath("foreign.vlx").toStdString();
        std::ofstream(Path, std::ios::binary) << Bytes;
        OpenProjectFile(Path);
        ASSERT_EQ(ProjectOpen, 1);
        ASSERT_TRUE(frmLCC.Visible);
        for (int Page = 0; Page < static_cast<int>(frmLCC.sstInput.TabCaptions.size()); ++Page) {
            frmLCC.sstInput.Tab = Page;
            QCoreApplication::processEvents();
            EXPECT_FALSE(Main->grab().isNull());
        }
        frmLCC.msgProfile.Select(NodeCount, 7); // the component list comes over the last row
        QCoreApplication::processEvents();
        EXPECT_TRUE(Windows.Messages.empty()) << Windows.Messages.front().Text;
    }

    QTemporaryDir Folder;
    std::mt19937 Random{20050303};
};

TEST_F(ForeignFilesTest, AnyBytesAreShown)
{
    OpenAndLook("");
    for (int Round = 0; Round < 6; ++Round) {
        std::string Bytes(Random() % 60001, '\0');
        for (char& Each : Bytes) Each = static_cast<char>(Random());
        OpenAndLook(Bytes);
    }
    for (const char Byte : {'\x7F', '\xFF', ' '}) OpenAndLook(std::string(16650, Byte));
}

// A sound project, then one whose numbers are partly overwritten, over and over in one window.
TEST_F(ForeignFilesTest, SoundAndSpoiledProjectsTakeTurns)
{
    for (int Round = 0; Round < 6; ++Round) {
        const RecordImage Image = ToImage(Round % 2 == 0 ? GravityRecord(30) : PumpCurveRecord(200));
        std::string Bytes(Image.begin(), Image.end());
        OpenAndLook(Bytes);
        EXPECT_EQ(NodeCount, Round % 2 == 0 ? 30 : 200);
        for (int Change = 0; Change < 400; ++Change)
            Bytes[Random() % Bytes.size()] = static_cast<char>(Random());
        OpenAndLook(Bytes);
    }
}

} // namespace
} // namespace velorix
