#pragma once

#include <string>

namespace quillbrand {

/// The command line of the editor.
struct StartArguments {
    std::string file;    ///< the terrain to open, or ""
    std::string answer;  ///< printed instead of starting (--help, --version), or ""
};

/// Needs no display. Words that are no option make one path together, blanks included.
StartArguments ParseArguments(int argc, char** argv);

/// Whether there is anything to open a window on, by the environment or the toolkit's own options.
bool HasDisplay(int argc, char** argv);

/// Runs the editor to its end; returns the exit status.
int RunEditor(int& argc, char** argv);

}  // namespace quillbrand
