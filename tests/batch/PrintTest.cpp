#include <gtest/gtest.h>

#include <cstdlib>

#include "base/Picture.h"
#include "tests/support/NoiseSet.h"
#include "tests/support/PdfTools.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

TEST(Print, IsInTheSizeAndTheColoursOfTheSettings) {
    const TemporaryFolder folder;
    WriteNoiseSet(folder / "PS", "Dots", 140);
    WriteText(folder / "Quillbrand.ini",
              "; M\xfcller\r\n[start]\r\nopTTer= 0\r\nCOLOR=3\r\n[Terrain]\r\n");
    const std::string script = "cd '" + folder.Path().string() +
                               "' && '" QB_BATCH_PROGRAM
                               "' --home . 'generate size=128 seed=1' 'save file=a.ter' "
                               "'picture file=3.png row=3' 'picture file=0.png' "
                               "'print file=a.PDF copies=2' 'print file=b.pdf copies=2'";
    ASSERT_EQ(std::system(script.c_str()), 0);

    const auto printed = PdfPictures(folder / "a.PDF");
    ASSERT_EQ(printed.size(), 2u);
    EXPECT_TRUE(printed[1] == Picture::Load(folder / "3.png").Image());
    EXPECT_FALSE(printed[1] == Picture::Load(folder / "0.png").Image());
    const std::string text = PdfText(folder / "a.PDF");
    EXPECT_NE(text.find("\nName :a.ter\nSize :129 x 129 Pixel\n"), std::string::npos) << text;
    EXPECT_TRUE(Contents(folder / "a.PDF") == Contents(folder / "b.pdf"));
}

}  // namespace
}  // namespace quillbrand
