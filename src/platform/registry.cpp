#include "platform/registry.h"

#include <algorithm>

namespace cirrava {

namespace {

// The operating system's error numbers.
constexpr long success = 0;
constexpr long file_not_found = 2;
constexpr long more_data = 234;

} // namespace

void DataRegistry::add(const std::string& path, const std::string& name, const Value& value) {
    keys_[path][name] = value;
}

long DataRegistry::RegOpenKeyExA(std::uint32_t root, const std::string& path, std::uint32_t,
                                 Key& key) const {
    const auto found = keys_.find(path);
    if (root != local_machine || found == keys_.end())
        return file_not_found;
    key = reinterpret_cast<Key>(&found->second);
    return success;
}

long DataRegistry::RegQueryValueExA(Key key, const std::string& name, std::uint32_t& type,
                                    std::span<char> data, std::uint32_t& size) const {
    const auto& values = *reinterpret_cast<const std::map<std::string, Value>*>(key);
    const auto found = values.find(name);
    if (found == values.end())
        return file_not_found;
    const auto& [value_type, bytes] = found->second;
    if (bytes.size() > data.size())
        return more_data;
    std::copy(bytes.begin(), bytes.end(), data.begin());
    type = value_type;
    size = static_cast<std::uint32_t>(bytes.size());
    return success;
}

void DataRegistry::RegCloseKey(Key) const {}

} // namespace cirrava
