#include "platform/registry.h"

#include <fstream>
#include <gtest/gtest.h>

namespace cirrava {

using namespace std::string_literals;

TEST(Registry, ValuesAreReadByTheirType) {
    const struct {
        std::optional<RegistryValue> value;
        std::string text; // nothing where there is no value
    } cases[]{
        {{{string_value, "C:\\info.exe\0"s}}, "C:\\info.exe"},
        {{{string_value, "C:\\info.exe"}}, "C:\\info.exe"}, // stored without its terminator
        {{{number_value, "\x0A\x1B\xFF\x01"}}, "&h1FF1BA"},
        {{{3, "bytes"}}, "as it was"},
        {{}, ""},
    };
    for (const auto& [value, text] : cases) {
        std::string read = "as it was";
        const auto registry = [&value](auto...) { return value; };
        EXPECT_EQ(GetKeyValue(registry, local_machine, "key", "name", read), !text.empty());
        EXPECT_EQ(read, text);
    }
}

TEST(Registry, NamesTheProgramOrTheFolderThatHoldsIt) {
    std::string name = (std::filesystem::temp_directory_path() / "cirrava-XXXXXX").string();
    const std::string folder = mkdtemp(name.data());
    std::string program;
    const auto registry = [&](auto, const std::string& key, auto) {
        const std::string& value = key == folder_key ? folder : program;
        return value.empty() ? std::nullopt : std::optional(RegistryValue{string_value, value});
    };
    EXPECT_EQ(registered_program(registry), std::nullopt);
    std::ofstream(folder + "/MSINFO32.EXE") << "a file";
    EXPECT_EQ(registered_program(registry), folder + "/MSINFO32.EXE");
    std::filesystem::remove_all(folder);
    program = "/no/such/program"; // without a look
    EXPECT_EQ(registered_program(registry), program);
}

} // namespace cirrava
