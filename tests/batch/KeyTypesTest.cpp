#include "batch/KeyTypes.h"

#include <gtest/gtest.h>

#include "base/Picture.h"
#include "batch/Script.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

TEST(KeyTypes, AnAreaIsFourNumbers) {
    const auto area = std::get<PictureArea>(*Area().read("1,-2.5,30,4e2"));
    EXPECT_EQ(area.from.x, 1);
    EXPECT_EQ(area.from.y, -2.5);
    EXPECT_EQ(area.to.x, 30);
    EXPECT_EQ(area.to.y, 400);
    for (const char* wrong : {"", "1,2,3", "1,2,3,4,5", "1,2,,4", "1,2,3,", "1 2 3 4", "1,2,3,x"})
        EXPECT_FALSE(Area().read(wrong)) << wrong;
}

TEST(KeyTypes, AColourHasSixHexadecimalDigits) {
    EXPECT_EQ(std::get<int>(*ColourCode().read("FA8001")), ColourOf(0xFA, 0x80, 0x01));
    EXPECT_EQ(std::get<int>(*ColourCode().read("00ff7f")), ColourOf(0x00, 0xFF, 0x7F));
    for (const char* wrong : {"", "FA800", "FA80011", "-A8001", "0xFA80", "FA800G", "#FA800"})
        EXPECT_FALSE(ColourCode().read(wrong)) << wrong;
}

TEST(KeyTypes, AnIndexMayBeAll) {
    const KeyType index = IndexOrAll(6);
    EXPECT_EQ(std::get<int>(*index.read("6")), 6);
    EXPECT_EQ(std::get<int>(*index.read("All")), allOfThem);
    for (const char* wrong : {"", "5", "-1", "6.5", "2147483648", "all of them"})
        EXPECT_FALSE(index.read(wrong)) << wrong;
}

TEST(Examples, AreScripts) {
    int examples = 0;
    for (const auto& entry : std::filesystem::directory_iterator(QB_EXAMPLES)) {
        EXPECT_FALSE(ParseScript(TextOf(entry.path()), entry.path().string()).empty());
        ++examples;
    }
    EXPECT_GT(examples, 0);
}

}  // namespace
}  // namespace quillbrand
