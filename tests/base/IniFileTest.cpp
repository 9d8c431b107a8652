#include "base/IniFile.h"

#include <gtest/gtest.h>

#include "base/Fault.h"
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
