// The files that a command reads, and what it may write over.
#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <sys/types.h>
#include <utility>
#include <vector>

namespace velorix {

struct InputFile {
    std::string Name;           // as the user gave it, "-" for standard input
    std::filesystem::path Path; // where its bytes stand

    std::string Stem() const; // of the name, without folder and extension; stdin of "-"
};

// The files by name. Standard input is read to its end here, and kept as a file without a name. Throws
// Failure when it is named twice, and when it can't be read.
std::vector<InputFile> OpenInputs(const std::vector<std::string>& Names);

// The bytes of a regular file. Throws FileFailure, also when there are more than Longest.
std::string ReadText(const std::filesystem::path& Path, std::size_t Longest);

// The stems name what is written for each file. Throws Failure when two are equal.
void RequireDistinctStems(const std::vector<InputFile>& Files);

// Whether a file is too short to hold a project. What a reader misses of it counts as zero.
bool IsTooShort(const std::filesystem::path& Project);
extern const char* const TooShort; // the reason in words

// Keeps a slip of the command line from destroying a file.
class OutputGuard {
public:
    explicit OutputGuard(const std::vector<InputFile>& Inputs);

    // Both throw Failure for a file that the command reads; the first for any project that exists, the second
    // for what exists and isn't one, unless forced.
    void RequireResult(const std::filesystem::path& Output) const;
    void RequireProject(const std::filesystem::path& Output, bool Forced) const;

private:
    void RequireNoInput(const std::filesystem::path& Output) const;

    std::set<std::pair<dev_t, ino_t>> Read;
};

} // namespace velorix
