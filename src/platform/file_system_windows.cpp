#include "platform/file_system.h"

#include <cerrno>
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>

namespace cirrava {

namespace {

int flags_of(FileAccess access) {
    return _O_BINARY | _O_NOINHERIT | (access == FileAccess::read ? _O_RDONLY : _O_RDWR | _O_CREAT);
}

// Whether the open file `path` is the only name of its content and no link to another.
bool has_one_name(HANDLE file, const std::filesystem::path& path) {
    BY_HANDLE_FILE_INFORMATION information;
    return GetFileInformationByHandle(file, &information) != 0 && information.nNumberOfLinks == 1 &&
           (GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_REPARSE_POINT) == 0;
}

} // namespace

void prepare_for_files() {} // such writes fail like any other here, and streams keep their places

// Opens only what a file list shows under that path later.
std::FILE* open_stream(const std::filesystem::path& path, FileAccess access) {
    // A colon introduces the name of a second content of the file, which no file list shows.
    if (path.relative_path().native().find(L':') != std::wstring::npos) {
        errno = EINVAL;
        return nullptr;
    }
    const int descriptor = _wopen(path.c_str(), flags_of(access), _S_IREAD | _S_IWRITE);
    // Windows says of a path that is too long only that it does not find it.
    if (descriptor < 0 && errno == ENOENT && path.native().size() >= MAX_PATH)
        errno = ENAMETOOLONG;
    if (descriptor < 0)
        return nullptr;
    const auto file = reinterpret_cast<HANDLE>(_get_osfhandle(descriptor));
    // Some names, such as NUL, are devices in every folder.
    if (GetFileType(file) != FILE_TYPE_DISK ||
        (access == FileAccess::own && !has_one_name(file, path))) {
        _close(descriptor);
        errno = EACCES;
        return nullptr;
    }
    return _fdopen(descriptor, access == FileAccess::read ? "rb" : "r+b");
}

// Room can be kept here only by setting how much a file has, which would shorten a longer one.
bool reserve_room(std::FILE*, std::size_t) {
    return true;
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
