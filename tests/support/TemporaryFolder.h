#pragma once

#include <filesystem>
#include <string>

#include "base/Files.h"

namespace quillbrand {

/// A folder that goes with its holder.
class TemporaryFolder {
  public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }
    const std::filesystem::path& Path() const { return path_; }

    /// How many entries lie in the folder; temporary files left behind would count.
    int Entries() const;

  private:
    std::filesystem::path path_;
};

Bytes Contents(const std::filesystem::path& path);
std::string TextOf(const std::filesystem::path& path);
void WriteText(const std::filesystem::path& path, const std::string& text);

}  // namespace quillbrand
