#include "shell/TerrainCommands.h"

#include <sstream>

#include "base/NumberText.h"
#include "batch/Batch.h"
#include "batch/Deeds.h"
#include "shell/TerrainMetres.h"
#include "terrain/HeightsChange.h"

namespace quillbrand {

namespace {

std::string Flag(bool set) {
    return set ? "-1" : "0";
}

void New(Batch& batch, const Arguments& given) {
    ClearTerrain(batch.session.document, given.Get<int>("points"));
}

std::string InMetres(const clsTerrain& terrain) {
    const TerrainMetres metres = MetresOf(terrain);
    return "lowest=" + PlainText(metres.lowest) + "\nhighest=" + PlainText(metres.highest) +
           "\nmean=" + PlainText(metres.mean) + "\nside=" + PlainText(metres.side) + "\n";
}

void Info(Batch& batch, const Arguments& given) {
    const Document& document = batch.session.document;
    clsTerrain& terrain = batch.session.document.CurrentTerrain;
    terrain.Range();
    std::ostringstream lines;
    lines << "CurrentFile=" << OnOneLine(document.CurrentFile) << "\n"
          << "TerrainEmpty=" << Flag(document.TerrainEmpty) << "\n"
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
    batch.Print(lines.str() + (given.Get<bool>("metres") ? InMetres(terrain) : ""));
}

float Single(const Value& value) {
    return static_cast<float>(std::get<double>(value));
}
int Whole(const Value& value) {
    return std::get<int>(value);
}

const std::vector<Deed<clsTerrain>>& Properties() {
    const KeyType sixteenBits = WholeNumber(INT16_MIN, INT16_MAX);
    const KeyType zeroOrOne = WholeNumber(0, 1);
    static const std::vector<Deed<clsTerrain>> properties = {
        {{"ScaleT", Number()}, [](auto& terrain, auto& v) { terrain.ScaleT(Single(v)); }},
        {{"BaseHeight", sixteenBits}, [](auto& terrain, auto& v) { terrain.BaseHeight(Whole(v)); }},
        {{"HeightScale", sixteenBits},
         [](auto& terrain, auto& v) { terrain.HeightScale(Whole(v)); }},
        {{"MinTU", sixteenBits}, [](auto& terrain, auto& v) { terrain.MinTU(Whole(v)); }},
        {{"MaxTU", sixteenBits}, [](auto& terrain, auto& v) { terrain.MaxTU(Whole(v)); }},
        {{"CRAD", Number()}, [](auto& terrain, auto& v) { terrain.CRAD(Single(v)); }},
        {{"CRVM", zeroOrOne}, [](auto& terrain, auto& v) { terrain.CRVM(Whole(v)); }},
        {{"FixHeight", zeroOrOne},
         [](auto& terrain, auto& v) { terrain.FixHeight(Whole(v) == 1); }},
    };
    return properties;
}

void Set(Batch& batch, const Arguments& given) {
    Document& document = batch.session.document;
    HeightsChange change(document, "Properties");
    DoInOrder(Properties(), document.CurrentTerrain, given);
    change.Commit();
}

void Flat(Batch& batch, const Arguments& given) {
    Document& document = batch.session.document;
    HeightsChange change(document, "Flat");
    document.CurrentTerrain.Fill(given.Get<int>("z"));
    document.TerrainEmpty = false;
    change.Commit();
}

void SetOnePoint(Batch& batch, const Arguments& given) {
    Document& document = batch.session.document;
    HeightsChange change(document, "Point");
    document.CurrentTerrain.SetPoint(given.Get<int>("x"), given.Get<int>("y"), given.Get<int>("z"));
    document.TerrainEmpty = false;
    change.Commit();
}

void ShiftOnePoint(Batch& batch, const Arguments& given) {
    Document& document = batch.session.document;
    HeightsChange change(document, "Shift");
    document.CurrentTerrain.IncrPoint(given.Get<int>("x"), given.Get<int>("y"),
                                      given.Get<int>("d"));
    document.TerrainEmpty = false;
    change.Commit();
}

void PrintRange(Batch& batch, const Arguments&) {
    batch.Print("Range=" + std::to_string(batch.session.document.CurrentTerrain.Range()) + "\n");
}

void Scale(Batch& batch, const Arguments&) {
    ScaleHeights(batch.session.document, batch.host);
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
        {"info", "prints the terrain's properties", {Key{"metres", YesNo()}.Default("no")}, Info},
        {"set", "the terrain's properties, written in the order given", KeysOf(Properties()), Set,
         true},
        {"flat", "gives every point one height", {z}, Flat},
        {"point", "gives one point a height", {x, y, z}, SetOnePoint},
        {"shift", "adds to the height of one point", {x, y, d}, ShiftOnePoint},
        {"range", "prints the span of the heights", {}, PrintRange},
        {"scale", "stretches the heights to the full range", {}, Scale},
    };
}

}  // namespace quillbrand
