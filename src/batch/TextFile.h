// Whole texts in and out: files, pipes, devices and standard output.
#pragma once

#include <filesystem>
#include <string>

namespace velorix {

// All throw FileFailure with the name and the system's reason; a write has failed too when its bytes don't
// reach the file at the end. ReadText refuses a text longer than Longest bytes. A file is written whole or
// not at all.
std::string ReadText(const std::filesystem::path& Path, std::size_t Longest);
void WriteText(const std::filesystem::path& Path, const std::string& Text);

// To standard output, at once.
void WriteOut(const std::string& Text);

} // namespace velorix
