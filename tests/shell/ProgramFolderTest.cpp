#include "shell/ProgramFolder.h"

#include <gtest/gtest.h>

#include "base/Fault.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

namespace fs = std::filesystem;

class ProgramFolder : public testing::Test {
  protected:
    ProgramFolder() {
        fs::create_directories(folder / "bin");
        fs::create_directories(folder / "installed/PS");
        WriteText(folder / "installed/PS/One.INI", "one");
        WriteText(folder / "installed/erode0.flt", "picture");
    }

    TemporaryFolder folder;
    ProgramFolderPlaces places{.told = {},
                               .executable = folder / "bin",
                               .own = folder / "home/share/quillbrand",
                               .installed = folder / "installed"};
};

TEST_F(ProgramFolder, IsTheToldOneThenTheExecutablesWhenThatHoldsTheSets) {
    fs::create_directories(folder / "bin/PS");
    EXPECT_EQ(FindProgramFolder(places), folder / "bin");
    EXPECT_FALSE(fs::exists(places.own));
    places.told = folder / "installed";
    EXPECT_EQ(FindProgramFolder(places), folder / "installed");
    for (const char* name : {"nowhere", "installed/erode0.flt"}) {
        places.told = folder / name;
        EXPECT_THROW(FindProgramFolder(places), Fault) << name;
    }
}

TEST_F(ProgramFolder, IsOtherwiseTheUsersOwnFilledWithWhatItLacks) {
    fs::create_directories(places.own);
    WriteText(places.own / "erode0.flt", "mine");
    EXPECT_EQ(FindProgramFolder(places), places.own);
    EXPECT_EQ(TextOf(places.own / "PS/One.INI"), "one");
    EXPECT_EQ(TextOf(places.own / "erode0.flt"), "mine");
    WriteText(places.own / "PS/One.INI", "mine");
    fs::remove(places.own / "erode0.flt");
    EXPECT_EQ(FindProgramFolder(places), places.own);
    EXPECT_EQ(TextOf(places.own / "PS/One.INI"), "mine");
    EXPECT_EQ(TextOf(places.own / "erode0.flt"), "picture");
    EXPECT_EQ(std::distance(fs::directory_iterator(places.own), {}), 2);
}

TEST_F(ProgramFolder, IsMadeEvenWhereNothingIsInstalledOrTheReasonIsTold) {
    places.installed = folder / "nowhere";
    EXPECT_TRUE(fs::is_directory(FindProgramFolder(places)));
    fs::remove_all(folder / "home");
    WriteText(folder / "home", "a file");
    EXPECT_THROW(FindProgramFolder(places), Fault);
    places.own.clear();
    EXPECT_THROW(FindProgramFolder(places), Fault);
}

}  // namespace
}  // namespace quillbrand
