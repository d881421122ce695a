#include "platform/registry.h"

#include <gtest/gtest.h>

namespace cirrava {

TEST(Registry, NamesTheProgramOrTheFolderThatHoldsIt) {
    std::optional<RegistryValue> program, folder;
    const auto found = [&] {
        return registered_program([&](auto, const std::string& key, const auto&) {
            return key == program_key ? program : folder;
        });
    };
    EXPECT_EQ(found(), "");
    folder = {string_value, "/no/such/folder"};
    EXPECT_EQ(found(), "");
    program = {string_value, std::string("/no/such/program") + '\0'}; // without a look
    EXPECT_EQ(found(), "/no/such/program");
    program = {3, "bytes"}; // no string
    EXPECT_EQ(found(), "");
}

} // namespace cirrava
