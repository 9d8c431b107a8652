#include "shell/GeneratorCommands.h"

#include <algorithm>

#include "base/Fault.h"
#include "base/Picture.h"
#include "batch/Batch.h"
#include "batch/Command.h"
#include "editor/HeightPicture.h"

namespace quillbrand {

namespace {

/// The row that `text` names, by number or by name. Where there are no sets at all the generator
/// itself has a better message.
int RowOf(const PerlinSetTable& sets, const std::string& text) {
    const int rows = sets.ListedRows();
    if (rows == 0)
        return 0;
    if (const auto number = ReadWhole(text); number && *number >= 0 && *number < rows)
        return static_cast<int>(*number);
    if (const int row = sets.FindRow(text); row >= 0)
        return row;
    std::string known;
    for (int row = 0; row < rows; ++row)
        known += (row == 0 ? "" : ", ") + std::to_string(row) + " " +
                 sets.rows[static_cast<std::size_t>(row)].name;
    throw Fault("set=" + text + " is no Perlin set; there are " + known);
}

/// What the run is to use: the keys given, over what generator-load read. Seed and modes become
/// the session's.
GeneratorSettings TakeSettings(Batch& batch, const Arguments& given) {
    Session& session = batch.session;
    GeneratorSettings settings = batch.generatorDefaults;
    if (given.Find("set") != nullptr)
        settings.set = RowOf(session.tools.PerlinSets, given.Get<std::string>("set"));
    settings.iterations = given.GetOr("iterations", settings.iterations);
    settings.height = given.GetOr("height", settings.height);
    settings.structure = given.GetOr("structure", settings.structure);
    settings.roughness = given.GetOr("roughness", settings.roughness);
    settings.finerStructures = given.GetOr("highres", settings.finerStructures);
    settings.clearTerrain = given.Get<bool>("clear");

    session.tools.RandomSeedValue = given.GetOr("seed", session.tools.RandomSeedValue);
    session.tools.ModifyMode = given.GetOr("mode", session.tools.ModifyMode);
    session.settings.ResizeMode = given.GetOr("resize", session.settings.ResizeMode);
    settings.seed = std::to_string(session.tools.RandomSeedValue);
    batch.generatorLast = settings;
    return settings;
}

int PresentSize(const Session& session) {
    const int size = session.document.CurrentTerrain.Size();
    const auto sizes = GeneratorSizes();
    if (std::find(sizes.begin(), sizes.end(), size) == sizes.end())
        throw Fault("the present Size " + std::to_string(size) +
                    " cannot be produced: give size=" + OneOf(sizes).allowed);
    return size;
}

void Generate(Batch& batch, const Arguments& given) {
    const Value* size = given.Find("size");
    const int wanted = size == nullptr ? PresentSize(batch.session) : std::get<int>(*size);
    ProduceTerrain(batch.session.document, batch.session.tools, batch.session.settings.ResizeMode,
                   wanted, TakeSettings(batch, given), batch.host);
}

void Preview(Batch& batch, const Arguments& given) {
    clsTerrain preview =
        PreviewTerrain(batch.session.document, batch.session.tools,
                       batch.session.settings.ResizeMode, TakeSettings(batch, given), batch.host);
    Picture picture;
    BuildHeightPicture(picture, preview, batch.session.settings.PaletteRow, batch.host);
    picture.Save(given.Get<std::string>("file"));
}

void SaveSettings(Batch& batch, const Arguments& given) {
    SaveGenerator(batch.session.tools, given.Get<std::string>("file"), batch.generatorLast);
}

void LoadSettings(Batch& batch, const Arguments& given) {
    batch.generatorDefaults = LoadGenerator(batch.session.tools, given.Get<std::string>("file"),
                                            batch.generatorDefaults.set);
    batch.generatorLast = batch.generatorDefaults;
}

/// The keys that a run and its preview share, behind `first`.
std::vector<Key> GeneratorKeys(const Key& first) {
    return {
        first,
        Key{"set", {"the row or name of a Perlin set", AnyText().read}}.Otherwise("0"),
        Key{"iterations", WholeNumber(1, 11)}.Otherwise("1"),
        Key{"height", WholeNumber(1, 100)}.Otherwise("100"),
        Key{"structure", WholeNumber(0, 4)}.Otherwise("2"),
        Key{"roughness", WholeNumber(0, 10)}.Otherwise("0"),
        Key{"seed", WholeNumber()}.Otherwise("the session's"),
        Key{"mode", Choice(modifyCaptions, 0)}.Otherwise("the session's"),
        Key{"highres", YesNo()}.Otherwise("no"),
        Key{"clear", YesNo()}.Default("no"),
        Key{"resize", WholeNumber(0, 2)}.Otherwise("the settings'"),
    };
}

}  // namespace

std::vector<Command> GeneratorCommandTable() {
    const Key file = Key{"file", FileName()}.Required();
    return {
        {"generate", "produces a terrain, or lays one over the present",
         GeneratorKeys(Key{"size", OneOf(GeneratorSizes())}.Otherwise("the present Size")),
         Generate},
        {"preview", "writes a picture of what generate would make, on a small grid",
         GeneratorKeys(Key{"file", PictureName()}.Required().Writes(FileKind::Picture)), Preview},
        {"generator-save",
         "writes the values of the last run as a .par file",
         {file.Writes(FileKind::Settings)},
         SaveSettings},
        {"generator-load",
         "reads a .par file; its values are the defaults of later runs",
         {file},
         LoadSettings},
    };
}

}  // namespace quillbrand
