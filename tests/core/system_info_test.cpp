#include "ui/system_info.h"

#include "platform/system_info_keys.h"

#include <fstream>
#include <gtest/gtest.h>

namespace cirrava {

namespace {

using namespace std::string_literals;

class SystemInfo : public testing::Test {
protected:
    // Reads the value "V" of the key "K" into `text`.
    bool read(std::string& text) const {
        return GetKeyValue(registry, local_machine, "K", "V", text);
    }

    // What StartSysInfo started, or "unavailable".
    std::string start(bool can_start = true) const {
        std::string outcome;
        StartSysInfo(registry, {.start =
                                    [&](const std::filesystem::path& program) {
                                        outcome = program.string();
                                        return can_start && !program.empty();
                                    },
                                .tell_unavailable = [&] { outcome += "unavailable"; }});
        return outcome;
    }

    void add(const RegistryPlace& place, const DataRegistry::Value& value) {
        registry.add(place.key, place.value, value);
    }

    DataRegistry registry;
};

} // namespace

TEST_F(SystemInfo, ValuesAreReadByTheirType) {
    const struct {
        DataRegistry::Value value;
        const char* text;
    } cases[]{
        {{string_value, "C:\\info.exe\0"s}, "C:\\info.exe"},
        {{string_value, "C:\\info.exe"}, "C:\\info.exe"}, // stored without its terminator
        {{string_value, "\0"s}, ""},
        {{string_value, ""}, ""},
        {{number_value, "\x0A\x1B\xFF\x01"}, "&h1FF1BA"},
        {{3, "bytes"}, "as it was"},
        {{string_value, std::string(1023, 'x') + '\0'}, nullptr},
        {{string_value, std::string(1024, 'x')}, nullptr},
    };
    for (const auto& [value, expected] : cases) {
        registry.add("K", "V", value);
        std::string text = "as it was";
        EXPECT_TRUE(read(text));
        if (expected != nullptr)
            EXPECT_EQ(text, expected);
        else
            EXPECT_EQ(text, value.bytes.c_str());
    }
}

TEST_F(SystemInfo, WhatCannotBeReadEmptiesTheText) {
    std::string text = "as it was";
    EXPECT_FALSE(read(text)); // no such key
    EXPECT_EQ(text, "");

    registry.add("K", "other", {});
    text = "as it was";
    EXPECT_FALSE(read(text)); // no such value
    EXPECT_EQ(text, "");

    registry.add("K", "V", {string_value, std::string(1025, 'x')});
    text = "as it was";
    EXPECT_FALSE(read(text)); // too long
    EXPECT_EQ(text, "");
    EXPECT_FALSE(GetKeyValue(registry, 0x80000001, "K", "V", text)); // another root
}

TEST_F(SystemInfo, TheProgramThatTheFirstValueNamesIsStartedWithoutALook) {
    add(system_info_program, {string_value, "/no/such/program\0"s});
    EXPECT_EQ(start(), "/no/such/program");
    EXPECT_EQ(start(false), "/no/such/programunavailable");
    add(system_info_program, {3, "not a text"});
    EXPECT_EQ(start(), "unavailable");
}

TEST_F(SystemInfo, TheFolderOfTheSecondValueMustHoldTheProgram) {
    EXPECT_EQ(start(), "unavailable");
    std::string folder = (std::filesystem::temp_directory_path() / "cirrava-XXXXXX").string();
    ASSERT_NE(mkdtemp(folder.data()), nullptr);
    add(system_info_folder, {string_value, folder + '\0'});
    EXPECT_EQ(start(), "unavailable");

    const auto program = std::filesystem::path(folder) / "MSINFO32.EXE";
    std::filesystem::create_directory(program); // a folder is no program
    EXPECT_EQ(start(), "unavailable");
    std::filesystem::remove(program);
    std::ofstream(program) << "a file";
    EXPECT_EQ(start(), program.string());
    std::filesystem::current_path(folder);
    add(system_info_folder, {string_value, "\0"s}); // no folder, and so not the current one
    EXPECT_EQ(start(), "unavailable");
    std::filesystem::current_path("/");
    std::filesystem::remove_all(folder);

    add(system_info_folder, {string_value, std::string(1000, 'x')}); // too long for a file name
    EXPECT_EQ(start(), "unavailable");
}

} // namespace cirrava
