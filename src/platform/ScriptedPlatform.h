// A window system without windows: it answers from a list and records what it was asked.
#pragma once

#include "platform/Platform.h"
#include "platform/TextMetrics.h"

#include <deque>
#include <functional>
#include <map>
#include <vector>

namespace velorix {

// Message boxes without a scripted answer get their last button (OK, No, Cancel); dialogs without one are
// cancelled; a modal screen without a script closes at once.
class ScriptedPlatform : public Platform {
public:
    // What to answer, first in first out.
    std::deque<Answer> Answers;
    std::deque<std::optional<std::filesystem::path>> Files; // for both file dialogs
    std::deque<std::optional<PrintChoice>> Prints;
    std::map<std::string, std::function<void()>> ModalScripts; // by screen name: what the user does in it

    // What was shown, oldest first.
    std::vector<Message> Messages;
    std::vector<FileDialog> FileDialogs;
    std::vector<PrintDialog> PrintDialogs;
    std::vector<std::string> ModalScreens;
    std::vector<int> HelpTopics;
    std::vector<PrintedPage> Pages;
    int PrintRuns = 0; // that have ended
    Control* Focused = nullptr;
    PointerShape Pointer = PointerShape::Default;
    bool Ended = false;

    std::string Clipboard;
    DisplayList ClipboardPicture;
    Date TodaysDate{2005, 3, 3};
    PixelSize Pixels;
    bool HasSystemInformation = false;
    std::optional<std::size_t> PagesUntilPrinterFails; // and none printed after them
    bool PrintRunsFail = false;                        // at their end
    std::filesystem::path Folder;

    Answer Show(const Message& Box) override;
    void ShowModal(Screen& Dialog) override;
    std::optional<std::filesystem::path> AskFileToOpen(const FileDialog& Dialog) override;
    std::optional<std::filesystem::path> AskFileToSave(const FileDialog& Dialog) override;
    std::optional<PrintChoice> AskPrinter(const PrintDialog& Dialog) override;
    void PrintPage(const PrintedPage& Page) override;
    void EndPrintRun() override;
    void ShowPrintRun() override {}
    void SetFocus(Control& Target) override;
    bool IsInReach(const Control& Target) override { return Target.Visible && Target.Enabled; }
    void SetPointer(PointerShape Shape) override { Pointer = Shape; }
    void Repaint() override {}
    std::string ClipboardText() override { return Clipboard; }
    void SetClipboardText(const std::string& Text) override { Clipboard = Text; }
    void SetClipboardPicture(const DisplayList& Image) override { ClipboardPicture = Image; }
    double TextWidth(const std::string& Text, const Font& Face) override
    {
        return FixedTextWidth(Text, Face);
    }
    double TextHeight(const Font& Face) override { return FixedTextHeight(Face); }
    Date Today() override { return TodaysDate; }
    PixelSize ScreenSize() override { return Pixels; }
    bool ShowSystemInformation() override { return HasSystemInformation; }
    std::filesystem::path ProgramFolder() override { return Folder; }
    void ShowHelp(const std::filesystem::path& HelpFile, int Topic) override;
    void EndProgram() override { Ended = true; }
};

// Raises the timer's tick, if the timer is running.
void Fire(Timer& Clock);

} // namespace velorix
