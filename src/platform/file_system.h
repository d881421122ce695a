#pragma once

#include <cstdio>
#include <filesystem>
#include <string>

// What file access needs of the operating system in a way that standard C++ does not offer.
// One implementation per system: file_system_posix.cpp, file_system_windows.cpp.
namespace cirrava {

enum class FileAccess {
    read,  // an existing file
    write, // created when missing; may be read, too; never shortened: what is there is lost only
           // where it is written over, and readers of a palette look at nothing behind it
    own    // as write, but neither through a link nor into a file with a second name
};

// Makes writes past the process's file-size limit, or into a pipe that nobody reads, fail like any
// other; by default the system would end the program, and the palette with it. Opens those of the
// standard streams that are closed: else the next file that is opened would take the place of one,
// and what is written to that. To be called before all else.
void prepare_for_files();

// Opens `path` at its first byte without waiting for anything, not even for the other end of a
// pipe. Returns null and sets errno on failure.
std::FILE* open_stream(const std::filesystem::path& path, FileAccess access);

// Keeps room on the disk for the next `size` bytes of `stream`, which is unbuffered, where the
// system can. Returns false and sets errno where it is known that there is none.
bool reserve_room(std::FILE* stream, std::size_t size);

// Flushes to the medium what was written to `stream`, which is unbuffered and the open file `path`,
// together with the file's entry in its folder. Returns false and sets errno on failure.
bool sync_stream(std::FILE* stream, const std::filesystem::path& path);

// Whether the system's file lists leave `path` out by default.
bool is_hidden(const std::filesystem::path& path);

// Whether the user may create files in `folder`.
bool may_write_in(const std::filesystem::path& folder);

// The path that `text` spells in the system's 8-bit encoding.
std::filesystem::path path_of_system_text(const std::string& text);

} // namespace cirrava
