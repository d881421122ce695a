#include "platform/file_system.h"

#include <cerrno>
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>

namespace cirrava {

namespace {

// As _wopen, but for what is sure to be found again under that path.
int open_on_disk(const std::filesystem::path& path, int flags) {
    // Behind a colon comes the name of a second content of the file, which no file list shows.
    if (path.relative_path().native().find(L':') != std::wstring::npos) {
        errno = EINVAL;
        return -1;
    }
    const int descriptor = _wopen(path.c_str(), flags, _S_IREAD | _S_IWRITE);
    // Of a path that is too long Windows says only that it does not find it.
    if (descriptor < 0 && errno == ENOENT && path.native().size() >= MAX_PATH)
        errno = ENAMETOOLONG;
    // Some names, such as NUL, are devices in every folder.
    if (descriptor >= 0 &&
        GetFileType(reinterpret_cast<HANDLE>(_get_osfhandle(descriptor))) != FILE_TYPE_DISK) {
        _close(descriptor);
        errno = EACCES;
        return -1;
    }
    return descriptor;
}

} // namespace

void let_writes_past_size_limit_fail() {} // there is no such limit

std::FILE* open_stream(const std::filesystem::path& path, FileAccess access) {
    const bool writing = access == FileAccess::read_write;
    const int flags = (writing ? _O_RDWR | _O_CREAT : _O_RDONLY) | _O_BINARY | _O_NOINHERIT;
    const int descriptor = open_on_disk(path, flags);
    if (descriptor < 0)
        return nullptr;
    std::FILE* const stream = _fdopen(descriptor, writing ? "r+b" : "rb");
    if (stream == nullptr) {
        const int error = errno;
        _close(descriptor);
        errno = error;
    }
    return stream;
}

// The file's entry goes with it.
bool sync_stream(std::FILE* stream, const std::filesystem::path&) {
    return _commit(_fileno(stream)) == 0;
}

bool is_hidden(const std::filesystem::path& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0;
}

std::filesystem::path path_of_system_text(const std::string& text) {
    std::wstring wide(text.size(), L'\0'); // never longer in wide characters
    const int size = MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()),
                                         wide.data(), static_cast<int>(wide.size()));
    wide.resize(static_cast<std::size_t>(size));
    return wide;
}

} // namespace cirrava
