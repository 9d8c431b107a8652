#include "shell/RegExt.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMimeDatabase>
#include <cstdlib>

#include "base/Fault.h"
#include "base/IniFile.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

namespace fs = std::filesystem;

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
        text.replace(at, from.size(), to);
    return text;
}

class Association : public testing::Test {
  protected:
    Association() {
        setenv("XDG_DATA_HOME", data.c_str(), 1);
        setenv("XDG_CONFIG_HOME", config.c_str(), 1);
    }

    bool Register(const std::string& command) {
        return RegExt::RegisterExtension(".ter", "Terrain <&> Files", "Quillbrand", command,
                                         &reason);
    }

    TemporaryFolder folder;
    fs::path data = folder / "data";
    fs::path config = folder / "config";
    fs::path program = folder / "bin/quill \"brand\" $HOME `x` \\n 100%f";
    fs::path entry = data / "applications/quillbrand.desktop";
    std::string reason;
    int count = 1;
    std::string name = "test";
    char* arguments[2] = {name.data(), nullptr};
    QCoreApplication application{count, arguments};
};

TEST_F(Association, OpensTerrainsWhateverThePathsHoldAndKeepsTheOtherDefaults) {
    fs::create_directories(config);
    const std::string mine =
        "# mine\n[Added Associations]\nimage/png=x.desktop;\n[Default Applications]\n";
    WriteText(config / "mimeapps.list",
              mine + "application/x-terragen-terrain=old.desktop\nimage/png=y\n");
    fs::create_directories(program.parent_path());
    WriteText(program, "#!/bin/sh\nprintf '%s\\n' \"$@\" >\"${0%/*}/arguments\"\n");
    fs::permissions(program, fs::perms::owner_all);
    ASSERT_TRUE(Register(program)) << reason;
    ASSERT_TRUE(Register(program)) << reason;
    EXPECT_EQ(TextOf(config / "mimeapps.list"),
              mine + "application/x-terragen-terrain=quillbrand.desktop\nimage/png=y\n");
    const QMimeType type = QMimeDatabase().mimeTypeForFile(QStringLiteral("HILL.TER"));
    EXPECT_EQ(type.name().toStdString(), RegExt::terrainType);
    EXPECT_EQ(type.comment().toStdString(), "Terrain <&> Files");

    // As a desktop does: the escapes of the file, the codes, then the quotes, which are a shell's.
    std::string command = Replaced(IniFile::Read(entry).Get("Desktop Entry", "Exec"), "\\\\", "\\");
    ASSERT_TRUE(command.ends_with(" %f"));
    command.resize(command.size() - 2);
    EXPECT_EQ(Replaced(command, "%%", "").find('%'), std::string::npos) << "it would be a code";
    command = Replaced(command, "%%", "%") + "'/a b/c d.ter'";
    EXPECT_EQ(std::system(command.c_str()), 0) << command;
    EXPECT_EQ(TextOf(program.parent_path() / "arguments"), "/a b/c d.ter\n");
}

TEST_F(Association, PutsBackWhatItWroteWhenAToolFails) {
    const QByteArray path = qgetenv("PATH");
    const auto fails = [&](const std::string& toolName, const std::string& deed) {
        const fs::path tool = folder / toolName;
        WriteText(tool, "#!/bin/sh\n" + deed + "\necho no room\nexit 1\n");
        fs::permissions(tool, fs::perms::owner_all);
        setenv("PATH", folder.Path().c_str(), 1);
        EXPECT_FALSE(Register(program));
        qputenv("PATH", path);
        fs::remove(tool);
        EXPECT_EQ(reason, toolName + " failed: no room");
    };
    fails("update-desktop-database", "");
    EXPECT_FALSE(Register("/a=b"));
    EXPECT_EQ(folder.Entries(), 0);
    fails("update-mime-database", "/bin/ls \"$1/packages\" >\"$1/listed\"");
    EXPECT_EQ(TextOf(data / "mime/listed"), "") << "it has listed what was there for a moment";
    EXPECT_FALSE(fs::exists(data / "mime/packages"));

    fs::create_directories(entry.parent_path());
    WriteText(entry, "before");
    fails("update-desktop-database", "");
    EXPECT_EQ(TextOf(entry), "before");
    EXPECT_FALSE(fs::exists(config));
}

}  // namespace
}  // namespace quillbrand
