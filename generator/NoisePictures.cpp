#include "generator/NoisePictures.h"

#include "base/Fault.h"
#include "base/Files.h"

namespace quillbrand {

NoisePictures LoadNoisePictures(const std::filesystem::path& folder, const PerlinSet& set) {
    NoisePictures pictures;
    for (std::size_t k = 0; k < pictures.size(); ++k) {
        if (set.pictures[k].empty())
            throw Fault("the Perlin set \"" + set.name + "\" names no picture 0" +
                        std::to_string(k + 1));
        pictures[k] = LoadReliefPicture(FindInFolder(folder, set.pictures[k]));
    }
    return pictures;
}

}  // namespace quillbrand
