// An open file with random access. Every failure names the file and the system's reason.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>

namespace velorix {

[[noreturn]] void FailToWrite(const std::filesystem::path& Path, int Error);

// Regular files only: a directory, a pipe or a device is refused, since it has no place to read or write at.
// All operations but the Try ones throw FileFailure.
class File {
public:
    static File OpenToRead(const std::filesystem::path& Path);

    // To read and write a file that is there, and to make one under a name that is free, with those
    // permissions less the user's mask. Neither follows a link. Nothing, with the system's error, where that
    // can't be done. Failures name Shown.
    static std::optional<File> TryOpen(const std::filesystem::path& Path, int& Error);
    static std::optional<File> TryCreate(const std::filesystem::path& Path,
                                         const std::filesystem::path& Shown, unsigned Permissions,
                                         int& Error);

    File(File&& Other) noexcept;
    File& operator=(File&&) = delete;
    ~File();

    std::uintmax_t Length() const;
    bool IsAt(const std::filesystem::path& Path) const; // whether the name is this file's, no link followed

    // Reads up to Count bytes from Start on; the number of bytes that the file has there.
    std::size_t Read(std::uintmax_t Start, char* Bytes, std::size_t Count) const;
    void Write(std::uintmax_t Start, const char* Bytes, std::size_t Count);
    void Truncate(std::uintmax_t Length);
    void Flush(); // returns once the bytes are on the disk

    // Takes over all bytes of the other file, its holes as holes where the filesystem tells them. This one
    // must be empty.
    void CopyFrom(const File& Other);

    // Takes over owner, group, permissions and access list. False when one of them can't be kept, as the user
    // may not give it away.
    [[nodiscard]] bool TakePermissions(const File& Other);

    // Advisory locks, which the programs hold until they close the file: one program at a time replaces it;
    // no program reads while one writes over it.
    enum class Lock { Replace, Read, Overwrite };
    enum class Granted { Yes, No, Unsupported };
    Granted TryLock(Lock Kind) const;
    using Time = std::chrono::steady_clock::time_point;
    static Time EndOfWait(); // some seconds from now
    Granted WaitForLock(Lock Kind, Time GivesUp = EndOfWait()) const;

private:
    File(std::filesystem::path Shown, int Opened);
    static std::optional<File> Open(const std::filesystem::path& Path, const std::filesystem::path& Shown,
                                    int Flags, unsigned Permissions, int& Error);

    std::filesystem::path Path;
    int Handle = -1;
};

} // namespace velorix
