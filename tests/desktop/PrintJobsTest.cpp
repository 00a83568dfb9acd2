// Print runs through the dialogs that a user would see, into files and the preview.
#include "desktop/PrintJobs.h"

#include "DesktopTest.h"
#include "base/Failure.h"
#include "model/WorkingSet.h"
#include "reports/GraphPages.h"
#include "reports/PrintRun.h"
#include "screens/Viewers.h"

#include <fstream>

namespace velorix {
namespace {

using testing::HasSubstr;

class PrintJobsTest : public testing::Test {
protected:
    PrintJobsTest()
    {
        InstallPlatform(&Windows);
        wProject = "Witklip";
        wDesigner = "P. Engineer";
    }
    ~PrintJobsTest() override { InstallPlatform(nullptr); }

    static void Press(const QDialog& Dialog, const QString& Text)
    {
        for (QPushButton* Each : Dialog.findChildren<QPushButton*>())
            if (Each->text().remove('&') == Text) return Each->click();
        FAIL() << "no button " << Text.toStdString();
    }

    static void NameNextFile(const std::filesystem::path& Path)
    {
        WithTopWindow([Path](QDialog& Dialog) { EnterFile(Dialog, QString::fromStdString(Path.string())); });
    }

    // Answers the printer dialog, whatever printers the machine has, and the question for the file.
    std::optional<PrintChoice> Choose(const QString& Target, int Copies, const std::filesystem::path& File,
                                      const PrintDialog& Asked = {})
    {
        WithTopWindow([=](QDialog& Dialog) {
            if (!File.empty()) NameNextFile(File);
            Dialog.findChild<QComboBox*>()->setCurrentText(Target);
            Dialog.findChild<QSpinBox*>()->setValue(Copies);
            Press(Dialog, "OK");
        });
        return Windows.AskPrinter(Asked);
    }

    void PrintPages(int Count)
    {
        constexpr int Sides[] = {11906, 16838}; // A4 in twips
        for (int Page = 0; Page < Count; ++Page) {
            PrintedPage Made;
            Made.Print.Width = Sides[Page % 2];
            Made.Print.Height = Sides[1 - Page % 2];
            const std::string Text = "Sheet " + std::to_string(Page + 1);
            Made.Print.Items.push_back(TextItem{900, 900, 900, Text, {"Times New Roman", 12}, Black});
            Windows.PrintPage(Made);
        }
    }

    static std::string OutputOf(const QString& Program, const QStringList& Words)
    {
        QProcess Reader;
        Reader.start(Program, Words);
        EXPECT_TRUE(Reader.waitForFinished()) << Program.toStdString();
        return Reader.readAllStandardOutput().toStdString();
    }

    int FilesLeft() const
    {
        const std::filesystem::directory_iterator All(Folder);
        return static_cast<int>(std::distance(begin(All), end(All)));
    }

