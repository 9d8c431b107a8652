#include <array>

#include "base/Fault.h"
#include "base/Picture.h"
#include "base/Text.h"
#include "batch/Batch.h"
#include "batch/Command.h"
#include "editor/HeightPicture.h"
#include "editor/Palette.h"
#include "shell/TerrainCommands.h"

namespace quillbrand {

namespace {

constexpr std::array<std::string_view, 1> openKinds = {"ter"};

void RequireTerExtension(const std::string& file) {
    if (LowerCase(std::filesystem::path(file).extension().string()) != ".ter")
        throw Fault("file=" + file + " does not end in .ter; as=ter reads it as a terrain");
}

void Open(Batch& batch, const Arguments& given) {
    const auto file = given.Get<std::string>("file");
    if (given.Find("as") == nullptr)
        RequireTerExtension(file);
    if (!OpenTerrain(batch.session.document, batch.session.tools.LoadMemory, file, batch.host))
        throw Fault(file + " is not a Terragen terrain");
}

void Save(Batch& batch, const Arguments& given) {
    SaveTerrain(batch.session.document, given.Get<std::string>("file"), given.Get<bool>("scale"),
                batch.host);
}

void SavePicture(Batch& batch, const Arguments& given) {
    Picture picture;
    BuildHeightPicture(picture, batch.session.document.CurrentTerrain, given.Get<int>("row"),
                       batch.host);
    picture.Save(given.Get<std::string>("file"));
}

void Backup(Batch& batch, const Arguments& given) {
    BackupTerrain(batch.session, given.Get<std::string>("file"));
}

void Restore(Batch& batch, const Arguments& given) {
    RestoreTerrain(batch.session.document, given.Get<std::string>("file"));
}

void SavePerlin(Batch& batch, const Arguments& given) {
    SaveAsPerlinSet(batch.session.document, given.Get<std::string>("file"),
                    given.Get<std::string>("name"), batch.host);
}

}  // namespace

std::vector<Command> FileCommandTable() {
    const Key file = Key{"file", FileName()}.Required();
    return {
        {"open",
         "reads a terrain",
         {file, Key{"as", OneOf(openKinds)}.Otherwise("by the extension"),
          Key{"refine", YesNo()}.Default("no").Answers(QuestionId::Refine)},
         Open},
        {"save",
         "writes the terrain as TER",
         {file.Writes(FileKind::Terrain), Key{"scale", YesNo()}.Default("yes")},
         Save},
        {"picture",
         "writes the height picture, one pixel a point",
         {Key{"file", PictureName()}.Required().Writes(FileKind::Picture),
          Key{"row", Choice(PaletteNames(), 0)}.Default("0")},
         SavePicture},
        {"backup",
         "writes heights and header values as they are",
         {file.Writes(FileKind::Backup)},
         Backup},
        {"restore", "brings back what backup wrote", {file}, Restore},
        {"perlinset",
         "writes the terrain as a .QPS file",
         {file.Writes(FileKind::PerlinSet), Key{"name", AnyText()}.Required()},
         SavePerlin},
    };
}

}  // namespace quillbrand
