#include <array>

#include "base/Fault.h"
#include "base/Picture.h"
#include "batch/Batch.h"
#include "batch/Command.h"
#include "shell/ZViewCommand.h"

namespace quillbrand {

namespace {

constexpr int pictureSide = 510;

/// The axes along which one can look, in the order of their numbers.
constexpr std::array<std::string_view, 2> axes = {"x", "y"};

int PositionIn(const clsTerrain& terrain, int position) {
    if (position > LastSection(terrain))
        throw Fault("position=" + std::to_string(position) +
                    " is not allowed: " + WholeNumber(1, LastSection(terrain)).allowed +
                    " in a terrain of " + std::to_string(terrain.XPoints()) + " points");
    return position;
}

void ZView(Batch& batch, const Arguments& given) {
    Document& document = batch.session.document;
    Picture picture(pictureSide, pictureSide);
    DrawZView(picture, document,
              {.position = PositionIn(document.CurrentTerrain, given.Get<int>("position")),
               .alongX = axes.at(static_cast<std::size_t>(given.Get<int>("axis"))) == "y",
               .real = given.Get<bool>("real")});
    picture.Save(given.Get<std::string>("file"));
}

}  // namespace

std::vector<Command> ViewCommandTable() {
    constexpr int lastPosition = 2047;
    return {
        {"zview",
         "writes a picture of the cross-section, seen along an axis; stretches the heights",
         {Key{"file", PictureName()}.Required().Writes(FileKind::Picture),
          Key{"axis", Choice(axes, 0)}.Required(),
          Key{"position", WholeNumber(1, lastPosition)}.Required(),
          Key{"real", YesNo()}.Default("no")},
         ZView},
    };
}

}  // namespace quillbrand
