#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <iterator>
#include <new>

#include "batch/Batch.h"
#include "batch/Help.h"
#include "batch/Options.h"
#include "batch/Script.h"
#include "batch/UsageError.h"
#include "shell/ProgramFolder.h"
#include "shell/SubMain.h"

namespace quillbrand {

namespace {

enum ExitStatus : int { allDone = 0, commandFailed = 1, commandLineWrong = 2 };

/// One line on standard error, whatever the texts hold.
void Report(const std::string& command, const std::string& text, const std::string& place) {
    const std::string line = "quillbrand-batch: " + (command.empty() ? "" : command + ": ") + text +
                             (place.empty() ? "" : " (" + place + ")");
    std::fprintf(stderr, "%s\n", OnOneLine(line).c_str());
}

/// What an exception says to the user.
std::string TextOf(const std::exception& error) {
    const bool noMemory = dynamic_cast<const std::bad_alloc*>(&error) != nullptr;
    return noMemory ? "there is not enough memory" : error.what();
}

/// All commands, checked: those of the scripts first.
std::vector<Step> ReadSteps(const Options& options) {
    if (options.scripts.empty() && options.commands.empty())
        throw UsageError("no command is given; --help lists all");
    std::vector<Step> steps;
    for (const std::string& script : options.scripts)
        std::ranges::move(ParseScript(ReadScript(script), NameOfScript(script)),
                          std::back_inserter(steps));
    for (const std::string& command : options.commands)
        steps.push_back(ParseCommand(command));
    return steps;
}

/// Readies the answers to the command's questions and looks at the files that it is to write.
void Prepare(const Step& step, BatchHost& host) {
    host.ForgetAnswers();
    const bool replace = step.arguments.GetOr("replace", false);
    for (const Key& key : step.command->keys) {
        const Value* value = step.arguments.Find(key.name);
        if (value != nullptr && key.question)
            host.SetAnswer(*key.question, std::get<bool>(*value));
        if (value != nullptr && key.writes && !replace)
            RequireKind(key.name, std::get<std::string>(*value), *key.writes);
    }
}

void RunStep(const Step& step, Batch& batch) {
    Prepare(step, batch.host);
    step.command->run(batch, step.arguments);
    batch.host.Busy(false);
    batch.host.ClearLine();
}

/// Returns whether all went well.
bool RunSteps(const std::vector<Step>& steps, Batch& batch, bool timings) {
    using Clock = std::chrono::steady_clock;
    for (const Step& step : steps) {
        const std::string& word = step.command->word;
        const auto start = Clock::now();
        try {
            RunStep(step, batch);
        } catch (const std::exception& error) {
            batch.host.ClearLine();
            Report(word, TextOf(error), step.place);
            return false;
        }
        const std::chrono::duration<double, std::milli> time = Clock::now() - start;
        if (timings)
            std::fprintf(stderr, "%s %.3f\n", word.c_str(), time.count());
    }
    return true;
}

/// Keeping the way back costs time and memory, so only a script that takes it pays.
HistoryMode ModeFor(const std::vector<Step>& steps) {
    const bool isUsed =
        std::ranges::any_of(steps, [](const Step& step) { return step.command->needsHistory; });
    return isUsed ? HistoryMode::Steps : HistoryMode::Nothing;
}

int RunScript(const Options& options) {
    const std::vector<Step> steps = ReadSteps(options);
    RandomSource chance(options.randomSeed);
    Session session;
    SubMain(session, FindProgramFolder(PlacesOfThisProcess(options.home)), {}, chance);
    session.document.history.Mode(ModeFor(steps));
    BatchHost host(session, chance, !options.quiet && isatty(STDERR_FILENO) == 1);
    Batch batch{.session = session, .host = host};
    return RunSteps(steps, batch, options.timings) ? allDone : commandFailed;
}

int Run(int argc, const char* const* argv) {
    const Options options = ParseOptions(argc, argv);
    if (options.help)
        WriteOutput(HelpText(options.helpWord));
    else if (options.version)
        WriteOutput("quillbrand-batch " QB_VERSION "\n");
    else
        return RunScript(options);
    return allDone;
}

}  // namespace

}  // namespace quillbrand

int main(int argc, char** argv) {
    using namespace quillbrand;
    // A file that grows beyond its limit is to be a failed write, not the end of the program.
    std::signal(SIGXFSZ, SIG_IGN);
    try {
        return Run(argc, argv);
    } catch (const UsageError& error) {
        Report(error.Command(), error.what(), error.Place());
        return commandLineWrong;
    } catch (const std::exception& error) {
        Report({}, TextOf(error), {});
        return commandFailed;
    }
}
