// Reads values of a real registry through GetKeyValue. Writes its own keys first, so it is for a
// registry that may be spoiled, such as a fresh one of Wine.

#include "platform/system_info_keys.h"
#include "ui/system_info.h"

#include <cstdio>
#include <windows.h>

namespace {

int failures = 0;

void expect(bool holds, const char* what) {
    std::printf("%s: %s\n", holds ? "ok" : "FAILED", what);
    failures += holds ? 0 : 1;
}

void set(const char* key, const char* name, DWORD type, const std::string& bytes) {
    const std::string guarded = bytes + '!'; // a zero behind the value would be taken into it
    HKEY handle = nullptr;
    RegCreateKeyExA(HKEY_LOCAL_MACHINE, key, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &handle,
                    nullptr);
    RegSetValueExA(handle, name, 0, type, reinterpret_cast<const BYTE*>(guarded.data()),
                   static_cast<DWORD>(bytes.size()));
    RegCloseKey(handle);
}

bool reads(const char* name, std::string& text) {
    return cirrava::GetKeyValue(*cirrava::system_registry(), cirrava::local_machine,
                                cirrava::system_info_program.key, name, text);
}

} // namespace

int main() {
    const char* const key = cirrava::system_info_program.key;
    set(key, "PATH", REG_SZ, std::string("C:\\info.exe") + '\0');
    set(key, "bare", REG_SZ, "C:\\info.exe");
    set(key, "number", REG_DWORD, std::string("\x0A\x1B\xFF\x01"));
    set(key, "bytes", REG_BINARY, "raw");
    set(key, "longest", REG_SZ, std::string(1024, 'x'));
    set(key, "too long", REG_SZ, std::string(1025, 'x'));

    std::string text;
    expect(reads("PATH", text) && text == "C:\\info.exe", "a string loses its terminator");
    expect(reads("bare", text) && text == "C:\\info.exe", "a string without one keeps its bytes");
    expect(reads("number", text) && text == "&h1FF1BA", "a number is read as such");
    expect(reads("longest", text) && text.size() == 1024, "1024 bytes are read");
    text = "as it was";
    expect(reads("bytes", text) && text == "as it was", "another type leaves the text");
    expect(!reads("too long", text) && text.empty(), "1025 bytes are not read");
    text = "as it was";
    expect(!reads("missing", text) && text.empty(), "a missing value empties the text");
    return failures == 0 ? 0 : 1;
}
