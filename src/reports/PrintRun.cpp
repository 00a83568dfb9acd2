// The one way of all runs: dialog, copies, end.
#include "reports/PrintRun.h"

#include "base/Arithmetic.h"
#include "base/Failure.h"
#include "input/Session.h"
#include "input/ViewState.h"
#include "platform/Platform.h"
#include "platform/Printer.h"
#include "reports/PageFrame.h"

#include <algorithm>
#include <optional>
#include <string>

namespace velorix {
namespace {

// Does the work. What fails in it ends it, and its reason goes to a line of its own.
template <typename Work>
void Try(std::string& Reasons, Work Do)
{
    ClearArithmeticFlags();
    try {
        Do();
    } catch (const Failure& Problem) {
        ClearArithmeticFlags();
        ResetPrinter(); // of a page begun
        Reasons += (Reasons.empty() ? "" : "\n") + std::string(Problem.what());
    }
}

// Prints the copies that the dialog tells. FailureText is the message for a failure as it stands when the run
// ends: the work may change it on the way. What was printed before it reaches the paper all the same.
template <typename Work>
void RunPrinter(const char* const& FailureText, Work PrintCopy)
{
    std::optional<PrintChoice> Choice;
    std::string Reasons;
    Try(Reasons, [&] { Choice = System().AskPrinter({}); });
    if (!Choice) return Warn(FailureText, "Velorix", Reasons);
    {
        const BusyPointer Printing;
        Try(Reasons, [&] {
            for (int Copy = 1; Copy <= Choice->Copies; ++Copy) PrintCopy();
        });
        Try(Reasons, [] { System().EndPrintRun(); });
    }
    if (!Reasons.empty()) Warn(FailureText, "Velorix", Reasons);
    System().ShowPrintRun();
}

bool IsTicked(const PrintSection& Section)
{
    return Section.Box.Value;
}

bool CountsAsChoice(const PrintSection& Section)
{
    return IsTicked(Section) && &Section.Box != &frmPrint.chkIncome;
}

void CloseSelection()
{
    frmPrint.Enabled = true;
    frmPrint.Unload();
    if (ProjectOpen == 1) ShowInputScreen();
}

} // namespace

void PrintTicked()
{
    const auto Sections = PrintSections();
    frmPrint.Enabled = false;
    PageNo = 0;
    if (std::none_of(Sections.begin(), Sections.end(), CountsAsChoice)) {
        Warn("Select what to print !", "Print Error !");
        frmPrint.Enabled = true;
        return;
    }
    const char* FailureText = Sections.front().Failure;
    RunPrinter(FailureText, [&] {
        PageNo = 0;
        for (const PrintSection& Each : Sections) {
            if (!IsTicked(Each)) continue;
            FailureText = Each.Failure;
            Printer.BeginSection(Each.Title);
            Each.Print();
        }
    });
    PageNo = 0;
    CloseSelection();
}

void PrintDirectly(const DirectPrint& Chosen)
{
    if (Chosen.Redraw) Chosen.Redraw();
    RunPrinter("You cancelled the print box !", [&] {
        PageNo = Chosen.PageNoBefore;
        Printer.BeginSection(Chosen.Title);
        Chosen.Print();
    });
    PageNo = 0;
}

void SetUpPrinter()
{
    std::string Untold;
    Try(Untold, [] { System().AskPrinter({.Setup = true}); });
}

} // namespace velorix
