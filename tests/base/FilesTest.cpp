#include "base/Files.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>

#include "base/ByteBuffer.h"
#include "base/Text.h"
#include "base/XdgFolders.h"
#include "tests/support/Faults.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

namespace fs = std::filesystem;

TEST(ReplaceFile, WritesTheWholeContentAndOnAFullDiskNothing) {
    const TemporaryFolder folder;
    WriteText(folder / "a", "a longer first content");
    WriteText(folder / "a", "second");
    EXPECT_EQ(TextOf(folder / "a"), "second");

    // No file grows beyond a few bytes, as on a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{1000, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    const std::string message = FaultOf([&] { WriteText(folder / "a", std::string(100000, 'x')); });
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(message, "cannot write " + (folder / "a").string() + ": File too large");
    EXPECT_EQ(TextOf(folder / "a"), "second");
    EXPECT_EQ(folder.Entries(), 1) << "no temporary file is left";
}

TEST(Files, SayWhatIsWrongWithFoldersMissingOnesAndDevices) {
    const TemporaryFolder folder;
    const std::pair<fs::path, std::string> cases[] = {
        {folder.Path(), folder.Path().string() + ": Is a directory"},
        {folder / "none/a", (folder / "none/a").string() + ": No such file or directory"},
        {"/dev/full", "/dev/full: Not a regular file"}};
    for (const auto& [path, text] : cases) {
        EXPECT_EQ(FaultOf([&at = path] { WriteText(at, "x"); }), "cannot write " + text);
        EXPECT_EQ(FaultOf([&at = path] { ReadFile(at, 1); }), "cannot read " + text);
    }
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
    const Bytes text(3, std::byte{'x'});
    WriteText(folder / "a", "123456");
    OverwriteFile(folder / "a", text);
    EXPECT_EQ(TextOf(folder / "a"), "xxx456");
    OverwriteFile(folder / "b", text);
    EXPECT_EQ(TextOf(folder / "b"), "xxx");
}

TEST(FindInFolder, TakesTheOtherSystemsSeparatorAndAnyCase) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "Sub");
    WriteText(folder / "Sub/Hill1.PNG", "x");
    EXPECT_EQ(FindInFolder(folder.Path(), "Sub\\hill1.png"), folder / "Sub/Hill1.PNG");
    EXPECT_EQ(FindInFolder(folder.Path(), "\\Sub\\Hill1.PNG"), folder / "Sub/Hill1.PNG");
    EXPECT_EQ(FindInFolder(folder.Path(), "missing.png"), folder / "missing.png");
}

TEST(XdgFolders, CountOnlyWhenTheyAreAbsolute) {
    const std::string home = Environment("HOME");
    setenv("HOME", "/somewhere", 1);
    setenv("XDG_DATA_HOME", "below/here", 1);
    setenv("XDG_CONFIG_HOME", "/config", 1);
    EXPECT_EQ(XdgDataHome(), "/somewhere/.local/share");
    EXPECT_EQ(XdgConfigHome(), "/config");
    unsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(XdgConfigHome(), "/somewhere/.config");
    unsetenv("HOME");
    EXPECT_EQ(XdgDataHome(), "");
    unsetenv("XDG_DATA_HOME");
    setenv("HOME", home.c_str(), 1);
}

TEST(ByteReader, NamesTheFileThatIsShorterThanItSays) {
    const Bytes bytes = {std::byte{1}, std::byte{2}, std::byte{3}, std::byte{4}};
    const ByteReader reader(bytes, "a.ter");
    EXPECT_EQ(reader.ValueAt<std::int16_t>(2), 0x0403);
    EXPECT_EQ(FaultOf([&] { reader.ValueAt<std::int16_t>(3); }),
              "a.ter is cut short: it has 4 bytes, but at least 5 are needed");
    EXPECT_THROW(reader.At(SIZE_MAX, 2), Fault);
    Bytes written;
    ByteWriter(written).Put(std::int32_t{0x04030201});
    EXPECT_EQ(written, bytes);
}

TEST(Text, KeepsNamesOfOtherSystemsAndRefusesWhatTheyCannotHold) {
    EXPECT_EQ(ToLatin1("\xc3\xa4"), "\xe4");
    EXPECT_EQ(ToUtf8("\xe4"), "\xc3\xa4");
    EXPECT_EQ(ToUtf8("\xc3\xa4"), "\xc3\xa4");
    EXPECT_THROW(ToLatin1("\xe2\x82\xac"), Fault);
    EXPECT_TRUE(EqualIgnoringCase("aZ[", "Az["));
    EXPECT_FALSE(EqualIgnoringCase("[", "{"));
}

}  // namespace
}  // namespace quillbrand
