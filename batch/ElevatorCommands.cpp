#include <algorithm>
#include <iterator>

#include "base/Fault.h"
#include "base/Text.h"
#include "batch/Batch.h"
#include "batch/Command.h"
#include "effects/QBTools2.h"

namespace quillbrand {

namespace {

using Points = std::vector<PicturePoint>;

void Draw(ElevatorGrid& grid, const Points& points) {
    grid.Press(points.front().x, points.front().y);
    for (auto point = points.begin() + 1; point != points.end(); ++point)
        grid.Drag(point->x, point->y);
}

bool IsName(const Argument& argument) {
    return argument.key == "name";
}

bool IsNameOrSave(const Argument& argument) {
    return IsName(argument) || argument.key == "save";
}

/// The name for the `save` at `place`. Names stand behind their saves, or all in front of them; a
/// save without one of its own takes the last one given.
std::string NameFor(const std::vector<Argument>& all, std::size_t place) {
    const auto save = all.begin() + static_cast<std::ptrdiff_t>(place);
    const auto next = std::find_if(save + 1, all.end(), IsNameOrSave);
    const bool namesStandBehind = !IsName(*std::ranges::find_if(all, IsNameOrSave));
    if (namesStandBehind && next != all.end() && IsName(*next))
        return std::get<std::string>(next->value);
    const auto before = std::find_if(std::make_reverse_iterator(save), all.rend(), IsName);
    return before == all.rend() ? std::string() : std::get<std::string>(before->value);
}

/// The set that the window opens with. One that is gone does not matter where the command's first
/// deed is to choose another.
void Open(Elevator& elevator, const std::vector<Argument>& all) {
    const auto first = std::ranges::find_if(
        all, [](const Argument& argument) { return argument.key != "file" && !IsName(argument); });
    try {
        QBTools2::ChooseElevatorSet(elevator, elevator.ElevatorSetIndex);
    } catch (const Fault&) {
        if (first == all.end() || first->key != "set")
            throw;
    }
    elevator.grid.Arm(false);
}

/// What is done in the elevator's window, from its opening to OK.
void RunElevator(Batch& batch, const Arguments& given) {
    Elevator& elevator = batch.session.tools.elevator;
    const std::vector<Argument>& all = given.InOrder();
    Open(elevator, all);
    for (std::size_t i = 0; i < all.size(); ++i) {
        const auto& [key, value] = all[i];
        if (key == "file")
            elevator.ElevatorSetFile = std::get<std::string>(value);
        else if (key == "set")
            QBTools2::ChooseElevatorSet(elevator, std::get<int>(value));
        else if (key == "draw")
            Draw(elevator.grid, std::get<Points>(value));
        else if (key == "save")
            QBTools2::SaveElevatorSet(elevator, std::get<int>(value), ToLatin1(NameFor(all, i)));
    }
    elevator.grid.Arm(true);
}

}  // namespace

std::vector<Command> ElevatorCommandTable() {
    const KeyType setNumber = WholeNumber(0, QBTools2::mostElevatorSets);
    return {
        {"elevator",
         "sets up the curve of \"Elevator shift\", in the order given, and arms it",
         {Key{"file", FileName()}.Repeats().Otherwise("the settings'"),
          Key{"set", setNumber}.Repeats().Otherwise("the session's"),
          Key{"draw", PointList()}.Repeats(), Key{"save", setNumber}.Repeats(),
          Key{"name", AnyText()}.Repeats().Otherwise("no name")},
         RunElevator},
    };
}

}  // namespace quillbrand
