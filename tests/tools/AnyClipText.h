// One body for the fuzzer and for the tests: any text on the clipboard, parsed, advised on and committed.
#pragma once

#include "model/WorkingSet.h"
#include "tools/ImportAdvice.h"

#include <cstdio>
#include <cstdlib>

namespace velorix {

// Ends the process when the outcome is none that an import may have.
inline void ImportAnyText(const std::string& Text)
{
    const auto Require = [](bool Holds, const char* What) {
        if (!Holds) std::fprintf(stderr, "broken: %s\n", What), std::abort();
    };
    TakeClipText(Text);
    const int Before = ImportRows;
    const ParseOutcome Outcome = ParseClipText();
    Require(Outcome == ParseOutcome::Taken || ImportRows == Before, "a refused text leaves the count");
    const bool Warned = ImportAdvice(Outcome).Text.find("Finish would end") != std::string::npos;
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
