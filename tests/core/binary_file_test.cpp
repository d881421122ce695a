#include "platform/binary_file.h"

#include "../circumstances.h"
#include "platform/failure.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <functional>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace cirrava {

namespace {

namespace fs = std::filesystem;

class BinaryFileTest : public testing::Test {
protected:
    BinaryFileTest() {
        std::string name = (fs::temp_directory_path() / "cirrava-XXXXXX").string();
        folder = mkdtemp(name.data());
    }
    ~BinaryFileTest() override { fs::remove_all(folder); }

    fs::path make(const char* name, const Bytes& bytes) const {
        BinaryFile file(folder / name, FileAccess::read_write);
        file.write(bytes);
        file.close();
        return folder / name;
    }

    fs::path folder;
};

int number_of(const std::function<void()>& action) {
    try {
        action();
    } catch (const Failure& failure) {
        return static_cast<int>(failure.number);
    }
    return 0;
}

int number_of_opening(const fs::path& path, FileAccess access) {
    return number_of([&] { BinaryFile(path, access); });
}

} // namespace

TEST_F(BinaryFileTest, ReadsWhatIsThereAndNoMore) {
    BinaryFile file(make("short.bmp", {1, 2, 3}), FileAccess::read);
    EXPECT_EQ(file.read(2), (Bytes{1, 2}));
    EXPECT_EQ(file.read(100), (Bytes{3}));
    file.seek(1);
    EXPECT_EQ(file.read(1), (Bytes{2}));
    file.seek(0x7FFFFFFF);
    EXPECT_EQ(file.read(10), Bytes{});
}

TEST_F(BinaryFileTest, OpensRegularFilesOnlyAndNeverWaits) {
    const fs::path pipe = folder / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const fs::path socket_path = folder / "socket";
    const int socket_descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    socket_path.native().copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(bind(socket_descriptor, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);

    for (const fs::path& path : {folder, pipe, socket_path, fs::path("/dev/null")}) {
        EXPECT_EQ(number_of_opening(path, FileAccess::read), 75) << path;
        EXPECT_EQ(number_of_opening(path, FileAccess::read_write), 75) << path;
        EXPECT_FALSE(plain_file_exists(path)) << path;
    }
    close(socket_descriptor);
}

TEST_F(BinaryFileTest, TooManyOpenFilesFailTheNextOne) {
    const fs::path path = make("a.bmp", {1});
    // Once before the limit, since the sanitizers open files to look at what they see first.
    EXPECT_EQ(number_of_opening(folder / "no folder" / "a.bmp", FileAccess::read), 76);
    const Limit no_more_files(RLIMIT_NOFILE, 3);
    EXPECT_EQ(number_of_opening(path, FileAccess::read), 67);
    EXPECT_EQ(number_of_opening(path, FileAccess::read_write), 67);
}

TEST_F(BinaryFileTest, AFullDiskFailsTheWriteOrItsClose) {
    const Limit small_files(RLIMIT_FSIZE, 100);
    EXPECT_EQ(number_of([&] { make("at_close.bmp", Bytes(101)); }), 61);
    EXPECT_EQ(number_of([&] { make("at_write.bmp", Bytes(1'000'000)); }), 61);
    EXPECT_EQ(number_of([&] { make("fits.bmp", Bytes(100)); }), 0);
}

TEST_F(BinaryFileTest, OnlyPlainVisibleFilesExist) {
    EXPECT_TRUE(plain_file_exists(make("a.bmp", {1})));
    EXPECT_FALSE(plain_file_exists(make(".hidden.bmp", {1})));
    EXPECT_FALSE(plain_file_exists(folder / "missing.bmp"));
    EXPECT_FALSE(plain_file_exists(folder / "no folder" / "a.bmp"));
}

} // namespace cirrava
