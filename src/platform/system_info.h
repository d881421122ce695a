#pragma once

#include <filesystem>
#include <functional>
#include <optional>

namespace cirrava {

using FoundProgram = std::optional<std::filesystem::path>;

// The program that tells about the system, or nothing. May throw a Failure. One implementation per
// operating system: system_info_posix.cpp takes the desktop's, system_info_windows.cpp the one that
// the registry names.
FoundProgram find_system_info_program();

// What `StartSysInfo` asks of the system and of the user.
struct SystemInfoActions {
    std::function<FoundProgram()> find;
    std::function<bool(const std::filesystem::path&)> start; // a program; false when it cannot
    std::function<void()> tell_unavailable;
};

// Starts the program that tells about the system, or says that there is none.
void StartSysInfo(const SystemInfoActions& actions);

} // namespace cirrava
