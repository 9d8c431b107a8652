// The description of a Perlin set: its texts fit their buffers, and survive a rewrite of the file.

#include <algorithm>

#include "base/Files.h"
#include "fuzz/Target.h"
#include "generator/PerlinSets.h"

using namespace quillbrand;

namespace {

bool IsClean(const std::string& text) {
    return text.size() < 512 && text.find('\0') == std::string::npos &&
           (text.empty() || (text.front() != ' ' && text.back() != ' '));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const IniFile file = IniFile::Parse(std::as_bytes(std::span(data, size)));
    const PerlinSet set = ReadPerlinSet(file);
    Require(IsClean(set.name), "the name is cut and trimmed");
    Require(std::all_of(set.pictures.begin(), set.pictures.end(), IsClean),
            "the names of the pictures are cut and trimmed");
    const std::string text = file.Text();
    // A byte order mark within the file may become the first that the new one holds.
    if (text.starts_with("\xef\xbb\xbf"))
        return 0;
    const PerlinSet again = ReadPerlinSet(IniFile::Parse(AsBytes(text)));
    Require(set.name == again.name && set.pictures == again.pictures,
            "the rewritten file says the same");
    return 0;
}
