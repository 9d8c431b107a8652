// Runs the batch program once for each folder under cases/ and compares what can be seen from
// outside. The program runs in a folder of its own that holds a copy of the case's `files`, and
// `home`, a program folder with one Perlin set. The other files of a case, all optional:
//
//   arguments       the command line, one argument a line
//   stdin           standard input
//   status          the expected exit status (0)
//   stdout, stderr  the expected output, in full (empty)
//   stderr-pattern  a shell pattern in place of stderr
//   absent          names that must not exist afterwards, one a line
//   kept            names out of `files` that must be untouched
//   same            pairs of names that must have the same content
//   limit           the largest size of a file that the program may write, in bytes
//   twice           when it exists, two runs must leave the same files

#include <fcntl.h>
#include <fnmatch.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>

#include "tests/support/NoiseSet.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

namespace fs = std::filesystem;

std::string TextOrNothing(const fs::path& path) {
    return fs::exists(path) ? TextOf(path) : "";
}

std::vector<std::string> Lines(const fs::path& path) {
    std::vector<std::string> lines;
    std::istringstream text(TextOrNothing(path));
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    return lines;
}

void Redirect(int descriptor, const fs::path& path, int flags) {
    if (dup2(open(path.c_str(), flags, 0600), descriptor) < 0)
        _exit(126);
}

/// Becomes the program; never returns.
[[noreturn]] void Execute(const fs::path& folder, const fs::path& outputs, rlim_t limit,
                          std::vector<std::string> arguments) {
    std::vector<char*> argv;
    argv.reserve(arguments.size() + 1);
    for (std::string& argument : arguments)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    Redirect(STDIN_FILENO, outputs / "stdin", O_RDONLY);
    Redirect(STDOUT_FILENO, outputs / "stdout", O_WRONLY | O_CREAT);
    Redirect(STDERR_FILENO, outputs / "stderr", O_WRONLY | O_CREAT);
    const struct rlimit sizes { limit, limit };
    // There is one thread. NOLINTNEXTLINE(concurrency-mt-unsafe)
    setenv("QUILLBRAND_HOME", "home", 1);
    if (setrlimit(RLIMIT_FSIZE, &sizes) == 0 && chdir(folder.c_str()) == 0)
        execv(QB_BATCH_PROGRAM, argv.data());
    _exit(127);
}

/// One run of a case, with what it left behind.
class CaseRun {
  public:
    explicit CaseRun(const fs::path& description) {
        if (fs::exists(description / "files"))
            fs::copy(description / "files", folder_.Path(), fs::copy_options::recursive);
        WriteNoiseSet(folder_ / "home/PS", "Dots", 140);
        WriteText(outputs_ / "stdin", TextOrNothing(description / "stdin"));
        const std::string limit = TextOrNothing(description / "limit");
        std::vector<std::string> arguments = Lines(description / "arguments");
        arguments.insert(arguments.begin(), QB_BATCH_PROGRAM);
        const pid_t child = fork();
        if (child == 0)
            Execute(folder_.Path(), outputs_.Path(),
                    limit.empty() ? RLIM_INFINITY : std::stoul(limit), std::move(arguments));
        int status = 0;
        waitpid(child, &status, 0);
        status_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    int Status() const { return status_; }
    std::string Output(const std::string& name) const { return TextOf(outputs_ / name); }
    fs::path operator/(const std::string& name) const { return folder_ / name; }

    /// Every file by its name, with its content.
    std::map<std::string, Bytes> Files() const {
        std::map<std::string, Bytes> files;
        for (const auto& entry : fs::recursive_directory_iterator(folder_.Path()))
            if (entry.is_regular_file())
                files[entry.path().lexically_relative(folder_.Path())] = Contents(entry.path());
        return files;
    }

  private:
    TemporaryFolder folder_;
    TemporaryFolder outputs_;
    int status_ = -1;
};

void ExpectErrors(const std::string& errors, const fs::path& description) {
    const std::string pattern = TextOrNothing(description / "stderr-pattern");
    if (pattern.empty()) {
        EXPECT_EQ(errors, TextOrNothing(description / "stderr"));
    } else {
        EXPECT_EQ(fnmatch(pattern.c_str(), errors.c_str(), 0), 0) << errors;
    }
}

class Cases : public testing::TestWithParam<fs::path> {};

TEST_P(Cases, DoWhatTheirFilesSay) {
    const fs::path& description = GetParam();
    const CaseRun run(description);
    const std::string status = TextOrNothing(description / "status");
    EXPECT_EQ(run.Status(), status.empty() ? 0 : std::stoi(status));
    EXPECT_EQ(run.Output("stdout"), TextOrNothing(description / "stdout"));
    ExpectErrors(run.Output("stderr"), description);

    for (const std::string& name : Lines(description / "absent"))
        EXPECT_FALSE(fs::exists(run / name)) << name;
    for (const std::string& name : Lines(description / "kept"))
        EXPECT_EQ(Contents(run / name), Contents(description / "files" / name)) << name;
    for (const std::string& pair : Lines(description / "same")) {
        const auto blank = pair.find(' ');
        EXPECT_EQ(Contents(run / pair.substr(0, blank)), Contents(run / pair.substr(blank + 1)));
    }
    const auto files = run.Files();
    for (const auto& [name, content] : files)
        EXPECT_FALSE(fs::path(name).filename().string().starts_with(".")) << name << " is left";
    if (fs::exists(description / "twice")) {
        EXPECT_EQ(CaseRun(description).Files(), files);
    }
}

std::vector<fs::path> AllCases() {
    std::vector<fs::path> cases;
    for (const auto& entry : fs::directory_iterator(QB_BATCH_CASES))
        cases.push_back(entry.path());
    std::sort(cases.begin(), cases.end());
    return cases;
}

std::string NameOf(const testing::TestParamInfo<fs::path>& info) {
    std::string name = info.param.filename().string();
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Batch, Cases, testing::ValuesIn(AllCases()), NameOf);

}  // namespace
}  // namespace quillbrand
