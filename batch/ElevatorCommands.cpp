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

/// The name for the `save` at `place`: the last one given before it, else the next one after it.
std::string NameFor(const std::vector<Argument>& all, std::size_t place) {
    const Argument* nearest = nullptr;
    for (std::size_t i = 0; i < all.size() && (i < place || nearest == nullptr); ++i)
        if (all[i].key == "name")
            nearest = &all[i];
    return nearest == nullptr ? std::string() : std::get<std::string>(nearest->value);
}

/// What is done in the elevator's window, from its opening to OK.
void RunElevator(Batch& batch, const Arguments& given) {
    Elevator& elevator = batch.session.elevator;
    QBTools2::LoadElevatorSet(elevator, elevator.ElevatorSetIndex);
    elevator.grid.Arm(false);
    const std::vector<Argument>& all = given.InOrder();
    for (std::size_t i = 0; i < all.size(); ++i) {
        const auto& [key, value] = all[i];
        if (key == "file")
            elevator.ElevatorSetFile = std::get<std::string>(value);
        else if (key == "set")
            QBTools2::ChooseElevatorSet(elevator, std::get<int>(value));
        else if (key == "draw")
            Draw(elevator.grid, std::get<Points>(value));
        else if (key == "save")
            QBTools2::SaveElevatorSet(elevator, std::get<int>(value), NameFor(all, i));
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
