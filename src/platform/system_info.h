#pragma once

#include "platform/registry.h"

#include <filesystem>

namespace cirrava {

// Where the registry says how to get information about the system.
struct RegistryPlace {
    const char* key; // of the local machine
    const char* value;
};

// The path of the program, and the folder of an older one.
inline constexpr RegistryPlace system_info_program{"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO",
                                                   "PATH"};
inline constexpr RegistryPlace system_info_folder{"SOFTWARE\\Microsoft\\Shared Tools Location",
                                                  "MSINFO"};

// Reads the value `SubKeyRef` of the key `KeyName` under `KeyRoot` as text into `KeyVal`, and says
// whether there is one. `KeyVal` becomes empty when there is none, and stays as it is for a value
// that is neither a string nor a 32-bit number.
bool GetKeyValue(const RegistryReader& registry, std::uint32_t KeyRoot, const std::string& KeyName,
                 const std::string& SubKeyRef, std::string& KeyVal);

// What `StartSysInfo` asks of the system and of the user.
struct SystemInfoActions {
    RegistryReader registry;
    std::function<bool(const std::filesystem::path&)> start; // a program; false when it cannot
    std::function<void()> tell_unavailable;
};

// Starts the program that the registry names for information about the system, or says that there
// is none.
void StartSysInfo(const SystemInfoActions& actions);

} // namespace cirrava
