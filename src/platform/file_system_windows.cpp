#include "platform/file_system.h"

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>

namespace cirrava {

std::FILE* open_stream(const std::filesystem::path& path, FileAccess access) {
    const bool writing = access == FileAccess::read_write;
    const int flags = (writing ? _O_RDWR | _O_CREAT : _O_RDONLY) | _O_BINARY | _O_NOINHERIT;
    const int descriptor = _wopen(path.c_str(), flags, _S_IREAD | _S_IWRITE);
    if (descriptor < 0)
        return nullptr;
    std::FILE* const stream = _fdopen(descriptor, writing ? "r+b" : "rb");
    if (stream == nullptr)
        _close(descriptor);
    return stream;
}

bool sync_stream(std::FILE* stream) {
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
