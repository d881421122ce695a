#include "platform/file_system.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace cirrava {

std::FILE* open_stream(const std::filesystem::path& path, FileAccess access) {
    // A write past the process's file-size limit would otherwise end the program, and the palette
    // with it; ignored, the signal becomes an EFBIG of the write.
    std::signal(SIGXFSZ, SIG_IGN);

    const bool writing = access == FileAccess::read_write;
    const int flags = (writing ? O_RDWR | O_CREAT : O_RDONLY) | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    const int descriptor = ::open(path.c_str(), flags, 0666);
    if (descriptor < 0)
        return nullptr;
    std::FILE* const stream = ::fdopen(descriptor, writing ? "r+b" : "rb");
    if (stream == nullptr)
        ::close(descriptor);
    return stream;
}

bool sync_stream(std::FILE* stream) {
    return ::fsync(::fileno(stream)) == 0;
}

bool is_hidden(const std::filesystem::path& path) {
    return path.filename().native().starts_with('.');
}

std::filesystem::path path_of_system_text(const std::string& text) {
    return text;
}

} // namespace cirrava
