#pragma once

#include <array>
#include <filesystem>
#include <memory>

#include "generator/PerlinSets.h"
#include "terrain/ReliefPicture.h"

namespace quillbrand {

/// A noise picture; the raw height of a number is 32768 less, and the outside is the lowest height.
using NoisePicture = ReliefPicture;

using NoisePictures = std::array<std::shared_ptr<const NoisePicture>, 5>;

/// The five pictures of a set. Throws Fault, naming the file, when one cannot be read.
NoisePictures LoadNoisePictures(const std::filesystem::path& folder, const PerlinSet& set);

}  // namespace quillbrand
