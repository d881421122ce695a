#include "platform/file_system.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace cirrava {

namespace {

int flags_of(FileAccess access) {
    if (access == FileAccess::read)
        return O_RDONLY;
    return O_RDWR | O_CREAT | (access == FileAccess::own ? O_NOFOLLOW : 0);
}

bool has_one_name(int descriptor) {
    struct stat status {};
    return ::fstat(descriptor, &status) == 0 && status.st_nlink == 1;
}

// Some file systems have nothing to flush, and say so in several ways.
bool flush(int descriptor) {
    return ::fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP || errno == ENOSYS ||
           errno == EPERM;
}

} // namespace

void prepare_for_files() {
    // Not ignored, which programs that this one starts would inherit.
    for (const int signal : {SIGXFSZ, SIGPIPE})
        std::signal(signal, [](int) {});
    int descriptor = 0;
    while (descriptor >= 0 && descriptor <= STDERR_FILENO)
        descriptor = ::open("/dev/null", O_RDWR);
    ::close(descriptor);
}

std::FILE* open_stream(const std::filesystem::path& path, FileAccess access) {
    const int flags = flags_of(access) | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    const int descriptor = ::open(path.c_str(), flags, 0666);
    if (descriptor < 0)
        return nullptr;
    if (access == FileAccess::own && !has_one_name(descriptor)) {
        ::close(descriptor);
        errno = EACCES;
        return nullptr;
    }
    return ::fdopen(descriptor, access == FileAccess::read ? "rb" : "r+b");
}

// Not every file system can; what it cannot write, it tells later. The file keeps its length, for
// which this needs a call of Linux's own.
bool reserve_room(std::FILE* stream, std::size_t size) {
    const int file = ::fileno(stream);
    return ::fallocate(file, FALLOC_FL_KEEP_SIZE, ::lseek(file, 0, SEEK_CUR),
                       static_cast<off_t>(size)) == 0 ||
           (errno != ENOSPC && errno != EDQUOT);
}

bool sync_stream(std::FILE* stream, const std::filesystem::path& path) {
    if (!flush(::fileno(stream)))
        return false;
    const auto folder_path = path.has_parent_path() ? path.parent_path() : ".";
    const int folder = ::open(folder_path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return true; // a user may be allowed to write in a folder but not to read it
    const bool flushed = flush(folder);
    const int error = errno;
    ::close(folder);
    errno = error;
    return flushed;
}

bool is_hidden(const std::filesystem::path& path) {
    return path.filename().native().starts_with('.');
}

bool may_write_in(const std::filesystem::path& folder) {
    return ::access(folder.c_str(), W_OK | X_OK) == 0;
}

std::filesystem::path path_of_system_text(const std::string& text) {
    return text;
}

} // namespace cirrava
