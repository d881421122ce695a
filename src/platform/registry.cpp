#include "platform/registry.h"

#include "platform/binary_file.h"

namespace cirrava {

namespace {

// "&h" and the digits of each byte, the last byte first and without leading zeros.
std::string number_text(const std::string& bytes) {
    constexpr const char* digits = "0123456789ABCDEF";
    std::string text = "&h";
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) {
        const auto value = static_cast<unsigned char>(*byte);
        if (value >= 16)
            text += digits[value / 16];
        text += digits[value % 16];
    }
    return text;
}

} // namespace

bool GetKeyValue(const RegistryReader& registry, std::uint32_t KeyRoot, const std::string& KeyName,
                 const std::string& SubKeyRef, std::string& KeyVal) {
    auto value = registry(KeyRoot, KeyName, SubKeyRef);
    if (!value) {
        KeyVal.clear();
        return false;
    }
    if (value->bytes.ends_with('\0'))
        value->bytes.pop_back();
    if (value->type == string_value)
        KeyVal = value->bytes;
    else if (value->type == number_value)
        KeyVal = number_text(value->bytes);
    return true;
}

std::optional<std::filesystem::path> registered_program(const RegistryReader& registry) {
    std::string path;
    if (GetKeyValue(registry, local_machine, program_key, "PATH", path))
        return path_of_system_text(path);
    if (!GetKeyValue(registry, local_machine, folder_key, "MSINFO", path))
        return std::nullopt;
    std::filesystem::path program = path_of_system_text(path);
    program += std::filesystem::path::preferred_separator;
    program += "MSINFO32.EXE";
    return plain_file_exists(program) ? std::optional(program) : std::nullopt;
}

} // namespace cirrava
