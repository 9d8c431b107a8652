#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>

#include "shell/vbConfig.h"
#include "tests/ui/WindowFixture.h"

namespace quillbrand {
namespace {

/// Writes its arguments into the pipe beside it.
constexpr auto standIn = "#!/bin/sh\necho \"$*\" >\"${0%/*}/arguments\"\n";

using TerragenKey = WindowFixture;

TEST_F(TerragenKey, SavesANewDocumentUnderAChosenNameAndStartsTheRenderer) {
    const auto program = folder_ / "terragen";
    WriteText(program, standIn);
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    ASSERT_EQ(mkfifo((folder_ / "arguments").c_str(), 0600), 0);
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
    ModalUser user({Press("Yes"), ChoosePath(folder_ / "my hill")});
    ClickTool("Terragen");
    const std::string file = (folder_ / "my hill.ter").string();
    EXPECT_TRUE(window_->windowTitle().contains(QString::fromStdString(file)));
    std::string arguments;
    // Non-blocking, so that a renderer that does not start is a failure and no endless wait.
    const int pipe = open((folder_ / "arguments").c_str(), O_RDONLY | O_NONBLOCK);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        char byte = 0;
        while (read(pipe, &byte, 1) == 1 && byte != '\n')
            arguments += byte;
        return byte == '\n';
    }));
    close(pipe);
    EXPECT_EQ(arguments, "-t " + file);
}

}  // namespace
}  // namespace quillbrand
