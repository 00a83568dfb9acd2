// The services of the window system, by Qt.
#pragma once

#include "desktop/HelpWindow.h"
#include "desktop/PrintJobs.h"
#include "platform/Platform.h"

#include <QPointer>
#include <QStringList>

#include <functional>
#include <unordered_map>
#include <vector>

class QDialog;
class QWidget;

namespace velorix {

// Lays out the dialog that shows a screen.
using DialogMaker = std::function<QDialog*(QWidget* Owner)>;

class QtPlatform : public Platform {
public:
    // Tells how a screen looks that is shown as a dialog. The dialog is made anew each time.
    void RegisterDialog(Screen& Shown, DialogMaker Make);

    // True once EndProgram was called: an event loop that hasn't begun by then needn't begin.
    bool HasEnded() const { return Ended; }

    Answer Show(const Message& Box) override;

    // The dialog follows the screen's Visible, Caption and Enabled. Closing it by its frame or by Escape
    // closes the screen by its frame, F1 asks for its help. Throws std::logic_error for a screen without a
    // dialog.
    void ShowModal(Screen& Dialog) override;

    std::optional<std::filesystem::path> AskFileToOpen(const FileDialog& Dialog) override;
    std::optional<std::filesystem::path> AskFileToSave(const FileDialog& Dialog) override;

    // A printer of the system, a PDF file or the preview, as the user chose it.
    std::optional<PrintChoice> AskPrinter(const PrintDialog& Dialog) override;
    void PrintPage(const PrintedPage& Page) override;
    void EndPrintRun() override;
    void ShowPrintRun() override;

    void SetFocus(Control& Target) override;
    bool IsInReach(const Control& Target) override;
    void SetPointer(PointerShape Shape) override;
    void Repaint() override;
    std::string ClipboardText() override; // lines end by a carriage return and a line feed
    void SetClipboardText(const std::string& Text) override;
    void SetClipboardPicture(const DisplayList& Image) override;
    double TextWidth(const std::string& Text, const Font& Face) override;
    double TextHeight(const Font& Face) override;
    Date Today() override;
    PixelSize ScreenSize() override;
    bool ShowSystemInformation() override;
    std::filesystem::path ProgramFolder() override;
    void ShowHelp(const std::filesystem::path& HelpFile, int Topic) override;
    void EndProgram() override;

private:
    std::unordered_map<Screen*, DialogMaker> Dialogs;
    QPointer<HelpWindow> Help;     // while it is open
    std::vector<Screen*> Standing; // the dialogs, the front one last
    PointerShape Pointer = PointerShape::Default;
    PrintJobs Prints;
    bool Ended = false;
};

// True while Repaint has the event loop paint: nothing else may happen then.
bool OnlyPainting();

// The folder of the program's data, by the folder of its binary: the binary's own folder, or the share folder
// beside it when the program is installed there. A folder with projects beside the binary wins.
std::filesystem::path ProgramFolderOf(const std::filesystem::path& BinaryFolder);

// "Name (*.a *.b)" of each pair of a filter such as "Name|*.a;*.b|All files|*.*". All files are "(*)": the
// toolkit would take "*.*" for names with a point only.
QStringList NameFilters(const std::string& Filter);

} // namespace velorix
