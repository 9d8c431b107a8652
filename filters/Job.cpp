#include "filters/Job.h"

#include "base/Fault.h"
#include "base/VectorClones.h"
#include "filters/mFilterG.h"

namespace quillbrand::mFilterG {

void Job::RowDone(int y, int share) {
    if (!silent_)
        host_.Progress(static_cast<int>((std::int64_t{y} + 1) * share / Height()));
    host_.Yield();
}

void Job::Reached(int percent) {
    host_.Progress(percent);
    host_.Yield();
}

std::vector<std::int16_t> Job::LevelByChannel() const {
    int red = 0;
    int green = 0;
    int blue = 0;
    SplitColour(level_, red, green, blue);
    const std::array parts = {blue, green, red, 0};
    std::vector<std::int16_t> row(RowBytes());
    for (std::size_t i = 0; i < row.size(); ++i)
        row[i] = static_cast<std::int16_t>(parts[i % parts.size()]);
    return row;
}

void Job::RefuseLevel(const std::string& allowed) const {
    Refuse("takes a level " + allowed + ", not " + std::to_string(level_));
}

void Job::Refuse(const std::string& text) const {
    throw Fault("picture filter " + std::to_string(id_) + " " + text);
}

QB_VECTOR_CLONES void Recolour(Pixel* __restrict row, const Pixel* __restrict from,
                               std::ptrdiff_t begin, std::ptrdiff_t end) {
    for (std::ptrdiff_t x = begin; x < end; ++x)
        row[x] = Recoloured(row[x], from[x]);
}

}  // namespace quillbrand::mFilterG
