#pragma once

#include <cstdio>
#include <filesystem>
#include <string>

// What file access needs of the operating system in a way that standard C++ does not offer.
// One implementation per system: file_system_posix.cpp, file_system_windows.cpp.
namespace cirrava {

enum class FileAccess {
    read,      // an existing file
    read_write // created when missing, never shortened
};

// Makes a write past the process's file-size limit fail like any other write; by default the system
// would end the program, and the palette with it. To be called when the program starts.
void let_writes_past_size_limit_fail();

// Opens `path` at its first byte without waiting for anything, not even for the other end of a
// pipe. Returns null and sets errno on failure.
std::FILE* open_stream(const std::filesystem::path& path, FileAccess access);

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
