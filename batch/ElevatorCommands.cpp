#include <algorithm>
#include <iterator>

#include "base/Fault.h"
#include "base/Text.h"
#include "batch/Batch.h"
#include "batch/Deeds.h"
#include "effects/QBTools2.h"

namespace quillbrand {

namespace {

/// The elevator's window, from its opening to OK.
struct ElevatorWindow {
    Elevator& elevator;
    std::vector<std::string> names;  ///< for the saves to come, the last one first
    bool replace;                    ///< a file of another kind
};

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

/// The names for all saves, the last one first.
std::vector<std::string> NamesOf(const std::vector<Argument>& all) {
    std::vector<std::string> names;
    for (std::size_t place = all.size(); place-- > 0;)
        if (all[place].key == "save")
            names.push_back(NameFor(all, place));
    return names;
}

/// The number of the set that is called `name`.
int SetOf(const Elevator& elevator, const std::string& name) {
    const std::vector<std::string> names = QBTools2::ElevatorSetNames(elevator);
    std::string list;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::string known = TrimIni(ToUtf8(names[i]));
        if (EqualIgnoringCase(known, TrimIni(name)))
            return static_cast<int>(i);
        list += (i == 0 ? "" : ", ") + std::to_string(i) + " " + known;
    }
    throw Fault("set=" + name + " is no set of " + elevator.ElevatorSetFile.string() +
                "; there are " + list);
}

bool IsDeed(const Argument& argument) {
    return argument.key == "set" || argument.key == "draw" || argument.key == "save";
}

/// The set that the window opens with. One that is gone does not matter where the command's first
/// deed is to choose another.
void Open(Elevator& elevator, const std::vector<Argument>& all) {
    const auto first = std::ranges::find_if(all, IsDeed);
    try {
        QBTools2::ChooseElevatorSet(elevator, elevator.ElevatorSetIndex);
    } catch (const Fault&) {
        if (first == all.end() || first->key != "set")
            throw;
    }
    elevator.grid.Arm(false);
}

void ChooseFile(ElevatorWindow& window, const Value& file) {
    window.elevator.ElevatorSetFile = std::get<std::string>(file);
}

void LoadSet(ElevatorWindow& window, const Value& set) {
    Elevator& elevator = window.elevator;
    if (const int* number = std::get_if<int>(&set))
        QBTools2::ChooseElevatorSet(elevator, *number);
    else
        QBTools2::ChooseElevatorSet(elevator, SetOf(elevator, std::get<std::string>(set)));
}

void Draw(ElevatorWindow& window, const Value& value) {
    const auto& points = std::get<std::vector<PicturePoint>>(value);
    window.elevator.grid.Press(points.front().x, points.front().y);
    for (auto point = points.begin() + 1; point != points.end(); ++point)
        window.elevator.grid.Drag(point->x, point->y);
}

void SaveSet(ElevatorWindow& window, const Value& set) {
    if (!window.replace)
        RequireKind("file", window.elevator.ElevatorSetFile, FileKind::ElevatorSets);
    QBTools2::SaveElevatorSet(window.elevator, std::get<int>(set), ToLatin1(window.names.back()));
    window.names.pop_back();
}

const std::vector<Deed<ElevatorWindow>>& Deeds() {
    constexpr int most = QBTools2::mostElevatorSets;
    static const std::vector<Deed<ElevatorWindow>> deeds = {
        {Key{"file", FileName()}.Otherwise("the settings'"), ChooseFile},
        {Key{"set", NumberOrName("a set", 0, most)}.Otherwise("the session's"), LoadSet},
        {Key{"draw", PointList()}, Draw},
        {Key{"save", WholeNumber(0, most)}, SaveSet},
    };
    return deeds;
}

void RunElevator(Batch& batch, const Arguments& given) {
    const std::vector<Argument>& all = given.InOrder();
    ElevatorWindow window{.elevator = batch.session.tools.elevator,
                          .names = NamesOf(all),
                          .replace = given.Get<bool>("replace")};
    Open(window.elevator, all);
    DoInOrder(Deeds(), window, given);
    window.elevator.grid.Arm(true);
}

}  // namespace

std::vector<Command> ElevatorCommandTable() {
    return {
        {"elevator", "sets up the curve of \"Elevator shift\", in the order given, and arms it",
         KeysOf(Deeds(), {Key{"name", AnyText()}.Repeats().Otherwise("no name"),
                          Key{"replace", YesNo()}.Default("no")}),
         RunElevator},
    };
}

}  // namespace quillbrand
