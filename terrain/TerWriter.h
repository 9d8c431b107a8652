#pragma once

#include <filesystem>

#include "base/Files.h"
#include "base/Host.h"
#include "terrain/clsTerrain.h"

namespace quillbrand {

/// The terrain as the bytes of a TER file, into `file`, whose memory is used again. Sets the chunk
/// tags of the terrain's header. Throws Fault when a height lies outside 16 bits: ScaleTerrain
/// must have run.
void EncodeTer(clsTerrain& terrain, Bytes& file, Host& host);

/// What becomes of the surplus of a longer old file.
enum class OldTail { Drop, Keep };

/// Writes the terrain as TER to the file at `path`, whole or not at all. Throws Fault, with the old
/// file untouched.
void SaveT(clsTerrain& terrain, const std::filesystem::path& path, Host& host,
           OldTail tail = OldTail::Drop);

}  // namespace quillbrand
