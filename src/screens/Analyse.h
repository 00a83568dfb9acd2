// The dialog that starts an analysis and shows its progress.
#pragma once

#include "platform/Controls.h"
#include "platform/Screen.h"

namespace velorix {

struct AnalyseScreen : Screen {
    AnalyseScreen();

    // What its button does before an analysis and after one.
    static constexpr const char* AnalyseHint = "Click to analyse the project";
    static constexpr const char* ContinueHint = "Click to see the results";

    Label lblAnalyse{"The data has been verified, proceed with analysis"};
    Label lbl0{"0 %"};
    Label lbl100{"100 %"};
    ProgressBar proBar;
    CommandButton sscAnalyse{"&Analyse", AnalyseHint};
    CommandButton sscCancel{"&Cancel", "Click to return to the input data"};
    CommandButton sscHelp{"", "Help"};
    Timer tmrMatrix{100};
    Timer tmrStopMatrix{2800};
};

inline AnalyseScreen frmAnalyse;

} // namespace velorix
