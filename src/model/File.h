// An open file with random access. Every failure names the file and the system's reason.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>

namespace velorix {

// Regular files only: a directory, a pipe or a device is refused, since it can't hold a record. All
// operations throw FileFailure.
class File {
public:
    static File OpenToRead(const std::filesystem::path& Path);
    static File OpenToWrite(const std::filesystem::path& Path); // creates the file where there is none
    static File CreateNew(const std::filesystem::path& Path);   // empties what stands there

    File(File&& Other) noexcept;
    File& operator=(File&&) = delete;
    ~File();

    std::uintmax_t Length() const;

    // Reads up to Count bytes from Start on; the number of bytes that the file has there.
    std::size_t Read(std::uintmax_t Start, char* Bytes, std::size_t Count) const;
    void Write(std::uintmax_t Start, const char* Bytes, std::size_t Count);
    void Truncate(std::uintmax_t Length);
    void Flush(); // returns once the bytes are on the disk

private:
    File(const std::filesystem::path& Path, int Flags, const char* Purpose);
    [[noreturn]] void Fail(const char* Purpose, int Error) const;

    std::filesystem::path Path;
    int Handle = -1;
};

} // namespace velorix
