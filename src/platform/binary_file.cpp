#include "platform/binary_file.h"

#include "platform/failure.h"

#include <cerrno>
#include <system_error>

namespace cirrava {

namespace {

using enum FailureNumber;

FailureNumber failure_of(std::error_code error) {
    const auto portable = error.default_error_condition();
    if (portable.category() != std::generic_category())
        return device_error; // a number of the operating system's own
    switch (portable.value()) {
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case ETXTBSY:
    case ELOOP:
        return path_access;
    case ENOENT:
    case ENOTDIR:
        return path_not_found;
    case ENAMETOOLONG:
    case EINVAL:
    case EILSEQ:
        return bad_file_name;
    case ENOSPC:
    case EFBIG:
#ifdef EDQUOT
    case EDQUOT:
#endif
        return disk_full;
    case EMFILE:
    case ENFILE:
        return too_many_files;
    case ENXIO:
    case ENODEV:
    case EBUSY:
    case EAGAIN: // a server still has its hand on it
#ifdef ENOMEDIUM
    case ENOMEDIUM:
#endif
        return not_ready;
    default:
        return device_error;
    }
}

std::error_code last_error() {
    return {errno, std::generic_category()};
}

void check(bool done) {
    if (!done)
        throw Failure{failure_of(last_error())};
}

} // namespace

BinaryFile::BinaryFile(const std::filesystem::path& path, FileAccess access) : path_(path) {
    if (path.empty())
        throw Failure{bad_file_name};
    std::error_code unanswered;
    // Before it is opened, which alone may have a device do something.
    const auto status = std::filesystem::status(path, unanswered);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status))
        throw Failure{path_access};

    stream_.reset(open_stream(path, access));
    if (stream_) {
        std::setvbuf(stream_.get(), nullptr, _IONBF, 0);
        return;
    }
    const std::error_code error = last_error();
    const auto folder = path.has_parent_path() ? path.parent_path() : ".";
    const bool only_file_missing = error == std::errc::no_such_file_or_directory &&
                                   std::filesystem::is_directory(folder, unanswered);
    throw Failure{access == FileAccess::read && only_file_missing ? file_not_found
                                                                  : failure_of(error)};
}

Bytes BinaryFile::read(std::size_t count) {
    Bytes bytes(count);
    bytes.resize(std::fread(bytes.data(), 1, count, stream_.get()));
    check(std::ferror(stream_.get()) == 0);
    return bytes;
}

void BinaryFile::seek(long offset) {
    check(std::fseek(stream_.get(), offset, SEEK_SET) == 0);
}

void BinaryFile::write(std::span<const std::uint8_t> bytes) {
    check(reserve_room(stream_.get(), bytes.size()));
    check(std::fwrite(bytes.data(), 1, bytes.size(), stream_.get()) == bytes.size());
}

void BinaryFile::sync() {
    check(sync_stream(stream_.get(), path_));
}

void BinaryFile::close() {
    check(std::fclose(stream_.release()) == 0);
}

bool plain_file_exists(const std::filesystem::path& path) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (!std::filesystem::status_known(status))
        throw Failure{failure_of(error)};
    return std::filesystem::is_regular_file(status) && !is_hidden(path);
}

} // namespace cirrava
