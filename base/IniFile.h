#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>

namespace quillbrand {

/// A text file of sections in square brackets with lines key=value. Sections and keys are compared
/// without regard to case. When the file is written again, every line that was not set is as
/// before, whatever it holds.
class IniFile {
  public:
    /// An empty file.
    IniFile() = default;

    /// What `bytes` hold; lines that make no sense are passed over. Never fails.
    static IniFile Parse(std::span<const std::byte> bytes);

    /// Reads the file. One that does not exist reads as empty; any other trouble is a Fault.
    static IniFile Read(const std::filesystem::path& path);

    /// The same, but one that does not exist is a Fault too.
    static IniFile ReadExisting(const std::filesystem::path& path);

    /// The value of a key as a reader with a buffer of `buffer` characters gets it: cut to what
    /// fits beside a closing NUL, cut at its first NUL, without quotes around it, trimmed.
    std::string Get(const std::string& section, const std::string& key,
                    const std::string& defaultValue = "", std::size_t buffer = 512) const;

    /// Gives a key its value: changes the first line that has the key, or adds one to the section.
    /// Throws Fault for a value with a line break.
    void Set(const std::string& section, const std::string& key, const std::string& value);

    /// The file's text as Write() stores it. Throws Fault where the file that was read was too
    /// large to be read whole.
    std::string Text() const;

    /// Replaces the file. Throws Fault.
    void Write(const std::filesystem::path& path) const;

  private:
    std::string text_;      ///< byte by byte
    std::string tail_;      ///< what stands behind the first NUL, which nobody reads
    std::string tooLarge_;  ///< the file of which only the beginning was read, or nothing
};

}  // namespace quillbrand
