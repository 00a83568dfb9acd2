// The services that the screens expect of a window system.
#pragma once

#include "base/Date.h"
#include "platform/Controls.h"
#include "platform/DisplayList.h"
#include "platform/PrintedPage.h"
#include "platform/Screen.h"

#include <filesystem>
#include <optional>
#include <string>

namespace velorix {

enum class MessageIcon { None, Information, Exclamation, Question, Critical };
enum class MessageButtons { Ok, YesNo, RetryCancel };
enum class Answer { Ok, Yes, No, Retry, Cancel };

struct Message {
    std::string Text;
    std::string Title = "Velorix";
    std::string Detail = {}; // shows below the text
    MessageIcon Icon = MessageIcon::Exclamation;
    MessageButtons Buttons = MessageButtons::Ok;
};

// A file dialog to open or to save. Filters are "name|pattern" pairs in one string, as "A|*.*|B|*.vlx".
struct FileDialog {
    std::string Title;
    std::filesystem::path Folder;
    std::string Filter;
    int FilterIndex = 1; // from 1
    bool OverwritePrompt = false;
    std::string Name = {}; // of the file that is suggested
};

struct PrintDialog {
    bool Setup = false; // the printer's setup, with no print to follow
};

struct PrintChoice {
    int Copies = 1;
};

struct PixelSize {
    int Width = 800;
    int Height = 600;
    bool operator==(const PixelSize&) const = default;
};

enum class PointerShape { Default, Hourglass, Cross };

class Platform {
public:
    virtual ~Platform() = default;

    // Shows a message box and waits for the answer.
    virtual Answer Show(const Message& Box) = 0;

    // Shows a screen over the others and returns once it is hidden or unloaded.
    virtual void ShowModal(Screen& Dialog) = 0;

    // The chosen path, or nothing when the user cancelled.
    virtual std::optional<std::filesystem::path> AskFileToOpen(const FileDialog& Dialog) = 0;
    virtual std::optional<std::filesystem::path> AskFileToSave(const FileDialog& Dialog) = 0;
    virtual std::optional<PrintChoice> AskPrinter(const PrintDialog& Dialog) = 0;

    // A page for the printer that was chosen last: sent at once, or gathered for a file or a preview. What
    // was gathered for a file is written when the run ends. Both throw FileFailure when that can't be done.
    virtual void PrintPage(const PrintedPage& Page) = 0;
    virtual void EndPrintRun() = 0;

    // Shows what was gathered for a preview.
    virtual void ShowPrintRun() = 0;

    virtual void SetFocus(Control& Target) = 0;

    // Whether SetFocus leads to the control itself: it shows, on the page on top, and is enabled.
    virtual bool IsInReach(const Control& Target) = 0;

    virtual void SetPointer(PointerShape Shape) = 0;

    // Paints what has changed, for progress that shows while a calculation keeps the event loop waiting.
    virtual void Repaint() = 0;

    virtual std::string ClipboardText() = 0;
    virtual void SetClipboardText(const std::string& Text) = 0;

    virtual void SetClipboardPicture(const DisplayList& Image) = 0;

    // Size of a text in the fonts that are drawn with (twips).
    virtual double TextWidth(const std::string& Text, const Font& Face) = 0;
    virtual double TextHeight(const Font& Face) = 0; // from one line to the next

    virtual Date Today() = 0;
    virtual PixelSize ScreenSize() = 0;

    // Starts the platform's own tool that tells about the machine; false when there is none.
    virtual bool ShowSystemInformation() = 0;

    virtual std::filesystem::path ProgramFolder() = 0;
    virtual void ShowHelp(const std::filesystem::path& HelpFile, int Topic) = 0;
    virtual void EndProgram() = 0;
};

// The window system in use. One must be installed before any screen is used.
Platform& System();
void InstallPlatform(Platform* InUse);

// The hourglass for as long as the object lives.
class BusyPointer {
public:
    BusyPointer() { System().SetPointer(PointerShape::Hourglass); }
    ~BusyPointer() { System().SetPointer(PointerShape::Default); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
};

// A message with the title "Velorix" and the exclamation icon.
void Warn(const std::string& Text, const std::string& Title = "Velorix", const std::string& Detail = {});

// A message with the information icon.
void Inform(const std::string& Text, const std::string& Title = "Velorix");

// A question with Yes and No, title "Velorix".
bool Confirm(const std::string& Text, const std::string& Title = "Velorix", const std::string& Detail = {});

} // namespace velorix
