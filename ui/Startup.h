#pragma once

#include <string>

namespace quillbrand {

/// The command line of the editor.
struct StartArguments {
    std::string file;    ///< the terrain to open, or ""
    std::string answer;  ///< printed instead of starting (--help, --version), or ""
};

/// Needs no display.
StartArguments ParseArguments(int argc, char** argv);

/// Runs the editor to its end; returns the exit status.
int RunEditor(int& argc, char** argv, const StartArguments& arguments);

}  // namespace quillbrand
