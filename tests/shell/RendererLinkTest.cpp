#include "shell/RendererLink.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QByteArray>
#include <cstdlib>
#include <fstream>

#include "shell/TerrainCommands.h"
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
    "#!/bin/sh\ncd \"${0%/*}\"\nread go <go\nprintf '%s\\n' \"$@\" >arguments\necho >done\n";

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
        setenv("PATH", bin.c_str(), 1);
    }

    static void Install(const fs::path& program) {
        WriteText(program, standIn);
        fs::permissions(program, fs::perms::owner_all);
        mkfifo((program.parent_path() / "go").c_str(), 0600);
        mkfifo((program.parent_path() / "done").c_str(), 0600);
    }

    /// The arguments of the stand-in, which cannot go on before this.
    static std::string Arguments(const fs::path& where) {
        EXPECT_FALSE(fs::exists(where / "arguments"));
        std::ofstream(where / "go") << "\n";
        std::string line;
        std::getline(std::ifstream(where / "done") >> std::ws, line);
        return TextOf(where / "arguments");
    }

    void Run(Answer answer) {
        host.answers = {answer};
        StartTerragen(session.document, session.settings, host, [this] {
            ++asked;
            if (!chosen.empty())
                SaveTerrain(session.document, chosen, true, host);
        });
    }

    std::string Message(Answer answer) {
        return FaultOf([&] { Run(answer); });
    }

    TemporaryFolder folder;
    fs::path renderer = folder / "Terra \"gen\" $HOME";
    fs::path bin = folder / "bin";
    fs::path chosen;
    QByteArray path = qgetenv("PATH");
    int asked = 0;
    Session session;
    RecordingHost host;
};

TEST_F(RendererLink, HandsTheFileOverAsOneArgumentAndDoesNotWait) {
    Install(renderer / "TerraGen.EXE");
    session.document.CurrentFile = folder / "a \"b\" 'c' $PATH `d`.ter";
    Run(Answer::Yes);
    EXPECT_EQ(Arguments(renderer), "-t\n" + session.document.CurrentFile + "\n");
    EXPECT_TRUE(session.document.TerrainSaved);
    EXPECT_GT(session.document.CurrentTerrain.Range(), 50000) << "saved stretched";
    ASSERT_EQ(host.questions.size(), 1u);
    EXPECT_EQ(host.questions[0].text, "Terrain save, before start terragen");
    EXPECT_EQ(host.questions[0].title, "Start Terragen");
    EXPECT_EQ(host.questions[0].buttons, Buttons::YesNoCancel);
}

TEST_F(RendererLink, SavesANewDocumentUnscaledUnderADefaultNameOnNo) {
    Install(renderer / "terragen");
    Run(Answer::No);
    EXPECT_EQ(Arguments(renderer), "-t\ndefault.ter\n");
    EXPECT_TRUE(fs::exists(folder / "default.ter"));
    EXPECT_EQ(session.document.CurrentFile, "default.ter");
    EXPECT_FALSE(session.document.TerrainSaved);
    EXPECT_EQ(TextOf(session.document.CurrentTerrain), TextOf(GridFrom("1 2 3 / 4 5 6 / 7 8 9")));

    fs::remove(folder / "default.ter");
    fs::remove(renderer / "arguments");
    Run(Answer::No);
    EXPECT_EQ(Arguments(renderer), "-t\ndefault.ter\n");
    EXPECT_FALSE(fs::exists(folder / "default.ter")) << "No does not save what has a file";
}

TEST_F(RendererLink, AsksForANameAndEndsWithoutOne) {
    Install(renderer / "terragen");
    Run(Answer::Cancel);
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(Message(Answer::Yes), "Submit Terragen: Terragen not called");
    EXPECT_FALSE(session.document.TerrainSaved);
    chosen = folder / "new.ter";
    Run(Answer::Yes);
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(Arguments(renderer), "-t\n" + chosen.string() + "\n");
}

TEST_F(RendererLink, TellsWhatIsMissing) {
    const std::string select = "Please select Folder of Terragen in 'Options'";
    const std::string failed = "ERROR  Terragen: " + select + "\r\n";
    fs::create_directory(renderer / "terragen");
    EXPECT_EQ(Message(Answer::No),
              failed + "There is no terragen.exe and no terragen in " + renderer.string());
    WriteText(renderer / "terragen.exe", "MZ");
    EXPECT_EQ(Message(Answer::No), failed + "The system does not run " +
                                       (renderer / "terragen.exe").string() +
                                       ", and wine is not installed");
    vbConfig::WriteIni(session.settings, "Terragen", "directory", "");
    EXPECT_EQ(Message(Answer::Cancel), "Start Terragen: " + select);
    EXPECT_EQ(host.questions.size(), 3u) << "the question comes first";
    session.document.TerrainEmpty = true;
    EXPECT_EQ(Message(Answer::Yes), "Save: Terrain empty !");
    EXPECT_EQ(host.questions.size(), 3u);
}

TEST_F(RendererLink, RunsAProgramOfAnotherSystemThroughWine) {
    Install(bin / "wine");
    WriteText(renderer / "terragen.exe", "MZ");
    StartRenderer(renderer, "a b.ter");
    EXPECT_EQ(Arguments(bin), (renderer / "terragen.exe").string() + "\n-t\na b.ter\n");
}

}  // namespace
}  // namespace quillbrand
