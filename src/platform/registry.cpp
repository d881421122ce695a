#include "platform/registry.h"

#include <algorithm>

namespace cirrava {

namespace {

// The operating system's error numbers.
constexpr long success = 0;
constexpr long file_not_found = 2;
constexpr long more_data = 234;

} // namespace

std::size_t DataRegistry::find(const std::string& path) const {
    const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& candidate) { return candidate.path == path; });
    return static_cast<std::size_t>(entry - entries_.begin());
}

void DataRegistry::add(const std::string& path, const std::string& name, const Value& value) {
    const std::size_t place = find(path);
    if (place == entries_.size())
        entries_.push_back({path, {}});
    entries_[place].values[name] = value;
}

long DataRegistry::RegOpenKeyExA(std::uint32_t root, const std::string& path, std::uint32_t,
                                 Key& key) const {
    key = find(path);
    return root == local_machine && key < entries_.size() ? success : file_not_found;
}

long DataRegistry::RegQueryValueExA(Key key, const std::string& name, std::uint32_t& type,
                                    std::span<char> data, std::uint32_t& size) const {
    const auto& values = entries_.at(key).values;
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
