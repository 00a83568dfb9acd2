// The load of a project that tells which of its numbers the input screen couldn't hold.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace velorix {

// Loads the file as the open project. One line for each number that was out of its control's range: field,
// value, and what was taken instead.
std::vector<std::string> LoadAndTellPinned(const std::filesystem::path& Project);

// The same with a line ahead about a file that is too short for a project, for those who work on it anyway.
std::vector<std::string> LoadAndTellAll(const std::filesystem::path& Project);

} // namespace velorix
