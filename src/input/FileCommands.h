// The commands that begin, open, save and delete a project, and the one that ends the program.
#pragma once

#include <filesystem>

namespace velorix {

// Where the file dialogs start: the folder Projects beside the program, made when it is missing.
std::filesystem::path ProjectsFolder();

// Offers to save the open project and asks for the kind of the new one.
void NewProjectCommand();
void LccTypeContinue(); // starts a new project of the chosen kind
void LccTypeCancel();   // keeps the old project, with its screens hidden

// Opens a file of the user's choice. Cancelling leaves the old project in memory, with its screens hidden.
void OpenProjectCommand();
void OpenProject();

// Opens that file. When it can't be read, the user is told why and the old project stays as it was.
void OpenProjectFile(const std::filesystem::path& Path);

// Saves the project in its file, or as SaveProjectAs while it has none. When the file can't be written, the
// user is told why and the project stays open, unsaved.
void SaveCommand();

// Commits the project, asks for a file and saves the project there. SaveAs stays 1 when the commit fails
// and when the user cancels: a save in place then commits without writing, until the project is saved as a
// file, or a new one is begun or opened. A file that can't be written ends that, and the project counts as
// unsaved.
void SaveAsCommand();
void SaveProjectAs();

// Saves the project ahead of the profile view, from the input screen, which stays. False when a check has
// failed, the file can't be written, or a project without a file was given none. A SaveAs of 1 keeps this
// save from writing too: the view then shows what the commit has taken.
bool SaveToViewProfile();

// Deletes the project's file after a question. A project that has changed isn't deleted.
void DeleteCommand();
void DeleteProject();

// Ends the program after a question, saved or not.
void ExitCommand();

} // namespace velorix
