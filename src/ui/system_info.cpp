#include "ui/system_info.h"

#include "platform/binary_file.h"
#include "platform/failure.h"
#include "platform/system_info_keys.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace cirrava {

namespace {

// The rights asked for with a key: reading, writing, creating and enumerating subkeys, change
// notification, link creation, and the reading of its permissions. Where a user lacks one of them,
// the key counts as missing.
constexpr std::uint32_t access_mask = 0x2003F;

constexpr std::size_t longest_value = 1024;

struct RawValue {
    std::uint32_t type = 0;
    std::string bytes;
};

std::optional<RawValue> query(const Registry& registry, Registry::Key key,
                              const std::string& name) {
    std::array<char, longest_value> buffer{};
    std::uint32_t type = 0;
    std::uint32_t size = longest_value;
    if (registry.RegQueryValueExA(key, name, type, buffer, size) != 0)
        return std::nullopt;
    if (size > 0 && buffer.at(size - 1) == '\0')
        --size;
    return RawValue{type, {buffer.data(), size}};
}

std::string hexadecimal(unsigned char byte) {
    std::array<char, 2> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), byte, 16).ptr;
    std::string text(digits.data(), end);
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char digit) { return digit >= 'a' ? digit - 'a' + 'A' : digit; });
    return text;
}

std::string number_text(const std::string& bytes) {
    std::string text = "&h";
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte)
        text += hexadecimal(static_cast<unsigned char>(*byte));
    return text;
}

// The program that the registry names, or nothing.
std::optional<std::filesystem::path> find_program(const Registry& registry) {
    std::string path;
    if (GetKeyValue(registry, local_machine, system_info_program.key, system_info_program.value,
                    path))
        return path_of_system_text(path);
    if (!GetKeyValue(registry, local_machine, system_info_folder.key, system_info_folder.value,
                     path))
        return std::nullopt;
    std::filesystem::path program = path_of_system_text(path);
    program += std::filesystem::path::preferred_separator;
    program += "MSINFO32.EXE";
    return plain_file_exists(program) ? std::optional(program) : std::nullopt;
}

} // namespace

bool GetKeyValue(const Registry& registry, std::uint32_t KeyRoot, const std::string& KeyName,
                 const std::string& SubKeyRef, std::string& KeyVal) {
    Registry::Key key = 0;
    std::optional<RawValue> value;
    if (registry.RegOpenKeyExA(KeyRoot, KeyName, access_mask, key) == 0) {
        value = query(registry, key, SubKeyRef);
        registry.RegCloseKey(key);
    }
    if (!value)
        KeyVal.clear();
    else if (value->type == string_value)
        KeyVal = value->bytes;
    else if (value->type == number_value)
        KeyVal = number_text(value->bytes);
    return value.has_value();
}

void StartSysInfo(const Registry& registry, const SystemInfoActions& actions) {
    try {
        const auto program = find_program(registry);
        if (program && actions.start(*program))
            return;
    } catch (const Failure&) {
        // That the folder could not be looked into is no more to the user than that nothing is
        // there.
    }
    actions.tell_unavailable();
}

} // namespace cirrava
