// A picture file, which may be a noise picture as well.

#include "base/Picture.h"

#include "base/Fault.h"
#include "fuzz/Target.h"
#include "terrain/ReliefPicture.h"

using namespace quillbrand;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const Picture picture = Picture::Decode(std::as_bytes(std::span(data, size)), "input");
        const int right = picture.Width() - 1;
        const int bottom = picture.Height() - 1;
        Require(picture.Point(right, bottom) != noColour, "a picture has points");
        Require(picture.Point(right + 1, bottom) == noColour, "beyond its points is nothing");
        const ReliefPicture numbers(picture);
        Require(numbers.At(right, bottom) == picture.Point(right, bottom) >> 8,
                "green and blue are the number");
    } catch (const Fault&) {
        // No picture, or a damaged one, and told so.
    }
    return 0;
}
