#include <algorithm>
#include <iterator>

#include "batch/Command.h"

namespace quillbrand {

const std::vector<Command>& AllCommands() {
    static const std::vector<Command> table = [] {
        std::vector<Command> all;
        for (auto make : {TerrainCommandTable, FileCommandTable, GeneratorCommandTable,
                          EffectCommandTable, ElevatorCommandTable, PrintCommandTable}) {
            std::vector<Command> part = make();
            std::move(part.begin(), part.end(), std::back_inserter(all));
        }
        return all;
    }();
    return table;
}

}  // namespace quillbrand
