#include "platform/file_system.h"

#include <cerrno>
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>

namespace cirrava {

namespace {

// Works as _wopen but opens only what a file list shows under that path later.
int open_on_disk(const std::filesystem::path& path, int flags) {
    // A colon introduces the name of a second content of the file, which no file list shows.
    if (path.relative_path().native().find(L':') != std::wstring::npos) {
        errno = EINVAL;
        return -1;
    }
    const int descriptor = _wopen(path.c_str(), flags, _S_IREAD | _S_IWRITE);
    // Windows says of a path that is too long only that it does not find it.
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

// Windows flushes the file's entry with it.
bool sync_stream(std::FILE* stream, const std::filesystem::path&) {
    return _commit(_fileno(stream)) == 0;
}

bool is_hidden(const std::filesystem::path& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0;
}

// Windows does not tell without an attempt. The file is gone as soon as it is closed.
bool may_write_in(const std::filesystem::path& folder) {
    const HANDLE file = CreateFileW((folder / "cirrava-pal.tmp").c_str(), GENERIC_WRITE | DELETE, 0,
                                    nullptr, CREATE_NEW, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    return file != INVALID_HANDLE_VALUE && CloseHandle(file) != 0;
}

std::filesystem::path path_of_system_text(const std::string& text) {
    std::wstring wide(text.size(), L'\0'); // never longer in wide characters
    const int size = MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()),
                                         wide.data(), static_cast<int>(wide.size()));
    wide.resize(static_cast<std::size_t>(size));
    return wide;
}

} // namespace cirrava
