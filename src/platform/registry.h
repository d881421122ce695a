#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace cirrava {

// Constants of the operating system that has a registry, under names of our own, since its own are
// macros there.
inline constexpr std::uint32_t local_machine = 0x80000002; // HKEY_LOCAL_MACHINE
inline constexpr std::uint32_t string_value = 1;           // REG_SZ
inline constexpr std::uint32_t number_value = 4;           // REG_DWORD, 32 bits

// The operations of a registry that the program uses, with the operating system's own names and
// results: 0 for success, any other number for failure.
class Registry {
public:
    using Key = std::uintptr_t;

    virtual ~Registry() = default;

    virtual long RegOpenKeyExA(std::uint32_t root, const std::string& path, std::uint32_t access,
                               Key& key) const = 0;

    // Fails when the value does not fit into `data`; else `size` is the number of bytes copied.
    virtual long RegQueryValueExA(Key key, const std::string& name, std::uint32_t& type,
                                  std::span<char> data, std::uint32_t& size) const = 0;

    virtual void RegCloseKey(Key key) const = 0;
};

// A read-only registry made of data, for a machine that has none.
class DataRegistry : public Registry {
public:
    struct Value {
        std::uint32_t type = string_value;
        std::string bytes; // with the terminating zero of a string, where it has one
    };

    // Adds a value to the key `path` of `local_machine`, and the key when it is missing.
    void add(const std::string& path, const std::string& name, const Value& value);

    long RegOpenKeyExA(std::uint32_t root, const std::string& path, std::uint32_t access,
                       Key& key) const override;
    long RegQueryValueExA(Key key, const std::string& name, std::uint32_t& type,
                          std::span<char> data, std::uint32_t& size) const override;
    void RegCloseKey(Key key) const override;

private:
    struct Entry {
        std::string path;
        std::map<std::string, Value> values;
    };
    std::size_t find(const std::string& path) const; // the number of entries when there is none

    std::vector<Entry> entries_; // a key is the place of its entry
};

// The registry of this machine. One implementation per system: registry_posix.cpp,
// registry_windows.cpp.
std::unique_ptr<Registry> system_registry();

} // namespace cirrava
