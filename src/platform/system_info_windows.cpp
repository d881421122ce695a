#include "platform/registry.h"
#include "platform/system_info.h"

#include <windows.h>

namespace cirrava {

namespace {

// The rights asked for with a key: reading, writing, creating and enumerating subkeys, change
// notification, link creation, and the reading of its permissions. More than reading needs, on
// purpose: a key that the user may not change as well counts as missing.
constexpr REGSAM access_mask = 0x2003F;

constexpr DWORD longest_value = 1024;

} // namespace

std::optional<RegistryValue> read_registry(std::uint32_t root, const std::string& key,
                                           const std::string& name) {
    // A predefined root is a 32-bit number, sign-extended to the width of a handle.
    const auto root_handle = reinterpret_cast<HKEY>(static_cast<LONG_PTR>(static_cast<LONG>(root)));
    HKEY handle = nullptr;
    if (::RegOpenKeyExA(root_handle, key.c_str(), 0, access_mask, &handle) != ERROR_SUCCESS)
        return std::nullopt;
    RegistryValue value{0, std::string(longest_value, '\0')};
    DWORD type = 0;
    DWORD size = longest_value;
    const LONG result = ::RegQueryValueExA(handle, name.c_str(), nullptr, &type,
                                           reinterpret_cast<BYTE*>(value.bytes.data()), &size);
    ::RegCloseKey(handle);
    if (result != ERROR_SUCCESS)
        return std::nullopt;
    value.type = type;
    value.bytes.resize(size);
    return value;
}

std::filesystem::path find_system_info_program() {
    return registered_program(read_registry);
}

} // namespace cirrava
