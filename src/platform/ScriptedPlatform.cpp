// Answers from a list.
#include "platform/ScriptedPlatform.h"

#include "base/Failure.h"

namespace velorix {
namespace {

Answer LastButton(MessageButtons Buttons)
{
    switch (Buttons) {
    case MessageButtons::YesNo: return Answer::No;
    case MessageButtons::RetryCancel: return Answer::Cancel;
    case MessageButtons::Ok: break;
    }
    return Answer::Ok;
}

// The next scripted answer, or the given one when the script has ended.
template <typename T>
T Next(std::deque<T>& Script, T Otherwise)
{
    if (Script.empty()) return Otherwise;
    T Result = std::move(Script.front());
    Script.pop_front();
    return Result;
}

} // namespace

Answer ScriptedPlatform::Show(const Message& Box)
{
    Messages.push_back(Box);
    // A box with one button takes nothing off the script: there is nothing to decide.
    return Box.Buttons == MessageButtons::Ok ? Answer::Ok : Next(Answers, LastButton(Box.Buttons));
}

void ScriptedPlatform::ShowModal(Screen& Dialog)
{
    ModalScreens.push_back(Dialog.Name);
    Dialog.LoadHidden();
    Dialog.Visible = true;
    if (const auto Script = ModalScripts.find(Dialog.Name); Script != ModalScripts.end()) Script->second();
    if (Dialog.Visible) Dialog.Unload();
}

std::optional<std::filesystem::path> ScriptedPlatform::AskFileToOpen(const FileDialog& Dialog)
{
    FileDialogs.push_back(Dialog);
    return Next(Files, std::optional<std::filesystem::path>());
}

std::optional<std::filesystem::path> ScriptedPlatform::AskFileToSave(const FileDialog& Dialog)
{
    return AskFileToOpen(Dialog);
}

void ScriptedPlatform::PrintPage(const PrintedPage& Page)
{
    if (PagesUntilPrinterFails == Pages.size()) throw FileFailure("The printer is out of paper.");
    Pages.push_back(Page);
}

std::optional<PrintChoice> ScriptedPlatform::AskPrinter(const PrintDialog&)
{
    return Next(Prints, std::optional<PrintChoice>());
}

void ScriptedPlatform::SetFocus(Control& Target)
{
    Focused = &Target;
    Target.GotFocus();
}

void ScriptedPlatform::ShowHelp(const std::filesystem::path&, int Topic)
{
    HelpTopics.push_back(Topic);
}

void Fire(Timer& Clock)
{
    if (Clock.Enabled) Clock.Tick();
}

} // namespace velorix
