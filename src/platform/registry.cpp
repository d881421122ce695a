#include "platform/registry.h"

#include "platform/binary_file.h"

namespace cirrava {

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
    return true;
}

std::filesystem::path registered_program(const RegistryReader& registry) {
    std::string path;
    if (GetKeyValue(registry, local_machine, program_key, "PATH", path))
        return path_of_system_text(path);
    if (!GetKeyValue(registry, local_machine, folder_key, "MSINFO", path))
        return {};
    std::filesystem::path program = path_of_system_text(path);
    program += std::filesystem::path::preferred_separator;
    program += "MSINFO32.EXE";
    return plain_file_exists(program) ? program : std::filesystem::path();
}

} // namespace cirrava
