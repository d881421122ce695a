#include "platform/registry.h"

#include <windows.h>

namespace cirrava {

namespace {

class WindowsRegistry : public Registry {
public:
    long RegOpenKeyExA(std::uint32_t root, const std::string& path, std::uint32_t access,
                       Key& key) const override {
        // A predefined root is a 32-bit number, sign-extended to the width of a handle.
        const auto handle = static_cast<LONG_PTR>(static_cast<LONG>(root));
        HKEY opened = nullptr;
        const long result =
            ::RegOpenKeyExA(reinterpret_cast<HKEY>(handle), path.c_str(), 0, access, &opened);
        key = reinterpret_cast<Key>(opened);
        return result;
    }

    long RegQueryValueExA(Key key, const std::string& name, std::uint32_t& type,
                          std::span<char> data, std::uint32_t& size) const override {
        DWORD value_type = 0;
        auto value_size = static_cast<DWORD>(data.size());
        const long result =
            ::RegQueryValueExA(reinterpret_cast<HKEY>(key), name.c_str(), nullptr, &value_type,
                               reinterpret_cast<BYTE*>(data.data()), &value_size);
        type = value_type;
        size = value_size;
        return result;
    }

    void RegCloseKey(Key key) const override { ::RegCloseKey(reinterpret_cast<HKEY>(key)); }
};

} // namespace

std::unique_ptr<Registry> system_registry() {
    return std::make_unique<WindowsRegistry>();
}

} // namespace cirrava
