// The dialog around an analysis: its opening, its two buttons, its decoration.
#pragma once

namespace velorix {

// The dialog loads: results of an earlier analysis are dropped, the decoration starts.
void AnalyseDialogLoads();

// The decoration has run its time, or the user cut it short: the controls appear.
void EndDecoration();

// "Analyse" runs the analysis; once its results stand, the same button shows them.
void AnalysePressed();

// Back to the input screen.
void AnalyseCancelled();

} // namespace velorix
