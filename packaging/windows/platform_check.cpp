// Tries what only Windows has: its registry and its file names. Writes to the registry and to the
// current folder, so it is for a system that may be spoiled, such as a fresh Wine.

#include "platform/binary_file.h"
#include "platform/failure.h"
#include "platform/registry.h"

#include <cstdio>
#include <windows.h>

namespace {

using namespace cirrava;

bool all_good = true;

void expect(bool good, const char* what) {
    std::printf("%s: %s\n", what, good ? "ok" : "FAILED");
    all_good = all_good && good;
}

void check_registry() {
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
    expect(!read_registry(local_machine, key, "missing"), "missing value");
    expect(!read_registry(local_machine, "no such key", "text"), "missing key");
    for (const auto& [name, value, fits] : cases) {
        const std::string guarded = value.bytes + '!'; // a zero behind it would be taken into it
        RegSetValueExA(handle, name, 0, value.type, reinterpret_cast<const BYTE*>(guarded.data()),
                       static_cast<DWORD>(value.bytes.size()));
        const auto read = read_registry(local_machine, key, name);
        expect((read && read->type == value.type && read->bytes == value.bytes) == fits, name);
    }
}

void check_registered_program() {
    std::optional<RegistryValue> program;
    const RegistryReader registry = [&](auto, const std::string& key, const auto&) {
        return key == program_key ? program : RegistryValue{string_value, "Z:\\none"};
    };
    expect(registered_program(registry).empty(), "no program");
    program = {REG_BINARY, "bytes"};
    expect(registered_program(registry).empty(), "no text");
    program = {string_value, std::string("Z:\\none.exe") + '\0'};
    expect(registered_program(registry) == "Z:\\none.exe", "a program, without a look");
}

// The number of the failure, or 0.
int failure_of_opening(const std::filesystem::path& path, FileAccess access) {
    try {
        BinaryFile(path, access);
        return 0;
    } catch (const Failure& failure) {
        return static_cast<int>(failure.number);
    }
}

void check_file_names() {
    const struct {
        const char* what;
        std::filesystem::path path;
        int reading, writing; // the failures' numbers
    } cases[]{
        {"device", "NUL", 75, 75},
        {"long name", std::filesystem::current_path() / std::string(300, 'x'), 52, 52},
        {"bad letter", "a?b.bmp", 52, 52},
        {"second content", std::filesystem::current_path() / "12:30.bmp", 52, 52},
        {"missing folder", "missing/a.bmp", 76, 76},
        {"folder", ".", 75, 75},
        {"file", "a.bmp", 53, 0},
    };
    for (const auto& [what, path, reading, writing] : cases)
        expect(failure_of_opening(path, FileAccess::read) == reading &&
                   failure_of_opening(path, FileAccess::write) == writing,
               what);
    expect(may_write_in(".") && !std::filesystem::exists("cirrava-pal.tmp"), "writable folder");
    expect(!may_write_in("missing"), "unwritable folder");
}

} // namespace

int main() {
    check_registry();
    check_registered_program();
    check_file_names();
    return all_good ? 0 : 1;
}
