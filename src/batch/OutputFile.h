// What the commands write: files that appear whole or not at all, and standard output.
#pragma once

#include "base/NewFile.h"
#include "batch/InputFiles.h"

#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace velorix {

constexpr const char* StandardStream = "-";

// All of these throw FileFailure with the name and the system's reason, and Interruption when an interrupt
// ends a write.

// Takes the place of an earlier file when it is finished, and leaves it otherwise. Standard output, a pipe
// and a device get what is written at once.
class OutputFile {
public:
    explicit OutputFile(const std::string& Target); // a path or StandardStream

    void Write(const std::string& Text);
    void Finish();

private:
    struct Closer {
        void operator()(std::FILE* Stream) const { std::fclose(Stream); }
    };

    std::string Name;
    std::optional<NewFile> Whole;
    std::unique_ptr<std::FILE, Closer> Stream;
};

// A whole result at once, where the guard lets it be.
void WriteResult(const OutputGuard& Guard, const std::filesystem::path& Target, const std::string& Text);

// To standard output, at once.
void WriteOut(const std::string& Text);

bool IsTerminal(std::FILE* Stream);

// With the folders above it; one that is there will do.
void MakeFolder(const std::filesystem::path& Folder);

} // namespace velorix