    NotingPlatform Windows;
    const QTemporaryDir Temporary;
    const std::filesystem::path Folder = Temporary.path().toStdString();
};

TEST_F(PrintJobsTest, ARunBecomesOneFileWithThePagesAsTheyAre)
{
    const auto Choice = Choose("PDF file", 3, Folder / "report");
    ASSERT_TRUE(Choice);
    EXPECT_EQ(Choice->Copies, 3); // the run repeats itself
    PrintPages(3);
    EXPECT_EQ(FilesLeft(), 0);
    Windows.EndPrintRun();

    const QString File = QString::fromStdString((Folder / "report.pdf").string());
    const std::string Facts = OutputOf("pdfinfo", {"-l", "3", File});
    for (const char* Each :
         {"Title:           Witklip\n", "Author:          P. Engineer\n", "Pages:           3\n",
          "Page    1 size:  595 x 842", "Page    2 size:  842 x 595", "Page    3 size:  595 x 842"})
        EXPECT_THAT(Facts, HasSubstr(Each));
    EXPECT_THAT(OutputOf("pdftotext", {File, "-"}), HasSubstr("Sheet 3"));
    Windows.EndPrintRun(); // of nothing
    EXPECT_EQ(FilesLeft(), 1);
}

// Stand-ins for the system's own program keep what they are handed, or refuse it.
TEST_F(PrintJobsTest, APrinterGetsAPageAsItIsAndItsRefusalIsTold)
{
    const QByteArray Path = qgetenv("PATH");
    const auto Restore = qScopeGuard([&] { qputenv("PATH", Path); });
    const std::filesystem::path Program = Folder / "lp";
    const auto PrintBy = [&](const std::string& Script) {
        std::ofstream(Program) << "#!/bin/sh\ncd '" << Folder.string() << "'\n" << Script << "\n";
        std::filesystem::permissions(Program, std::filesystem::perms::owner_all);
        WithTopWindow([](QDialog& Dialog) {
            auto* const Targets = Dialog.findChild<QComboBox*>();
            Targets->insertItem(0, "Office");
            Targets->setItemData(0, static_cast<int>(PrintTarget::Printer), Qt::UserRole);
            Targets->setCurrentIndex(0);
            Press(Dialog, "OK");
        });
        PrintDirectly({"irr", "Rates", frmIRRView.sscPrintView, 0, PrintIrrGraph});
    };
    qputenv("PATH", Temporary.path().toUtf8() + ":" + Path);
    PrintBy("printf '%s ' \"$@\" >words; cat >page.pdf");
    EXPECT_TRUE(Windows.Messages.empty());
    EXPECT_EQ(OutputOf("cat", {Temporary.filePath("words")}), "-d Office -t Velorix: Rates -o media=A4 ");
    EXPECT_THAT(OutputOf("pdfinfo", {Temporary.filePath("page.pdf")}), HasSubstr("842 x 595 pts (A4)"));

    for (const auto& [Script, Reason] : {std::pair{"echo 'Office is not accepting jobs.' >&2; exit 1",
                                                   "page: Office is not accepting jobs."},
                                         {"exit 3", "status 3"},
                                         {"kill -9 $$", "crashed"}}) {
        PrintBy(Script);
        ASSERT_FALSE(Windows.Messages.empty()) << Script;
        EXPECT_EQ(Windows.Messages.back().Text, "You cancelled the print box !");
        EXPECT_THAT(Windows.Messages.back().Detail, testing::EndsWith(Reason));
    }
    qputenv("PATH", "");
    PrintBy("exit 0");
    EXPECT_THAT(Windows.Messages.back().Detail, HasSubstr("can't be started"));
}

TEST_F(PrintJobsTest, WhatCannotBeWrittenOrHasNoPageLeavesNoFile)
{
    ASSERT_TRUE(Choose("PDF file", 1, Folder / "empty"));
    Windows.EndPrintRun();
    EXPECT_EQ(FilesLeft(), 0);

    std::filesystem::create_directories(Folder / "gone");
    ASSERT_TRUE(Choose("PDF file", 1, Folder / "gone" / "report"));
    std::filesystem::remove(Folder / "gone");
    PrintPages(1);
    EXPECT_THROW(Windows.EndPrintRun(), FileFailure);
    EXPECT_EQ(FilesLeft(), 0);
}

TEST_F(PrintJobsTest, CancelInEitherDialogGivesNothing)
{
    WithTopWindow([](QDialog& Dialog) { Press(Dialog, "Cancel"); });
    EXPECT_FALSE(Windows.AskPrinter({}));
    WithTopWindow([](QDialog& Dialog) {
        WithTopWindow([](QDialog& File) { File.reject(); });
        Dialog.findChild<QComboBox*>()->setCurrentText("PDF file");
        Press(Dialog, "OK");
    });
    EXPECT_FALSE(Windows.AskPrinter({}));
}

TEST_F(PrintJobsTest, TheSetupPresetsTheNextPrintAndAsksForNoFile)
{
    EXPECT_TRUE(Choose("PDF file", 1, {}, {.Setup = true}));
    EXPECT_TRUE(Choose("Preview", 2, {}));
    WithTopWindow([](QDialog& Dialog) {
        EXPECT_EQ(Dialog.findChild<QComboBox*>()->currentText(), "Preview");
        EXPECT_EQ(Dialog.findChild<QSpinBox*>()->value(), 1);
        Dialog.reject();
    });
    EXPECT_FALSE(Windows.AskPrinter({}));
}

TEST_F(PrintJobsTest, ThePreviewGoesThroughThePagesByKeysAndSavesThem)
{
    ASSERT_TRUE(Choose("Preview", 1, {}));
    PrintPages(5);
    bool Shown = false;
    WithTopWindow([&](QDialog& Preview) {
        Shown = true;
        auto* const Number = Preview.findChild<QSpinBox*>();
        const auto Key = [&](Qt::Key Pressed, Qt::KeyboardModifiers With = Qt::NoModifier) {
            QTest::keyClick(Preview.focusWidget(), Pressed, With);
            return Number->value();
        };
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Preview));
        EXPECT_EQ(Key(Qt::Key_PageDown, Qt::ControlModifier), 2);
        EXPECT_EQ(Key(Qt::Key_End), 5);
        EXPECT_EQ(Key(Qt::Key_0, Qt::ControlModifier), 5); // the whole page
        EXPECT_EQ(Key(Qt::Key_PageUp), 4);
        EXPECT_EQ(Key(Qt::Key_PageDown), 5);
        EXPECT_EQ(Key(Qt::Key_Home), 1);
        EXPECT_EQ(Key(Qt::Key_Plus, Qt::ControlModifier), 1);
        Number->setValue(3);
        EXPECT_FALSE(Preview.grab().isNull());
        NameNextFile(Folder / "seen.pdf");
        Press(Preview, "Save as PDF...");
        Key(Qt::Key_Escape);
    });
    Windows.EndPrintRun();
    Windows.ShowPrintRun();
    EXPECT_TRUE(Shown);
    EXPECT_TRUE(std::filesystem::exists(Folder / "seen.pdf"));
}

} // namespace
} // namespace velorix
