#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace cirrava {

// Constants of the operating system that has a registry, under names of our own, since its own are
// macros there.
inline constexpr std::uint32_t local_machine = 0x80000002; // HKEY_LOCAL_MACHINE
inline constexpr std::uint32_t string_value = 1;           // REG_SZ
inline constexpr std::uint32_t number_value = 4;           // REG_DWORD, 32 bits

struct RegistryValue {
    std::uint32_t type = string_value;
    std::string bytes; // at most 1024, with the terminating zero of a string where it has one
};

// The value `name` of the key `key` under `root`, or nothing: a longer value, and one of a key that
// the user may not open for reading and writing, count as missing.
using RegistryReader = std::function<std::optional<RegistryValue>(
    std::uint32_t root, const std::string& key, const std::string& name)>;

// Reads the registry of this machine. One implementation per system: registry_posix.cpp,
// registry_windows.cpp.
std::optional<RegistryValue> read_registry(std::uint32_t root, const std::string& key,
                                           const std::string& name);

} // namespace cirrava
