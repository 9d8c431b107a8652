#include "base/IniFile.h"

// Bytes stay as they are: settings files of other systems hold 8-bit text.
#define SI_NO_CONVERSION
#include <SimpleIni.h>

#include "base/Files.h"
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

struct IniFile::Content {
    /// Of keys that stand several times the first counts.
    CSimpleIniA ini{false, true, false};
};

IniFile::IniFile() : content_(std::make_unique<Content>()) {
    content_->ini.SetSpaces(false);
}
IniFile::~IniFile() = default;
IniFile::IniFile(IniFile&&) noexcept = default;
IniFile& IniFile::operator=(IniFile&&) noexcept = default;

IniFile IniFile::Parse(std::span<const std::byte> bytes) {
    IniFile file;
    std::string text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    file.content_->ini.LoadData(
        text.c_str(), text.find('\0') == std::string::npos ? text.size() : text.find('\0'));
    return file;
}

IniFile IniFile::Read(const std::filesystem::path& path) {
    if (!STDIO::FileExists(path))
        return {};
    return Parse(ReadFile(path, mostBytes));
}

std::string IniFile::Get(const std::string& section, const std::string& key,
                         const std::string& defaultValue, std::size_t buffer) const {
    const char* value = content_->ini.GetValue(section.c_str(), key.c_str());
    if (value == nullptr)
        return defaultValue;
    return TrimIni(WithoutQuotes(value).substr(0, buffer - 1));
}

void IniFile::Set(const std::string& section, const std::string& key, const std::string& value) {
    content_->ini.SetValue(section.c_str(), key.c_str(), value.c_str(), nullptr, true);
}

std::string IniFile::Text() const {
    std::string text;
    content_->ini.Save(text);
    return text;
}

void IniFile::Write(const std::filesystem::path& path) const {
    ReplaceFile(path, AsBytes(Text()));
}

}  // namespace quillbrand
