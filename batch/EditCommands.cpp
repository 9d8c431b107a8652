#include <array>

#include "batch/Batch.h"
#include "batch/Command.h"
#include "shell/EditingCommands.h"

namespace quillbrand {

namespace {

using Points = std::vector<PicturePoint>;

// In the order of their numbers, from 1 on.
constexpr std::array<std::string_view, 3> shapes = {"square", "round", "noise"};
constexpr std::array<std::string_view, 5> tools = {"up", "down", "erode", "noise", "smooth"};

constexpr std::array<std::string_view, 2> ways = {"horizontally", "vertically"};

MousePoint MouseAt(const PicturePoint& point) {
    return {static_cast<float>(point.x), static_cast<float>(point.y)};
}

Frame FrameOf(const Arguments& given) {
    const auto area = given.Get<PictureArea>("area");
    const MousePoint from = MouseAt(area.from);
    const MousePoint to = MouseAt(area.to);
    return {.left = from.x, .top = from.y, .right = to.x, .bottom = to.y};
}

void RunPen(Batch& batch, const Arguments& given) {
    const Pen pen{.shape = static_cast<PenShape>(given.Get<int>("shape")),
                  .size = given.Get<int>("size"),
                  .height = given.Get<int>("height"),
                  .fine = given.Get<int>("fine"),
                  .snap = given.Get<bool>("snap")};
    const auto at = given.Get<Points>("at");
    PenStroke stroke(batch.session.document, batch.host.Chance());
    stroke.Press(pen, MouseAt(at.front()));
    for (auto point = at.begin() + 1; point != at.end(); ++point)
        stroke.Move(pen, MouseAt(*point));
    stroke.End();
}

void RunStrokeTool(Batch& batch, const Arguments& given) {
    Session& session = batch.session;
    const auto at = given.Get<Points>("at");
    StrokeMap map;
    map.Clear(session.document.CurrentTerrain.XPoints());
    map.Press(MouseAt(at.front()));
    for (auto point = at.begin() + 1; point != at.end(); ++point)
        map.Move(MouseAt(*point));
    session.tools.seedText = std::to_string(session.tools.RandomSeedValue);
    StartStroke(session.document, session.tools, session.settings,
                {.tool = static_cast<StrokeTool>(given.Get<int>("tool")),
                 .size = given.Get<int>("size"),
                 .depth = given.Get<int>("depth")},
                map, batch.host);
}

void Fill(Batch& batch, const Arguments& given) {
    FillArea(batch.session.document, FrameOf(given), given.Get<int>("height"), batch.host);
}

void Lift(Batch& batch, const Arguments& given) {
    LiftArea(batch.session.document, FrameOf(given), given.Get<int>("depth"), batch.host);
}

void Lower(Batch& batch, const Arguments& given) {
    LowerArea(batch.session.document, FrameOf(given), given.Get<int>("depth"), batch.host);
}

void Reflect(Batch& batch, const Arguments& given) {
    const bool isVertical = given.Get<std::string>("way") == "vertically";
    ReflectArea(batch.session.document, FrameOf(given),
                isVertical ? Reflection::Vertically : Reflection::Horizontally, batch.host);
}

void Resize(Batch& batch, const Arguments& given) {
    ResizeDocument(batch.session.document, given.Get<int>("size"),
                   given.GetOr("mode", batch.session.settings.ResizeMode),
                   given.Get<int>("roughness"), batch.host);
}

}  // namespace

std::vector<Command> EditCommandTable() {
    const Key area = Key{"area", Area()}.Required();
    const Key at = Key{"at", PointList()}.Required();
    const Key size = Key{"size", WholeNumber(1, 60)}.Default("10");
    const Key height = Key{"height", WholeNumber(1, 65534)}.Default("32768");
    const Key depth = Key{"depth", WholeNumber(0, 30)}.Default("5");
    return {
        {"pen",
         "prints a pen at the first point and, a little smaller, at the others",
         {Key{"shape", Choice(shapes, 1)}.Required(), size, height,
          Key{"fine", WholeNumber(-1000, 1000)}.Default("0"), Key{"snap", YesNo()}.Default("no"),
          at},
         RunPen},
        {"stroke",
         "runs a tool on the points of a stroke",
         {Key{"tool", Choice(tools, 1)}.Required(), size, depth, at},
         RunStrokeTool},
        {"fill", "gives an area one height", {area, height}, Fill},
        {"lift", "raises a hill over an area", {area, depth}, Lift},
        {"lower", "digs a pit into an area", {area, depth}, Lower},
        {"reflect",
         "mirrors an area: horizontally is top to bottom, vertically left to right",
         {area, Key{"way", OneOf(ways)}.Required()},
         Reflect},
        {"resize",
         "halves or doubles the grid until it has a size; at its own size it makes it flat",
         {Key{"size", OneOf(resizeSizes)}.Required(),
          Key{"adjust", YesNo()}.Default("no").Answers(QuestionId::Adjust),
          Key{"mode", WholeNumber(0, 2)}.Otherwise("the settings'"),
          Key{"roughness", WholeNumber(0, 10)}.Default("0")},
         Resize},
    };
}

}  // namespace quillbrand
