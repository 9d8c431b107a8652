#include "tests/batch/Program.h"

#include <fcntl.h>
#include <pty.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>

#include "tests/support/NoiseSet.h"

namespace quillbrand {

namespace {

namespace fs = std::filesystem;

void Redirect(int descriptor, int target) {
    if (target < 0 || dup2(target, descriptor) < 0)
        _exit(126);
}

/// Becomes the program; never returns.
[[noreturn]] void Execute(const fs::path& folder, const std::string& mostBytes,
                          std::vector<std::string> arguments) {
    std::vector<char*> argv;
    argv.reserve(arguments.size() + 1);
    for (std::string& argument : arguments)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    const rlim_t limit = mostBytes.empty() ? RLIM_INFINITY : std::stoul(mostBytes);
    const struct rlimit sizes { limit, limit };
    // There is one thread. NOLINTNEXTLINE(concurrency-mt-unsafe)
    setenv("QUILLBRAND_HOME", "home", 1);
    if (setrlimit(RLIMIT_FSIZE, &sizes) == 0 && chdir(folder.c_str()) == 0)
        execv(QB_BATCH_PROGRAM, argv.data());
    _exit(127);
}

/// Where the program's errors go: a file, or a terminal whose other side is read afterwards.
class ErrorSink {
  public:
    ErrorSink(const fs::path& file, bool terminal) : file_(file) {
        if (terminal && openpty(&reader_, &writer_, nullptr, nullptr, nullptr) != 0)
            writer_ = -1;
        else if (!terminal)
            writer_ = open(file.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    }
    ErrorSink(const ErrorSink&) = delete;
    ErrorSink& operator=(const ErrorSink&) = delete;

    int Writer() const { return writer_; }

    /// Requires: the program has ended.
    std::string Text() {
        close(writer_);
        if (reader_ < 0)
            return TextOf(file_);
        std::string text;
        std::array<char, 4096> part;
        for (ssize_t count = 0; (count = read(reader_, part.data(), part.size())) > 0;)
            text.append(part.data(), static_cast<std::size_t>(count));
        close(reader_);
        return text;
    }

  private:
    fs::path file_;
    int reader_ = -1;
    int writer_ = -1;
};

}  // namespace

std::string TextOrNothing(const fs::path& path) {
    return fs::exists(path) ? TextOf(path) : "";
}

Program::Program(const fs::path& files) {
    if (fs::exists(files))
        fs::copy(files, folder_.Path(), fs::copy_options::recursive);
    WriteNoiseSet(folder_ / "home/PS", "Dots", 140);
}

int Program::Run(std::vector<std::string> arguments, const RunSetting& setting) {
    const TemporaryFolder outputs;
    WriteText(outputs / "stdin", setting.input);
    ErrorSink errors(outputs / "stderr", setting.errorsToTerminal);
    arguments.insert(arguments.begin(), QB_BATCH_PROGRAM);
    const pid_t child = fork();
    if (child == 0) {
        Redirect(STDIN_FILENO, open((outputs / "stdin").c_str(), O_RDONLY));
        Redirect(STDOUT_FILENO, open((outputs / "stdout").c_str(), O_WRONLY | O_CREAT, 0600));
        Redirect(STDERR_FILENO, errors.Writer());
        Execute(folder_.Path(), setting.mostBytes, std::move(arguments));
    }
    int status = 0;
    waitpid(child, &status, 0);
    output_ += TextOf(outputs / "stdout");
    errors_ += errors.Text();
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::map<std::string, Bytes> Program::Files() const {
    std::map<std::string, Bytes> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder_.Path()))
        if (entry.is_regular_file())
            files[entry.path().lexically_relative(folder_.Path())] = Contents(entry.path());
    return files;
}

}  // namespace quillbrand
