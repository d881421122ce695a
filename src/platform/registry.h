#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

// Finding a program in the registry of Windows. All but the reading itself works on every system.
namespace cirrava {

// Constants of Windows under names of our own, since its own are macros there.
inline constexpr std::uint32_t local_machine = 0x80000002; // HKEY_LOCAL_MACHINE
inline constexpr std::uint32_t string_value = 1;           // REG_SZ

// Below the local machine.
inline constexpr char program_key[] = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
inline constexpr char folder_key[] = "SOFTWARE\\Microsoft\\Shared Tools Location";

struct RegistryValue {
    std::uint32_t type = string_value;
    std::string bytes; // at most 1024, with the terminating zero of a string where it has one
};

// The value `name` of the key `key` under `root`, or nothing: a longer value, and one of a key that
// the user may not open for reading and writing, count as missing.
using RegistryReader = std::function<std::optional<RegistryValue>(
    std::uint32_t root, const std::string& key, const std::string& name)>;

// Reads the registry of this machine, on Windows only: system_info_windows.cpp.
std::optional<RegistryValue> read_registry(std::uint32_t root, const std::string& key,
                                           const std::string& name);

// Reads the value `SubKeyRef` of the key `KeyName` under `KeyRoot` as text into `KeyVal`, and says
// whether there is one. `KeyVal` becomes empty when there is none, and stays as it is for a value
// that is no string.
bool GetKeyValue(const RegistryReader& registry, std::uint32_t KeyRoot, const std::string& KeyName,
                 const std::string& SubKeyRef, std::string& KeyVal);

// The system-information program: the value PATH of `program_key`, whether or not it is there, or
// else MSINFO32.EXE in the folder MSINFO of `folder_key`, if it is there, or else an empty path.
// Throws a Failure when the system cannot tell.
std::filesystem::path registered_program(const RegistryReader& registry);

} // namespace cirrava
