#include "batch/FileKinds.h"

#include <algorithm>
#include <sstream>
#include <string>

#include "base/ByteBuffer.h"
#include "base/Fault.h"
#include "base/PictureFormats.h"
#include "base/Stdio.h"
#include "effects/QBTools2.h"
#include "terrain/TerFormat.h"
#include "terrain/TerReader.h"

namespace quillbrand {

namespace {

/// More than the largest terrain or sets file takes.
constexpr std::size_t enough = std::size_t{32} << 20;

bool StartsWith(const ByteReader& file, std::string_view text) {
    return file.Size() >= text.size() && file.TextAt(0, text.size()) == text;
}

/// Both begin with the same header. A terrain has its end mark where its samples end, a backup is
/// long enough for its wider cells.
FileKind TerrainOrBackup(const ByteReader& file) {
    constexpr std::size_t sizeAt = 20;
    constexpr std::size_t headerBytes = 80;
    const auto size = file.Size() < headerBytes ? -1 : file.ValueAt<std::int16_t>(sizeAt);
    if (size < 0)
        return FileKind::Terrain;
    const auto points = static_cast<std::size_t>(size) + 1;
    const std::size_t end = headerBytes + sizeof(std::int16_t) * points * points;
    const std::size_t backup = headerBytes + sizeof(Height) * (points + 2) * (points + 2);
    if (file.Size() < backup || file.TextAt(end, TerFormat::end.size()) == TerFormat::end)
        return FileKind::Terrain;
    return FileKind::Backup;
}

bool IsText(std::string_view text) {
    return std::ranges::all_of(
        text, [](unsigned char c) { return c >= ' ' || c == '\n' || c == '\r' || c == '\t'; });
}

/// The first line that is no comment is a section, and some key follows.
bool IsSettings(std::string_view text) {
    std::istringstream lines{std::string(text)};
    bool inSection = false;
    for (std::string line; std::getline(lines, line);) {
        line = STDIO::TrimmedText(line.substr(0, line.find('\r')));
        if (line.empty() || line.front() == ';' || line.front() == '#')
            continue;
        if (line.front() == '[' && line.back() == ']')
            inSection = true;
        else
            return inSection && line.find('=') != std::string::npos;
    }
    return false;
}

/// Names are 8-bit text; a record that nothing was written to has NULs.
bool IsSetName(std::string_view name) {
    return name == std::string(name.size(), '\0') ||
           std::ranges::none_of(name,
                                [](unsigned char c) { return c < ' ' || (c >= 0x7F && c < 0xA0); });
}

bool IsElevatorSets(const ByteReader& file) {
    if (file.Size() == 0 || file.Size() % QBTools2::elevatorRecordLength != 0)
        return false;
    for (std::size_t at = 0; at < file.Size(); at += QBTools2::elevatorRecordLength)
        if (!IsSetName(file.TextAt(at, QBTools2::elevatorNameLength)))
            return false;
    return true;
}

}  // namespace

std::optional<FileKind> KindOf(std::span<const std::byte> bytes) {
    const ByteReader file(bytes, {});
    if (IsTer(bytes))
        return TerrainOrBackup(file);
    if (StartsWith(file, "QUILLBRAND PERLINSET "))
        return FileKind::PerlinSet;
    if (StartsWith(file, "%PDF-"))
        return FileKind::Page;
    const auto text = file.TextAt(0, file.Size());
    if (IsText(text))
        return IsSettings(text) ? std::optional(FileKind::Settings) : std::nullopt;
    if (IsElevatorSets(file))
        return FileKind::ElevatorSets;
    if (FindPictureFormat(bytes) != nullptr)
        return FileKind::Picture;
    return std::nullopt;
}

std::string_view NameOf(FileKind kind) {
    switch (kind) {
        case FileKind::Terrain:
            return "a terrain";
        case FileKind::Backup:
            return "a backup";
        case FileKind::Picture:
            return "a picture";
        case FileKind::ElevatorSets:
            return "a file of elevator sets";
        case FileKind::Settings:
            return "a settings file";
        case FileKind::PerlinSet:
            return "a Perlin set file";
        case FileKind::Page:
            return "a PDF page";
    }
    return {};
}

void RequireKind(const std::string& key, const std::filesystem::path& path, FileKind wanted) {
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(path, ignored))
        return;
    const auto kind = KindOf(ReadFile(path, enough));
    if (kind && *kind != wanted)
        throw Fault(key + "=" + path.string() + " is " + std::string(NameOf(*kind)) + " and not " +
                    std::string(NameOf(wanted)) + "; replace=yes writes over it");
}

}  // namespace quillbrand
