#pragma once

#include "platform/registry.h"

#include <filesystem>
#include <functional>
#include <string>

namespace cirrava {

// Reads the value `SubKeyRef` of the key `KeyName` under `KeyRoot` as text into `KeyVal`, and says
// whether there is one. `KeyVal` becomes empty when there is none, or one of more than 1024 bytes,
// and stays as it is for a value that is neither a string nor a 32-bit number.
bool GetKeyValue(const Registry& registry, std::uint32_t KeyRoot, const std::string& KeyName,
                 const std::string& SubKeyRef, std::string& KeyVal);

// What `StartSysInfo` asks of the system and of the user.
struct SystemInfoActions {
    std::function<bool(const std::filesystem::path&)> start; // a program; false when it cannot
    std::function<void()> tell_unavailable;
};

// Starts the program that the registry names for information about the system, or says that there
// is none.
void StartSysInfo(const Registry& registry, const SystemInfoActions& actions);

} // namespace cirrava
