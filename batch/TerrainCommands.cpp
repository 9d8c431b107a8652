#include "shell/TerrainCommands.h"

#include <array>
#include <sstream>

#include "base/NumberText.h"
#include "batch/Batch.h"
#include "batch/Command.h"
#include "terrain/ScaleTerrainStep.h"
#include "terrain/TerrainGuard.h"

namespace quillbrand {

namespace {

std::string Flag(bool set) {
    return set ? "-1" : "0";
}

void New(Batch& batch, const Arguments& given) {
    ClearTerrain(batch.session.document, given.Get<int>("points"));
}

void Info(Batch& batch, const Arguments&) {
    clsTerrain& terrain = batch.session.document.CurrentTerrain;
    terrain.Range();
    std::ostringstream lines;
    lines << "CurrentFile=" << batch.session.document.CurrentFile << "\n"
          << "TerrainEmpty=" << Flag(batch.session.document.TerrainEmpty) << "\n"
          << "Size=" << terrain.Size() << "\n"
          << "XPoints=" << terrain.XPoints() << "\n"
          << "ScaleT=" << ShortestText(terrain.ScaleT()) << "\n"
          << "CRAD=" << ShortestText(terrain.CRAD()) << "\n"
          << "CRVM=" << terrain.CRVM() << "\n"
          << "HeightScale=" << terrain.HeightScale() << "\n"
          << "BaseHeight=" << terrain.BaseHeight() << "\n"
          << "MinTU=" << terrain.MinTU() << "\n"
          << "MaxTU=" << terrain.MaxTU() << "\n"
          << "min=" << terrain.min() << "\n"
          << "max=" << terrain.max() << "\n"
          << "FixHeight=" << Flag(terrain.FixHeight()) << "\n"
          << "objects=0\n";
    batch.Print(lines.str());
}

/// A property of the terrain by its name.
struct Property {
    std::string_view name;
    KeyType (*type)();
    void (*write)(clsTerrain&, const Value&);
};

KeyType SixteenBits() {
    return WholeNumber(INT16_MIN, INT16_MAX);
}
KeyType ZeroOrOne() {
    return WholeNumber(0, 1);
}
float Single(const Value& value) {
    return static_cast<float>(std::get<double>(value));
}
int Whole(const Value& value) {
    return std::get<int>(value);
}

constexpr std::array properties = {
    Property{"ScaleT", Number, [](clsTerrain& t, const Value& v) { t.ScaleT(Single(v)); }},
    Property{"BaseHeight", SixteenBits,
             [](clsTerrain& t, const Value& v) { t.BaseHeight(Whole(v)); }},
    Property{"HeightScale", SixteenBits,
             [](clsTerrain& t, const Value& v) { t.HeightScale(Whole(v)); }},
    Property{"MinTU", SixteenBits, [](clsTerrain& t, const Value& v) { t.MinTU(Whole(v)); }},
    Property{"MaxTU", SixteenBits, [](clsTerrain& t, const Value& v) { t.MaxTU(Whole(v)); }},
    Property{"CRAD", Number, [](clsTerrain& t, const Value& v) { t.CRAD(Single(v)); }},
    Property{"CRVM", ZeroOrOne, [](clsTerrain& t, const Value& v) { t.CRVM(Whole(v)); }},
    Property{"FixHeight", ZeroOrOne,
             [](clsTerrain& t, const Value& v) { t.FixHeight(Whole(v) == 1); }},
};

std::vector<Key> PropertyKeys() {
    std::vector<Key> keys;
    keys.reserve(properties.size());
    for (const Property& property : properties)
        keys.push_back(Key{std::string(property.name), property.type()}.Repeats());
    return keys;
}

void Set(Batch& batch, const Arguments& given) {
    TerrainGuard guard(batch.session.document.CurrentTerrain);
    for (const Argument& argument : given.InOrder())
        for (const Property& property : properties)
            if (argument.key == property.name)
                property.write(batch.session.document.CurrentTerrain, argument.value);
    guard.Commit();
}

void Flat(Batch& batch, const Arguments& given) {
    batch.session.document.CurrentTerrain.Fill(given.Get<int>("z"));
    batch.session.document.TerrainEmpty = false;
}

void SetOnePoint(Batch& batch, const Arguments& given) {
    batch.session.document.CurrentTerrain.SetPoint(given.Get<int>("x"), given.Get<int>("y"),
                                                   given.Get<int>("z"));
    batch.session.document.TerrainEmpty = false;
}

void ShiftOnePoint(Batch& batch, const Arguments& given) {
    batch.session.document.CurrentTerrain.IncrPoint(given.Get<int>("x"), given.Get<int>("y"),
                                                    given.Get<int>("d"));
    batch.session.document.TerrainEmpty = false;
}

void PrintRange(Batch& batch, const Arguments&) {
    batch.Print("Range=" + std::to_string(batch.session.document.CurrentTerrain.Range()) + "\n");
}

void Scale(Batch& batch, const Arguments&) {
    ScaleTerrainStep(batch.session.document.CurrentTerrain, batch.host);
}

}  // namespace

std::vector<Command> TerrainCommandTable() {
    const Key x = Key{"x", WholeNumber()}.Required();
    const Key y = Key{"y", WholeNumber()}.Required();
    const Key z = Key{"z", WholeNumber()}.Required();
    const Key d = Key{"d", WholeNumber()}.Required();
    return {
        {"new",
         "a flat, empty terrain with the window -10 to 30",
         {Key{"points", WholeNumber(2, 2049)}.Default("257")},
         New},
        {"info", "prints the terrain's properties", {}, Info},
        {"set", "the terrain's properties, written in the order given", PropertyKeys(), Set, true},
        {"flat", "gives every point one height", {z}, Flat},
        {"point", "gives one point a height", {x, y, z}, SetOnePoint},
        {"shift", "adds to the height of one point", {x, y, d}, ShiftOnePoint},
        {"range", "prints the span of the heights", {}, PrintRange},
        {"scale", "stretches the heights to the full range", {}, Scale},
    };
}

}  // namespace quillbrand
