#pragma once

// Where the registry says how to get information about the system.
namespace cirrava {

struct RegistryPlace {
    const char* key; // of the local machine
    const char* value;
};

// The path of the program, and the folder of an older one.
inline constexpr RegistryPlace system_info_program{"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO",
                                                   "PATH"};
inline constexpr RegistryPlace system_info_folder{"SOFTWARE\\Microsoft\\Shared Tools Location",
                                                  "MSINFO"};

} // namespace cirrava
