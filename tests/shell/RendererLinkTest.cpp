#include "shell/RendererLink.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <thread>

#include "shell/vbConfig.h"
#include "tests/support/Faults.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

namespace fs = std::filesystem;

/// Waits until it is let go, writes its arguments down, and tells that it has.
constexpr auto standIn =
    "#!/bin/sh\ncd \"${0%/*}\"\nwhile [ -e waits ]; do :; done\n"
    "printf '%s\\n' \"$@\" >arguments\necho >done\n";

class RendererLink : public testing::Test {
  public:
    ~RendererLink() override {
        fs::current_path("/");
        qputenv("PATH", path);
    }

  protected:
    RendererLink() {
        fs::create_directories(renderer);
        fs::create_directories(bin);
        fs::current_path(folder.Path());
        session.settings.IniPath = folder / "Quillbrand.ini";
        vbConfig::WriteIni(session.settings, "Terragen", "directory", renderer.string());
        session.document.CurrentTerrain = GridFrom("1 2 3 / 4 5 6 / 7 8 9");
        session.document.TerrainEmpty = false;
        qputenv("PATH", QByteArray(bin.c_str()));
    }

    static void Install(const fs::path& program) {
        WriteText(program, standIn);
        fs::permissions(program, fs::perms::owner_all);
        WriteText(program.parent_path() / "waits", "");
    }

    /// The arguments of the stand-in, which cannot go on before this.
    static std::string Arguments(const fs::path& where) {
        EXPECT_FALSE(fs::exists(where / "arguments"));
        fs::remove(where / "waits");
        for (int i = 0; i < 1000 && !fs::exists(where / "done"); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        if (!fs::remove(where / "done"))
            return "the renderer did not start";
        WriteText(where / "waits", "");
        std::string arguments = TextOf(where / "arguments");
        fs::remove(where / "arguments");
        return arguments;
    }

    std::string Message(Answer answer) {
        host.answers = {answer};
        return FaultOf([&] { StartTerragen(session.document, session.settings, host, [] {}); });
    }
    void Run(Answer answer) { EXPECT_EQ(Message(answer), "no fault"); }

    TemporaryFolder folder;
    fs::path renderer = folder / "Terra \"gen\" $HOME";
    fs::path bin = folder / "bin";
    QByteArray path = qgetenv("PATH");
    Session session;
    RecordingHost host;
};

TEST_F(RendererLink, SavesANewDocumentUnscaledUnderADefaultNameOnNo) {
    Install(renderer / "TerraGen.EXE");
    Run(Answer::Cancel);
    EXPECT_EQ(Message(Answer::Yes), "Submit Terragen: Terragen not called");
    Run(Answer::No);
    EXPECT_EQ(Arguments(renderer), "-t\ndefault.ter\n");
    EXPECT_EQ(session.document.CurrentFile, "default.ter");
    EXPECT_FALSE(session.document.TerrainSaved);
    EXPECT_EQ(TextOf(session.document.CurrentTerrain), "1 2 3 / 4 5 6 / 7 8 9");

    EXPECT_TRUE(fs::remove(folder / "default.ter"));
    Run(Answer::No);
    EXPECT_EQ(Arguments(renderer), "-t\ndefault.ter\n");
    EXPECT_FALSE(fs::exists(folder / "default.ter")) << "No does not save what has a file";

    session.document.CurrentFile = folder / "a \"b\" 'c' $PATH `d`.ter";
    Run(Answer::Yes);
    EXPECT_EQ(Arguments(renderer), "-t\n" + session.document.CurrentFile + "\n");
    EXPECT_TRUE(session.document.TerrainSaved);
    EXPECT_GT(session.document.CurrentTerrain.Range(), 50000) << "saved stretched";
}

TEST_F(RendererLink, TellsWhatIsMissingAndRunsAProgramOfAnotherSystemThroughWine) {
    const std::string select = "Please select Folder of Terragen in 'Options'";
    const std::string failed = "ERROR  Terragen: " + select + "\r\n";
    fs::create_directory(renderer / "terragen");
    EXPECT_EQ(Message(Answer::No),
              failed + "There is no terragen.exe and no terragen in " + renderer.string());
    const std::string program = renderer / "terragen.exe";
    WriteText(program, "MZ");
    fs::remove(renderer / "terragen");
    WriteText(renderer / "terragen", "");
    EXPECT_EQ(Message(Answer::No),
              failed + "The system does not run " + program + ", and wine is not installed\r\n" +
                  "The system does not run " + (renderer / "terragen").string());
    Install(bin / "wine");
    Run(Answer::No);
    EXPECT_EQ(Arguments(bin), program + "\n-t\ndefault.ter\n");

    vbConfig::WriteIni(session.settings, "Terragen", "directory", "");
    EXPECT_EQ(Message(Answer::Cancel), "Start Terragen: " + select);
    EXPECT_EQ(host.questions.size(), 4u) << "the question comes first";
}

}  // namespace
}  // namespace quillbrand
