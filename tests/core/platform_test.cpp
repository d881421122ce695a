#include "platform/binary_file.h"
#include "platform/failure.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace cirrava {

TEST(BinaryFile, FailuresToOpenHaveTheirNumbers) {
    std::string folder = (std::filesystem::temp_directory_path() / "cirrava-XXXXXX").string();
    ASSERT_TRUE(mkdtemp(folder.data()) != nullptr && chdir(folder.c_str()) == 0);
    mkfifo("pipe", 0666);
    for (const char* name : {"file", "secret"})
        std::ofstream(name) << "text";
    chmod("secret", 0);
    const auto number_of = [](const std::string& path, FileAccess access) {
        try {
            const BinaryFile file(path, access);
            return 0; // no failure
        } catch (const Failure& failure) {
            return static_cast<int>(failure.number);
        }
    };
    const auto check = [&](const std::string& path, int reading, int writing) {
        EXPECT_EQ(number_of(path, FileAccess::read), reading) << path;
        EXPECT_EQ(number_of(path, FileAccess::write), writing) << path;
    };
    check("", 52, 52);
    check(std::string(300, 'a'), 52, 52);
    check("missing", 53, 0);
    check("no folder/file", 76, 76);
    check("file/file", 76, 76);
    for (const char* no_file : {".", "pipe", "/dev/null"})
        check(no_file, 75, 75);
    chmod("file", 0444);
    chmod(".", 0555);
    const auto check_as_nobody = [&] { // in a process of its own, since root may do everything
        EXPECT_TRUE(geteuid() != 0 || setuid(65534) == 0);
        check("file", 0, 75);
        check("secret", 75, 75);
        check("new", 53, 75);
        EXPECT_FALSE(may_write_in("."));
        _exit(testing::Test::HasFailure() ? 1 : 0);
    };
    EXPECT_EXIT(check_as_nobody(), testing::ExitedWithCode(0), "");
    chmod(".", 0755);
    std::filesystem::remove_all(folder);
}

} // namespace cirrava
