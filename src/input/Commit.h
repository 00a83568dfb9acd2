// The commit: the one road from the input screen to the working set, the record and the file.
#pragma once

namespace velorix {

// Checks that the input is complete, takes it into the working set, copies that to the record, writes the
// record over the one in FileName, and loads the project from there. With SaveAs 1 it ends ahead of the
// writing.
//
// Committing tells the outcome: 1 after a box that is empty or holds no number, which the user has been told
// of then. The record is as it was in that case; of the working set the options and the tables that were
// read ahead of that box may be new.
//
// Throws FileFailure, with Committing 0 and the record new, when the file can't be written or read back.
void CommitProject();

// To be called when another page or pane has come up: the box that a failed check pointed out last gets the
// focus if it shows there, or else the button that leads to it.
void GoToPointedOut();

} // namespace velorix
