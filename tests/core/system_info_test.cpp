#include "platform/system_info.h"

#include <fstream>
#include <gtest/gtest.h>
#include <map>

namespace cirrava {

using namespace std::string_literals;

TEST(SystemInfo, ValuesAreReadByTheirType) {
    const struct {
        std::optional<RegistryValue> value;
        bool found;
        std::string text;
    } cases[]{
        {{{string_value, "C:\\info.exe\0"s}}, true, "C:\\info.exe"},
        {{{string_value, "C:\\info.exe"}}, true, "C:\\info.exe"}, // stored without its terminator
        {{{number_value, "\x0A\x1B\xFF\x01"}}, true, "&h1FF1BA"},
        {{{3, "bytes"}}, true, "as it was"},
        {{}, false, ""},
    };
    for (const auto& [value, found, text] : cases) {
        std::string read = "as it was";
        const auto registry = [&value](auto...) { return value; };
        EXPECT_EQ(GetKeyValue(registry, local_machine, "key", "name", read), found);
        EXPECT_EQ(read, text);
    }
}

TEST(SystemInfo, StartsTheNamedProgramOrTheOneInTheNamedFolder) {
    std::map<std::string, std::string> values;
    const auto registry = [&values](auto, const std::string& key, auto) {
        return values.contains(key) ? std::optional(RegistryValue{string_value, values[key]})
                                    : std::nullopt;
    };
    const auto start = [&registry](bool can_start = true) {
        std::string outcome;
        const auto start_program = [&](const std::filesystem::path& program) {
            outcome = program.string();
            return can_start;
        };
        StartSysInfo({registry, start_program, [&] { outcome += "?"; }});
        return outcome;
    };
    std::string name = (std::filesystem::temp_directory_path() / "cirrava-XXXXXX").string();
    const std::string folder = mkdtemp(name.data());
    EXPECT_EQ(start(), "?");
    values[system_info_folder.key] = folder;
    EXPECT_EQ(start(), "?");
    std::ofstream(folder + "/MSINFO32.EXE") << "a file";
    EXPECT_EQ(start(), folder + "/MSINFO32.EXE");
    std::filesystem::remove_all(folder);
    values[system_info_program.key] = "/no/such/program"; // started without a look
    EXPECT_EQ(start(), "/no/such/program");
    EXPECT_EQ(start(false), "/no/such/program?");
}

} // namespace cirrava
