#include "base/Files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <limits>
#include <system_error>

#include "base/Fault.h"
#include "base/Text.h"

namespace quillbrand {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(const char* what, const fs::path& path, int error) {
    throw Fault(std::string("cannot ") + what + " " + path.string() + ": " +
                std::generic_category().message(error));
}

/// A file handle that closes itself.
class Handle {
  public:
    explicit Handle(int descriptor) : descriptor_(descriptor) {}
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() {
        if (descriptor_ >= 0)
            close(descriptor_);
    }
    int Get() const { return descriptor_; }

    /// Closes now; returns the error number or 0.
    int Close() {
        const int descriptor = std::exchange(descriptor_, -1);
        return close(descriptor) == 0 ? 0 : errno;
    }

  private:
    int descriptor_;
};

/// Status of a file that must be a regular one when it exists; `exists` tells whether it does.
struct stat RegularFileStatus(const char* what, const fs::path& path, bool& exists) {
    struct stat status {};
    exists = stat(path.c_str(), &status) == 0;
    if (!exists && errno != ENOENT)
        Fail(what, path, errno);
    if (exists && S_ISDIR(status.st_mode))
        Fail(what, path, EISDIR);
    if (exists && !S_ISREG(status.st_mode))
        throw Fault(std::string("cannot ") + what + " " + path.string() + ": Not a regular file");
    return status;
}

/// Writes all of it; returns the error number or 0.
int WriteAll(int descriptor, std::span<const std::byte> content) {
    while (!content.empty()) {
        const ssize_t written = write(descriptor, content.data(), content.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return errno;
        content = content.subspan(static_cast<std::size_t>(written));
    }
    return 0;
}

int WriteFlushAndClose(Handle& file, std::span<const std::byte> content, mode_t mode) {
    if (const int error = WriteAll(file.Get(), content))
        return error;
    if (fchmod(file.Get(), mode) != 0)
        return errno;
    if (fdatasync(file.Get()) != 0)
        return errno;
    return file.Close();
}

/// The permissions that a file made the ordinary way would get.
mode_t NewFileMode() {
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

}  // namespace

fs::path FollowLinks(fs::path path) {
    constexpr int most = 40;  // as the system has it
    std::error_code error;
    for (int links = 0; links < most && fs::is_symlink(path, error); ++links) {
        const fs::path target = fs::read_symlink(path, error);
        if (error)
            break;
        path = path.parent_path() / target;
    }
    return path;
}

Bytes ReadFile(const fs::path& path, std::size_t most) {
    bool exists = false;
    const struct stat status = RegularFileStatus("read", path, exists);
    const Handle file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (file.Get() < 0)
        Fail("read", path, errno);

    Bytes content(std::min(most, static_cast<std::size_t>(status.st_size)));
    std::size_t filled = 0;
    while (filled < content.size()) {
        const ssize_t count = read(file.Get(), content.data() + filled, content.size() - filled);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            Fail("read", path, errno);
        if (count == 0)
            break;
        filled += static_cast<std::size_t>(count);
    }
    content.resize(filled);
    return content;
}

void ReplaceFile(const fs::path& path, std::span<const std::byte> content) {
    const fs::path target = FollowLinks(path);
    bool exists = false;
    const struct stat status = RegularFileStatus("write", target, exists);
    if (exists && access(target.c_str(), W_OK) != 0)
        Fail("write", path, errno);

    std::string temporary = (target.parent_path() / ".quillbrand-XXXXXX").string();
    Handle file(mkostemp(temporary.data(), O_CLOEXEC));
    if (file.Get() < 0)
        Fail("write", path, errno);
    const mode_t mode = exists ? status.st_mode & 07777 : NewFileMode();
    int error = WriteFlushAndClose(file, content, mode);
    if (error == 0 && rename(temporary.c_str(), target.c_str()) != 0)
        error = errno;
    if (error != 0) {
        unlink(temporary.c_str());
        Fail("write", path, error);
    }
}

void OverwriteFile(const fs::path& path, Bytes content) {
    bool exists = false;
    const struct stat status = RegularFileStatus("write", path, exists);
    if (exists && static_cast<std::size_t>(status.st_size) > content.size()) {
        const Bytes old = ReadFile(path, std::numeric_limits<std::size_t>::max());
        if (old.size() > content.size())
            content.insert(content.end(), old.begin() + static_cast<std::ptrdiff_t>(content.size()),
                           old.end());
    }
    ReplaceFile(path, content);
}

fs::path FindInFolder(const fs::path& folder, const std::string& name) {
    std::string relative = name;
    std::replace(relative.begin(), relative.end(), '\\', '/');
    fs::path wanted = folder / fs::path(relative).relative_path();
    std::error_code error;
    if (fs::exists(wanted, error))
        return wanted;
    for (const auto& entry : fs::directory_iterator(wanted.parent_path(), error))
        if (EqualIgnoringCase(entry.path().filename().string(), wanted.filename().string()))
            return entry.path();
    return wanted;
}

std::span<const std::byte> AsBytes(const std::string& text) {
    return std::as_bytes(std::span(text.data(), text.size()));
}

}  // namespace quillbrand
