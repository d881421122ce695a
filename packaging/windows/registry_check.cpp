// Reads values of a real registry. Writes them first, so it is for a registry that may be spoiled,
// such as a fresh one of Wine.

#include "platform/registry.h"

#include <cstdio>
#include <windows.h>

int main() {
    using cirrava::RegistryValue;
    const char* const key = "SOFTWARE\\Cirrava PAL check";
    const struct {
        const char* name;
        RegistryValue value;
        bool fits;
    } cases[]{
        {"text", {REG_SZ, std::string("C:\\info.exe") + '\0'}, true},
        {"bare", {REG_SZ, "C:\\info.exe"}, true},
        {"number", {REG_DWORD, "\x0A\x1B\xFF\x01"}, true},
        {"longest", {REG_BINARY, std::string(1024, 'x')}, true},
        {"too long", {REG_BINARY, std::string(1025, 'x')}, false},
    };
    HKEY handle = nullptr;
    RegCreateKeyExA(HKEY_LOCAL_MACHINE, key, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &handle,
                    nullptr);
    bool good = !cirrava::read_registry(cirrava::local_machine, key, "missing") &&
                !cirrava::read_registry(cirrava::local_machine, "no such key", "text");
    for (const auto& [name, value, fits] : cases) {
        const std::string guarded = value.bytes + '!'; // a zero behind it would be taken into it
        RegSetValueExA(handle, name, 0, value.type, reinterpret_cast<const BYTE*>(guarded.data()),
                       static_cast<DWORD>(value.bytes.size()));
        const auto read = cirrava::read_registry(cirrava::local_machine, key, name);
        const bool same = read && read->type == value.type && read->bytes == value.bytes;
        std::printf("%s: %s\n", name, same == fits ? "ok" : "FAILED");
        good = good && same == fits;
    }
    return good ? 0 : 1;
}
