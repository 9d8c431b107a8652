#include "terrain/ReliefPicture.h"

#include <algorithm>
#include <list>

namespace quillbrand {

namespace {

namespace fs = std::filesystem;

/// Two sets of noise pictures and the one of river erosion; a picture is a few megabytes.
constexpr std::size_t keptAtMost = 11;

struct Decoded {
    fs::path path;
    std::uintmax_t size;
    fs::file_time_type time;
    std::shared_ptr<const ReliefPicture> picture;

    bool IsFile(const Decoded& other) const {
        return path == other.path && size == other.size && time == other.time;
    }
};

/// The pictures read last, most recent first.
std::list<Decoded>& Kept() {
    static std::list<Decoded> kept;
    return kept;
}

}  // namespace

ReliefPicture::ReliefPicture(const Picture& picture)
    : width_(picture.Width()), height_(picture.Height()) {
    numbers_.reserve(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_));
    for (int y = 0; y < height_; ++y) {
        const QRgb* row = picture.Row(y);
        for (int x = 0; x < width_; ++x)
            numbers_.push_back(static_cast<std::uint16_t>(qGreen(row[x]) | (qBlue(row[x]) << 8)));
    }
}

std::shared_ptr<const ReliefPicture> LoadReliefPicture(const fs::path& path) {
    std::error_code error;
    Decoded wanted{path, fs::file_size(path, error), fs::last_write_time(path, error), nullptr};
    auto& kept = Kept();
    const auto found = std::find_if(kept.begin(), kept.end(),
                                    [&](const Decoded& one) { return one.IsFile(wanted); });
    if (found != kept.end() && !error) {
        kept.splice(kept.begin(), kept, found);
        return kept.front().picture;
    }
    wanted.picture = std::make_shared<const ReliefPicture>(Picture::Load(path));
    kept.push_front(std::move(wanted));
    if (kept.size() > keptAtMost)
        kept.pop_back();
    return kept.front().picture;
}

}  // namespace quillbrand
