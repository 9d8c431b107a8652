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
    EXPECT_EQ(file.Get("Start", "b"), "\xe4");
    EXPECT_EQ(file.Get("Start", "missing", "none"), "none");
    EXPECT_EQ(file.Get("Other", "OptTer"), "");
}

TEST(IniFile, TakesTheFirstOfKeysThatStandSeveralTimes) {
    IniFile file = Parsed("[s]\nk=1\nk=2\n[s]\nk=3\n");
    EXPECT_EQ(file.Get("s", "k"), "1");
    file.Set("s", "k", "4");
    EXPECT_EQ(Parsed(file.Text()).Get("s", "k"), "4");
}

TEST(IniFile, CutsAValueToTheReadersBuffer) {
    const IniFile file = Parsed("[s]\nk=" + std::string(600, 'x') + "\n");
    EXPECT_EQ(file.Get("s", "k").size(), 511u);
    EXPECT_EQ(file.Get("s", "k", "", 255).size(), 254u);
}

TEST(IniFile, KeepsOtherKeysAndCommentsWhenItIsWrittenAgain) {
    const TemporaryFolder folder;
    WriteText(folder / "a.ini", "; a comment\n[One]\nkey=1\n[Two]\nother=2\n");
    IniFile file = IniFile::Read(folder / "a.ini");
    file.Set("one", "KEY", " 5");
    file.Set("Three", "new", "x");
    file.Write(folder / "a.ini");
    const IniFile again = IniFile::Read(folder / "a.ini");
    EXPECT_EQ(again.Get("One", "key"), "5");
    EXPECT_EQ(again.Get("Two", "other"), "2");
    EXPECT_EQ(again.Get("Three", "new"), "x");
    EXPECT_NE(TextOf(folder / "a.ini").find("; a comment"), std::string::npos);
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

TEST(IniFile, RefusesALineBreakAndAFileTooLargeToKeep) {
    const TemporaryFolder folder;
    IniFile file;
    EXPECT_THROW(file.Set("s", "k", "a\n[t]"), Fault);
    WriteText(folder / "huge.ini", std::string((1u << 20) + 1, ';'));
    EXPECT_THROW(IniFile::Read(folder / "huge.ini").Write(folder / "huge.ini"), Fault);
}

TEST(IniFile, ReadsAMissingFileAsEmptyButNotAFolder) {
    const TemporaryFolder folder;
    EXPECT_EQ(IniFile::Read(folder / "none.ini").Get("a", "b"), "");
    EXPECT_THROW(IniFile::Read(folder.Path()), Fault);
}

TEST(TrimIni, CutsAtTheFirstNulAndTrimsBlanks) {
    EXPECT_EQ(TrimIni(std::string("  a b  \0 c", 10)), "a b");
    EXPECT_EQ(TrimIni("   "), "");
}

}  // namespace
}  // namespace quillbrand
