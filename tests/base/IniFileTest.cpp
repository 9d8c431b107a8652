#include "base/IniFile.h"

#include <gtest/gtest.h>

#include "base/Fault.h"
#include "base/RandomSource.h"
#include "base/Text.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

IniFile Parsed(const std::string& text) {
    return IniFile::Parse(AsBytes(text));
}

TEST(IniFile, ReadsFilesOfOtherSystemsWithoutRegardToCase) {
    const IniFile file =
        Parsed("; made elsewhere\r\n[START]\r\nOptTer = 3 \r\nName=\"a b\"\r\nB=\xe4\r\n");
    EXPECT_EQ(file.Get("start", "OPTTER"), "3");
    EXPECT_EQ(file.Get("Start", "name"), "a b");
    EXPECT_EQ(file.Get("Start", "b"), "\xc3\xa4") << "8-bit text, as UTF-8";
    EXPECT_EQ(file.Get("Start", "missing", "none"), "none");
    EXPECT_EQ(file.Get("Other", "OptTer"), "");
}

TEST(IniFile, PassesOverWhatMakesNoSense) {
    const IniFile file = Parsed(
        "\n k=0\n[s\nk=1\n[ \n t ]x=y\n two words =a=b \n=c\nk\n;k=2\n #k=3\n  "
        "k\t=\n[s]k=4\nK='5'");
    EXPECT_EQ(file.Get("", "k"), "0");
    EXPECT_EQ(file.Get("t", "two words"), "a=b");
    EXPECT_EQ(file.Get("t", "k", "none"), "") << "a value of nothing";
    EXPECT_EQ(file.Get("t", "", "none"), "none");
    EXPECT_EQ(file.Get("t", "x", "none"), "none");
    EXPECT_EQ(file.Get("s", "k"), "5");
    EXPECT_EQ(file.Get("S", "k", "", 1), "");
}

TEST(IniFile, TakesTheFirstOfEqualKeysAndCutsItToTheReadersBuffer) {
    IniFile file = Parsed("[s]\nk=1\nk=2\n[s]\nk=3\n[t]\nk=" + std::string(600, 'x'));
    EXPECT_EQ(file.Get("s", "k"), "1");
    file.Set("s", "k", "4");
    EXPECT_EQ(Parsed(file.Text()).Get("s", "k"), "4");
    IniFile open = Parsed("[s]\nj=1\n[t\nq=1\n");
    open.Set("s", "k", "2");
    EXPECT_EQ(Parsed(open.Text()).Get("s", "k"), "2") << "a header that is not closed ends s";
    EXPECT_EQ(file.Get("t", "k").size(), 511u);
    EXPECT_EQ(file.Get("t", "k", "", 255).size(), 254u);
}

TEST(IniFile, ChangesOneLineAndNoOtherByte) {
    const std::string head =
        "\xef\xbb\xbf; Gr\xf6\xdf"
        "e\r\n\r\nno sense\r\n[Start]\r\n OptTer = 3 \r\n";
    const std::string tail =
        "#x\r\n\r\n[other]\r\n=\r\n[open\r\nk=1\r\n" + std::string("\0\xff=", 3);
    IniFile file = Parsed(head + tail);
    file.Set("START", "optTER", " 1");
    EXPECT_EQ(file.Text(), head.substr(0, head.rfind('=')) + "= 1\r\n" + tail);
    file.Set("start", "color", " 2");
    EXPECT_EQ(file.Text(), head.substr(0, head.rfind('=')) + "= 1\r\ncolor= 2\r\n" + tail);
}

TEST(IniFile, ReadsBackWhatItSetInAnyText) {
    RandomSource chance(1);
    constexpr std::string_view letters = "[[]]==;#\r\n\n\n sskkK\t\"";
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (int length = static_cast<int>(chance.Uniform() * 24); length > 0; --length)
            text += letters[static_cast<std::size_t>(chance.Uniform() * letters.size())];
        IniFile file = Parsed(text);
        const std::string other = file.Get("s", "kk", "none");
        file.Set("s", "k", "\"new\"");
        const IniFile again = Parsed(file.Text());
        ASSERT_EQ(again.Get("S", "K"), "\"new\"") << testing::PrintToString(text);
        ASSERT_EQ(again.Get("s", "kk", "none"), other) << testing::PrintToString(text);
    }
}

TEST(IniFile, RefusesALineBreakAFolderAndAFileTooLargeToKeepButNotAMissingOne) {
    const TemporaryFolder folder;
    IniFile file;
    EXPECT_THROW(file.Set("s", "k", "a\n[t]"), Fault);
    WriteText(folder / "huge.ini", std::string((1u << 20) + 1, ';'));
    EXPECT_THROW(IniFile::Read(folder / "huge.ini").Write(folder / "huge.ini"), Fault);
    EXPECT_THROW(IniFile::Read(folder.Path()), Fault);
    EXPECT_EQ(IniFile::Read(folder / "none.ini").Get("a", "b"), "");
}

}  // namespace
}  // namespace quillbrand
