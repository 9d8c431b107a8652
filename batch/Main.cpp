#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>
#include <new>
#include <sstream>
#include <system_error>

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
    std::string line = "quillbrand-batch: " + (command.empty() ? "" : command + ": ") + text +
                       (place.empty() ? "" : " (" + place + ")");
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < ' ' || c == 127; };
    std::replace_if(line.begin(), line.end(), isControl, ' ');
    std::fprintf(stderr, "%s\n", line.c_str());
}

/// What an exception says to the user.
std::string TextOf(const std::exception& error) {
    const bool noMemory = dynamic_cast<const std::bad_alloc*>(&error) != nullptr;
    return noMemory ? "there is not enough memory" : error.what();
}

/// Any kind of file will do here, a pipe included.
std::string ReadScript(const std::string& file) {
    if (file == "-")
        return {std::istreambuf_iterator<char>(std::cin), {}};
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    if (stream.peek() != std::ifstream::traits_type::eof())
        text << stream.rdbuf();
    if (!stream.is_open() || stream.bad())
        throw UsageError("-f: cannot read " + file + ": " + std::generic_category().message(errno));
    return text.str();
}

/// The whole script, checked.
std::vector<Step> ReadSteps(const Options& options) {
    if (!options.script && options.commands.empty())
        throw UsageError("no command is given; --help lists all");
    std::vector<Step> steps;
    if (options.script) {
        const std::string name = *options.script == "-" ? "standard input" : *options.script;
        steps = ParseScript(ReadScript(*options.script), name);
    }
    for (const std::string& command : options.commands)
        steps.push_back(ParseCommand(command));
    return steps;
}

void RunStep(const Step& step, Batch& batch) {
    batch.host.AnswerYes(false);
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

int RunScript(const Options& options) {
    const std::vector<Step> steps = ReadSteps(options);
    RandomSource chance(options.randomSeed);
    Session session;
    SubMain(session, FindProgramFolder(PlacesOfThisProcess(options.home)), {}, chance);
    BatchHost host(session, chance, !options.quiet && isatty(STDERR_FILENO) == 1);
    Batch batch{.session = session, .host = host};
    return RunSteps(steps, batch, options.timings) ? allDone : commandFailed;
}

int Run(int argc, const char* const* argv) {
    const Options options = ParseOptions(argc, argv);
    if (options.help)
        WriteOutput(HelpText());
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
