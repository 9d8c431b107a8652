#pragma once

#include <string>

#include "batch/BatchHost.h"
#include "generator/GeneratorSettings.h"
#include "shell/Session.h"

namespace quillbrand {

/// What the commands of one run share.
struct Batch {
    Session& session;
    BatchHost& host;
    GeneratorSettings generatorDefaults = {};  ///< of later runs: a fresh window's, or those loaded
    GeneratorSettings generatorLast = {};      ///< of the last run or load

    /// Writes a result to standard output. Throws Fault when it does not get through.
    void Print(const std::string& text);
};

/// `text` with each control character as \xNN.
std::string OnOneLine(const std::string& text);

/// Writes `text` to standard output at once. Throws Fault when it does not get through.
void WriteOutput(const std::string& text);

}  // namespace quillbrand
