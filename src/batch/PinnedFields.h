// The load of a project that tells which of its numbers the input screen couldn't hold.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace velorix {

// Loads the file as the open project. One line for each number that was out of its control's range: field,
// value, and what was taken instead.
std::vector<std::string> LoadAndTellPinned(const std::filesystem::path& Project);

} // namespace velorix
