#include "base/IniFile.h"

// Bytes stay as they are until a value is asked for.
#define SI_NO_CONVERSION
#include <SimpleIni.h>

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

struct IniFile::Content {
    /// Of keys that stand several times the first counts.
    CSimpleIniA ini{false, true, false};
    std::string text;      ///< what `ini` was read from, byte by byte
    std::string tail;      ///< what stands behind the first NUL, which nobody reads
    std::string tooLarge;  ///< the file of which only the beginning was read, or nothing

    void Read() {
        ini.Reset();
        ini.LoadData(text);
    }
};

IniFile::IniFile() : content_(std::make_unique<Content>()) {}
IniFile::~IniFile() = default;
IniFile::IniFile(IniFile&&) noexcept = default;
IniFile& IniFile::operator=(IniFile&&) noexcept = default;

IniFile IniFile::Parse(std::span<const std::byte> bytes) {
    IniFile file;
    std::string text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    const std::size_t end = std::min(text.find('\0'), text.size());
    file.content_->tail = text.substr(end);
    text.resize(end);
    file.content_->text = std::move(text);
    file.content_->Read();
    return file;
}

IniFile IniFile::Read(const std::filesystem::path& path) {
    return STDIO::FileExists(path) ? ReadExisting(path) : IniFile();
}

IniFile IniFile::ReadExisting(const std::filesystem::path& path) {
    const Bytes bytes = ReadFile(path, mostBytes + 1);
    IniFile file = Parse(bytes);
    if (bytes.size() > mostBytes)
        file.content_->tooLarge = path.string();
    return file;
}

std::string IniFile::Get(const std::string& section, const std::string& key,
                         const std::string& defaultValue, std::size_t buffer) const {
    const char* value = content_->ini.GetValue(section.c_str(), key.c_str());
    if (value == nullptr)
        return defaultValue;
    return TrimIni(ToUtf8(WithoutQuotes(value)).substr(0, buffer - 1));
}

void IniFile::Set(const std::string& section, const std::string& key, const std::string& value) {
    std::string stored = value.substr(0, value.find('\0'));
    if (stored.find_first_of("\r\n") != std::string::npos)
        throw Fault("a value with a line break cannot be stored under " + key + ": " + stored);
    // One pair of quotes is lost on reading.
    if (const std::string bare = TrimIni(stored); WithoutQuotes(bare) != bare)
        stored = '"' + bare + '"';
    SetIniValue(content_->text, section, key, stored);
    content_->Read();
}

std::string IniFile::Text() const {
    if (!content_->tooLarge.empty())
        throw Fault("cannot change " + content_->tooLarge + ": with more than " +
                    std::to_string(mostBytes) + " bytes it is no settings file");
    return content_->text + content_->tail;
}

void IniFile::Write(const std::filesystem::path& path) const {
    ReplaceFile(path, AsBytes(Text()));
}

}  // namespace quillbrand
