#include "shell/vbConfig.h"
#include "tests/ui/WindowFixture.h"

namespace quillbrand {
namespace {

using TerragenKey = WindowFixture;

TEST_F(TerragenKey, SavesANewDocumentUnderAChosenNameAndStartsTheRenderer) {
    ASSERT_TRUE(StartWindow());
    vbConfig::WriteIni(session_.settings, "Terragen", "directory", folder_.Path().string());
    Produce("2718");
    {
        ModalUser user({Press("Yes"), PressEscape(), Press("OK")});
        ClickTool("Terragen");
        EXPECT_EQ(user.seen, QStringList({"Start Terragen: Terrain save, before start terragen",
                                          "Submit Terragen: Terragen not called"}));
        EXPECT_FALSE(session_.TerrainBusy);
    }
    ModalUser user({Press("Yes"), ChoosePath(folder_ / "my hill"), Press("OK")});
    ClickTool("Terragen");
    const std::string file = (folder_ / "my hill.ter").string();
    EXPECT_TRUE(window_->windowTitle().contains(QString::fromStdString(file)));
    EXPECT_TRUE(std::filesystem::exists(file));
    EXPECT_TRUE(user.seen.value(1).contains("There is no terragen")) << "nothing to start";
}

}  // namespace
}  // namespace quillbrand
