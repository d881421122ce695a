#pragma once

#include "platform/file_system.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace cirrava {

using Bytes = std::vector<std::uint8_t>;

// A regular file, open until `close`, after which nothing else may be called, or the object's end.
// Every operation that fails throws a Failure: bad_file_name, file_not_found, device_error,
// disk_full, too_many_files, not_ready, path_access (also for anything but a regular file) or
// path_not_found.
class BinaryFile {
public:
    // Opens `path` at its first byte.
    BinaryFile(const std::filesystem::path& path, FileAccess access);

    // Reads the next `count` bytes, or as many as are left.
    Bytes read(std::size_t count);

    // Moves to `offset` bytes from the start of the file, which may lie past its end.
    void seek(long offset);

    // Writes all of `bytes` at the current offset, without a buffer: what does not fit fails here.
    // Where the system can tell that the disk has no room, nothing is written at all.
    void write(std::span<const std::uint8_t> bytes);

    // Flushes all that was written, and the file's name, to the medium, so that it survives a power
    // failure.
    void sync();

    // Closes the file, and so ends the writing. On network drives, for instance, a failure may show
    // only here. Without this call the file is closed too, but nobody learns of such a failure.
    void close();

    // The open file, for a library that reads it by itself.
    std::FILE* stream() { return stream_.get(); }

private:
    struct Closer {
        void operator()(std::FILE* stream) const { std::fclose(stream); }
    };
    std::filesystem::path path_;
    std::unique_ptr<std::FILE, Closer> stream_;
};

// Whether `path` names a regular file that is not hidden. Throws a Failure when the system cannot
// tell.
bool plain_file_exists(const std::filesystem::path& path);

} // namespace cirrava
