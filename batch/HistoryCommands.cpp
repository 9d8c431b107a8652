#include <algorithm>

#include "base/Fault.h"
#include "batch/Batch.h"
#include "batch/Command.h"

namespace quillbrand {

namespace {

/// How many steps can be taken back, or done again.
int StepsThatAre(const Document& document, bool undone) {
    const auto entries = document.history.Entries();
    return static_cast<int>(std::ranges::count(entries, undone, &History::Entry::undone));
}

void Undo(Batch& batch, const Arguments& given) {
    Document& document = batch.session.document;
    const int steps = given.Get<int>("steps");
    if (StepsThatAre(document, false) < steps)
        throw Fault("nothing to undo");
    document.Undo(steps);
}

void Redo(Batch& batch, const Arguments& given) {
    Document& document = batch.session.document;
    const int steps = given.Get<int>("steps");
    if (StepsThatAre(document, true) < steps)
        throw Fault("nothing to redo");
    document.Redo(steps);
}

void PrintHistory(Batch& batch, const Arguments&) {
    std::string lines;
    int number = 0;
    for (const History::Entry& entry : batch.session.document.history.Entries())
        lines += "step=" + std::to_string(++number) + " name=\"" + entry.name +
                 "\" bytes=" + std::to_string(entry.bytes) + (entry.undone ? " undone=1\n" : "\n");
    batch.Print(lines);
}

}  // namespace

std::vector<Command> HistoryCommandTable() {
    constexpr int mostSteps = 10000;
    const Key steps = Key{"steps", WholeNumber(1, mostSteps)}.Default("1");
    return {
        {.word = "undo",
         .summary = "takes back what the last commands changed",
         .keys = {steps},
         .run = Undo,
         .needsHistory = true},
        {.word = "redo",
         .summary = "does again what was taken back",
         .keys = {steps},
         .run = Redo,
         .needsHistory = true},
        {.word = "history",
         .summary = "prints a line for each step that can be taken back or done again",
         .run = PrintHistory,
         .needsHistory = true},
    };
}

}  // namespace quillbrand
