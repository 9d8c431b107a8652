#include "base/Files.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <functional>

#include "base/Fault.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

namespace fs = std::filesystem;

/// Lets no file grow beyond a few bytes, as a full disk does.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit small{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }

  private:
    rlimit before_{};
};

std::string FaultOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const Fault& fault) {
        return fault.what();
    }
    return "no fault";
}

TEST(ReplaceFile, WritesTheWholeContentAndLeavesNoTemporaryFile) {
    const TemporaryFolder folder;
    WriteText(folder / "a", "a longer first content");
    WriteText(folder / "a", "second");
    EXPECT_EQ(TextOf(folder / "a"), "second");
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(ReplaceFile, OnAFullDiskKeepsTheOldFileAndNamesItInTheFault) {
    const TemporaryFolder folder;
    WriteText(folder / "a", "old");
    std::string message;
    {
        const FullDisk disk(1000);
        message = FaultOf([&] { WriteText(folder / "a", std::string(100000, 'x')); });
    }
    EXPECT_EQ(message, "cannot write " + (folder / "a").string() + ": File too large");
    EXPECT_EQ(TextOf(folder / "a"), "old");
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(ReplaceFile, RefusesFoldersMissingFoldersAndDevices) {
    const TemporaryFolder folder;
    const auto write = [](const fs::path& path) { return FaultOf([&] { WriteText(path, "x"); }); };
    EXPECT_EQ(write(folder.Path()), "cannot write " + folder.Path().string() + ": Is a directory");
    EXPECT_EQ(write(folder / "none/a"),
              "cannot write " + (folder / "none/a").string() + ": No such file or directory");
    EXPECT_EQ(write("/dev/full"), "cannot write /dev/full: Not a regular file");
}

TEST(ReplaceFile, FollowsALinkAndKeepsThePermissionsOfTheOldFile) {
    const TemporaryFolder folder;
    WriteText(folder / "target", "old");
    fs::permissions(folder / "target", fs::perms(0640));
    fs::create_symlink(folder / "target", folder / "link");
    WriteText(folder / "link", "new");
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    fs::create_symlink("not there yet", folder / "dangling");
    WriteText(folder / "dangling", "new");
    EXPECT_EQ(TextOf(folder / "not there yet"), "new");
    EXPECT_EQ(TextOf(folder / "target"), "new");
    EXPECT_EQ(fs::status(folder / "target").permissions(), fs::perms(0640));
}

TEST(OverwriteFile, KeepsTheTailOfALongerOldFile) {
    const TemporaryFolder folder;
    const std::string abc = "abc";
    const auto text = AsBytes(abc);
    WriteText(folder / "a", "123456");
    OverwriteFile(folder / "a", Bytes(text.begin(), text.end()));
    EXPECT_EQ(TextOf(folder / "a"), "abc456");
    OverwriteFile(folder / "b", Bytes(text.begin(), text.end()));
    EXPECT_EQ(TextOf(folder / "b"), "abc");
}

TEST(ReadFile, ReadsNoMoreThanAskedForAndTellsWhatIsWrong) {
    const TemporaryFolder folder;
    WriteText(folder / "a", "123456");
    EXPECT_EQ(ReadFile(folder / "a", 4).size(), 4u);
    EXPECT_EQ(ReadFile(folder / "a", 100).size(), 6u);
    EXPECT_EQ(FaultOf([&] { ReadFile(folder.Path(), 1); }),
              "cannot read " + folder.Path().string() + ": Is a directory");
    EXPECT_EQ(FaultOf([&] { ReadFile(folder / "b", 1); }),
              "cannot read " + (folder / "b").string() + ": No such file or directory");
    EXPECT_EQ(FaultOf([] { ReadFile("/dev/zero", 1); }),
              "cannot read /dev/zero: Not a regular file");
}

TEST(FindInFolder, TakesTheOtherSystemsSeparatorAndAnyCase) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "Sub");
    WriteText(folder / "Sub/Hill1.PNG", "x");
    EXPECT_EQ(FindInFolder(folder.Path(), "Sub\\hill1.png"), folder / "Sub/Hill1.PNG");
    EXPECT_EQ(FindInFolder(folder.Path(), "\\Sub\\Hill1.PNG"), folder / "Sub/Hill1.PNG");
    EXPECT_EQ(FindInFolder(folder.Path(), "missing.png"), folder / "missing.png");
}

}  // namespace
}  // namespace quillbrand
