// Any text on the clipboard.
#include "AnyClipText.h"

#include "input/Session.h"
#include "model/WorkingSet.h"
#include "tools/ImportAdvice.h"

#include <cstdio>
#include <cstdlib>

namespace velorix {
namespace {

void Require(bool Holds, const char* What)
{
    if (Holds) return;
    std::fprintf(stderr, "broken: %s\n", What);
    std::abort();
}

} // namespace

void ImportAnyText(const std::string& Text)
{
    TakeClipText(Text);
    const int Before = ImportRows;
    const ParseOutcome Outcome = ParseClipText();
    Require(Outcome == ParseOutcome::Taken || ImportRows == Before, "a refused text leaves the count");
    Require(ImportRows >= 0 && ImportRows <= ImportRowLimit, "the table holds its rows");
    const Advice Told = ImportAdvice(Outcome);
    const bool Warned = Told.Text.find("Finish would end the program") != std::string::npos;
    bool Ends = false;
    try {
        CommitImport();
    } catch (const FatalFailure&) {
        Ends = true;
    }
    Require(Ends == Warned, "the user is told when a commit would fail, and only then");
    Require(Ends || (NodeCount >= LeastNodes && NodeCount <= ImportRowLimit), "the profile stands");
}

} // namespace velorix
