// A file that is written whole or not at all.
#pragma once

#include "base/File.h"

#include <string>
#include <string_view>
#include <vector>

namespace velorix {

// The new content of a file. It grows under a name of its own beside the old one and takes its place at
// Commit; without, also when the program or the machine stops, the old file stands as it was. Permissions
// stay, and so does a link to the file, which may not be another user's; a hard link keeps the old content.
// What a killed program left beside the file goes with the next write.
//
// Where the folder lets no new file take the old one's place, or the user can't give the new one the owner,
// group and access list of the old, the old one is written over, and put back without Commit; that alone
// doesn't outlast the program's end.
//
// All throw FileFailure. Regular files only, as File has it.
class NewFile {
public:
    explicit NewFile(const std::filesystem::path& Target);
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile();

    // The file that is to be replaced, nullptr where there is none. Programs that replace one file take
    // turns, from construction to destruction: what stands here stays until then.
    const File* Old() const { return Before ? &*Before : nullptr; }

    void KeepOldBytes(); // before the first write: the content begins as that of the old file
    void Write(std::uintmax_t Start, const char* Bytes, std::size_t Count);
    void Append(std::string_view Bytes); // behind what has been written

    // Flushed, the content is on the disk at the return, which takes milliseconds. Many files that can be
    // made again may do without: then they are whole unless the machine stops.
    // Ends the work with this object.
    enum class Flush { Yes, No };
    void Commit(Flush Wanted = Flush::Yes);

private:
    // Removed at its end, under its lock: so it stands before what holds the lock is closed.
    struct TemporaryName {
        std::filesystem::path Path;
        ~TemporaryName();
    };
    struct OldBytes {
        std::uintmax_t Start;
        std::string Bytes;
    };

    void CreateBeside(); // no Content where the old file is to be written over
    void Remember(std::uintmax_t Start, std::size_t Count);
    void PutBack();

    std::filesystem::path Path; // behind all links
    std::optional<File> Before;
    std::optional<File> Content; // none when the old file is written over
    TemporaryName Name;
    std::uintmax_t LengthBefore = 0;
    std::uintmax_t End = 0;     // of what has been written
    std::vector<OldBytes> Undo; // when the old file is written over
};

} // namespace velorix
