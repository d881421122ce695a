#include "platform/file_system.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace cirrava {

void let_writes_past_size_limit_fail() {
    std::signal(SIGXFSZ, [](int) {}); // programs that this one starts would inherit an ignored one
}

std::FILE* open_stream(const std::filesystem::path& path, FileAccess access) {
    const bool writing = access == FileAccess::read_write;
    const int flags = (writing ? O_RDWR | O_CREAT : O_RDONLY) | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    const int descriptor = ::open(path.c_str(), flags, 0666);
    if (descriptor < 0)
        return nullptr;
    std::FILE* const stream = ::fdopen(descriptor, writing ? "r+b" : "rb");
    if (stream == nullptr) {
        const int error = errno;
        ::close(descriptor);
        errno = error;
    }
    return stream;
}

bool sync_stream(std::FILE* stream, const std::filesystem::path& path) {
    if (::fsync(::fileno(stream)) != 0)
        return false;
    const auto folder_path = path.has_parent_path() ? path.parent_path() : ".";
    const int folder = ::open(folder_path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return true; // a user may be allowed to write in a folder but not to read it
    const bool synced = ::fsync(folder) == 0 || errno == EINVAL; // or has nothing to flush
    const int error = errno;
    ::close(folder);
    errno = error;
    return synced;
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
