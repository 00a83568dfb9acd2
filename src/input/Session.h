// The session: which project is open and what has become of it.
#pragma once

#include "platform/Controls.h"

#include <cstdint>
#include <string>

namespace velorix {

extern std::int16_t ProjectOpen; // 1: a project stands in memory
extern std::int16_t NewProject;  // 1: the next load step doesn't read a file
extern std::int16_t Saved;       // 1: the project equals what is stored
extern std::int16_t Analysed;    // 1: results of an analysis exist for the present inputs
extern std::int16_t SaveAs;      // 1: the commit leaves the writing to Save As
extern std::int16_t Committing;  // 1 during a commit, and after one whose check failed
extern std::int16_t ViewState; // what comes back after a dialog: 1 input screen, 2 the results screen was up
extern std::string FileName;   // full path of the project file, as the dialog gave it
extern bool RedrawProfileView; // the profile view doesn't show the present profile

extern TextBox* PointedOut; // the box of the last failed check, while it waits for the focus

extern Handler ProjectLoaded; // raised at the end of every load step, for what follows the screen's grids

// Writes the starting values into ProjectRecord and runs the load step. What the table of fields keeps stays
// as the last project left it.
void NewProjectDefaults();

// Reads FileName into ProjectRecord. Throws FileFailure, with the record as it was, when that can't be done.
void ReadProjectRecord();

// The load step: reads the record of FileName (unless NewProject is 1), copies it to the working set and
// fills the input screen. Throws FileFailure, with everything as it was, when the file can't be read.
void LoadProject();

// Whether the open project has been opened from a file or saved to one.
bool HasFile();

// The title of the main window: the program's name, with that of the project once it has a file.
void ShowTitle();

// Every edit of the input ends here: the results are thrown away, the project is neither analysed nor saved.
void MarkChanged();

void ResetSession();

} // namespace velorix
