// The commands that turn a project file into JSON and back.
#pragma once

#include <filesystem>

namespace velorix {

// Prints the project as JSON on standard output. Throws FileFailure when the file can't be read or
// the output can't be written.
void ExportProject(const std::filesystem::path& ProjectFile);

// Writes the project that the JSON file describes. Throws Failure, naming the file, the key and the reason,
// when there is anything wrong with it; nothing is written then.
void ImportProject(const std::filesystem::path& JsonFile, const std::filesystem::path& ProjectFile);

} // namespace velorix
