#pragma once

#include <filesystem>

namespace cirrava {

// Finds the program that tells about the system: the desktop's on POSIX systems, on Windows the one
// that the registry names. Returns an empty path when there is none. May throw a Failure.
std::filesystem::path find_system_info_program();

} // namespace cirrava
