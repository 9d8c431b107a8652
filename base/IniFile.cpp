#include "base/IniFile.h"

#include <algorithm>

#include "base/Fault.h"
#include "base/Files.h"
#include "base/IniText.h"
#include "base/Stdio.h"
#include "base/Text.h"

namespace quillbrand {

namespace {

/// A settings file is a few hundred bytes; what is beyond this is not one.
constexpr std::size_t mostBytes = std::size_t{1} << 20;

std::string WithoutQuotes(const std::string& text) {
    const bool quoted = text.size() >= 2 && text.front() == text.back() &&
                        (text.front() == '"' || text.front() == '\'');
    return quoted ? text.substr(1, text.size() - 2) : text;
}

}  // namespace

IniFile IniFile::Parse(std::span<const std::byte> bytes) {
    IniFile file;
    const std::string text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    const std::size_t end = std::min(text.find('\0'), text.size());
    file.text_ = text.substr(0, end);
    file.tail_ = text.substr(end);
    return file;
}

IniFile IniFile::Read(const std::filesystem::path& path) {
    return STDIO::FileExists(path) ? ReadExisting(path) : IniFile();
}

IniFile IniFile::ReadExisting(const std::filesystem::path& path) {
    const Bytes bytes = ReadFile(path, mostBytes + 1);
    IniFile file = Parse(bytes);
    if (bytes.size() > mostBytes)
        file.tooLarge_ = path.string();
    return file;
}

std::string IniFile::Get(const std::string& section, const std::string& key,
                         const std::string& defaultValue, std::size_t buffer) const {
    const auto value = IniValue(text_, section, key);
    return value ? TrimIni(ToUtf8(WithoutQuotes(*value)).substr(0, buffer - 1)) : defaultValue;
}

void IniFile::Set(const std::string& section, const std::string& key, const std::string& value) {
    std::string stored = value.substr(0, value.find('\0'));
    if (stored.find_first_of("\r\n") != std::string::npos)
        throw Fault("a value with a line break cannot be stored under " + key + ": " + stored);
    // One pair of quotes is lost on reading.
    if (const std::string bare = TrimIni(stored); WithoutQuotes(bare) != bare)
        stored = '"' + bare + '"';
    SetIniValue(text_, section, key, stored);
}

std::string IniFile::Text() const {
    if (!tooLarge_.empty())
        throw Fault("cannot change " + tooLarge_ + ": with more than " + std::to_string(mostBytes) +
                    " bytes it is no settings file");
    return text_ + tail_;
}

void IniFile::Write(const std::filesystem::path& path) const {
    ReplaceFile(path, AsBytes(Text()));
}

}  // namespace quillbrand
