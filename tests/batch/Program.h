#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "base/Files.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {

/// What a run of the batch program is given besides its arguments.
struct RunSetting {
    std::string input;      ///< standard input
    std::string mostBytes;  ///< of a file that it may write; empty is without limit
    bool errorsToTerminal = false;
};

/// Runs of the batch program in a folder of their own.
class Program {
  public:
    /// The folder begins as a copy of `files`, where that exists, and `home`, a program folder with
    /// one Perlin set.
    explicit Program(const std::filesystem::path& files);

    /// Runs it once and returns the exit status; what it wrote joins Output() and Errors().
    int Run(std::vector<std::string> arguments, const RunSetting& setting);

    const std::string& Output() const { return output_; }
    const std::string& Errors() const { return errors_; }

    std::filesystem::path operator/(const std::string& name) const { return folder_ / name; }

    /// Every file by its name, with its content.
    std::map<std::string, Bytes> Files() const;

  private:
    TemporaryFolder folder_;
    std::string output_;
    std::string errors_;
};

/// The text of a file, or nothing where there is none.
std::string TextOrNothing(const std::filesystem::path& path);

}  // namespace quillbrand
