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

namespace velorix {
namespace {

// Does the work; what fails in it ends it, and is told to nobody.
template <typename Work>
void IgnoringFailures(Work Do)
{
    try {
        Do();
    } catch (const Failure&) {
        ClearArithmeticFlags();
    }
}

// Prints the copies that the dialog tells. FailureText is the message for a failure as it stands when the run
// ends: the work may change it on the way. What was printed before it reaches the paper all the same.
template <typename Work>
void RunPrinter(const char* const& FailureText, Work PrintCopy)
{
    bool Ended = false;
    ClearArithmeticFlags();
    try {
        const std::optional<PrintChoice> Choice = System().AskPrinter({});
        if (!Choice) return Warn(FailureText);
        const BusyPointer Printing;
        for (int Copy = 1; Copy <= Choice->Copies; ++Copy) PrintCopy();
        Ended = true;
        System().EndPrintRun();
    } catch (const Failure& Problem) {
        ClearArithmeticFlags();
        ResetPrinter(); // of a page begun
        Warn(FailureText, "Velorix", Problem.what());
        if (!Ended) IgnoringFailures([] { System().EndPrintRun(); });
    }
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
            Printer.Section = Each.Title;
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
        Printer.Section = Chosen.Title;
        Chosen.Print();
    });
    PageNo = 0;
}

void SetUpPrinter()
{
    IgnoringFailures([] { System().AskPrinter({.Setup = true}); });
}

} // namespace velorix
