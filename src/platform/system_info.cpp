#include "platform/system_info.h"

#include "platform/binary_file.h"
#include "platform/failure.h"

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

// The program that the registry names, or nothing.
std::optional<std::filesystem::path> find_program(const RegistryReader& registry) {
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

void StartSysInfo(const SystemInfoActions& actions) {
    try {
        const auto program = find_program(actions.registry);
        if (program && actions.start(*program))
            return;
    } catch (const Failure&) {
        // A folder that cannot be looked into means no more to the user than an empty one.
    }
    actions.tell_unavailable();
}

} // namespace cirrava
