#include "platform/registry.h"

#include <fstream>
#include <gtest/gtest.h>

namespace cirrava {

TEST(Registry, ValuesAreReadByTheirType) {
    const auto text_of = [](const std::optional<RegistryValue>& value) {
        std::string text = "as it was";
        const auto registry = [&value](const auto&...) { return value; };
        EXPECT_EQ(GetKeyValue(registry, local_machine, "key", "name", text), value.has_value());
        return text;
    };
    EXPECT_EQ(text_of({{string_value, std::string("C:\\info.exe") + '\0'}}), "C:\\info.exe");
    EXPECT_EQ(text_of({{string_value, "no terminator"}}), "no terminator");
    EXPECT_EQ(text_of({{number_value, "\x0A\x1B\xFF\x01"}}), "&h1FF1BA");
    EXPECT_EQ(text_of({{3, "bytes"}}), "as it was");
    EXPECT_EQ(text_of({}), "");
}

TEST(Registry, NamesTheProgramOrTheFolderThatHoldsIt) {
    std::string folder = (std::filesystem::temp_directory_path() / "cirrava-XXXXXX").string();
    ASSERT_NE(mkdtemp(folder.data()), nullptr);
    std::string program;
    const auto registry = [&](auto, const std::string& key, const auto&) {
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
