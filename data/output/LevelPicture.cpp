#include "data/output/LevelPicture.h"

#include <png.h>
#include <zlib.h>

#include <cstddef>
#include <stdexcept>

namespace quillbrand {

namespace {

void AppendBytes(png_structp png, png_bytep bytes, std::size_t count) {
    auto* content = static_cast<std::string*>(png_get_io_ptr(png));
    content->append(reinterpret_cast<const char*>(bytes), count);
}

void NothingToFlush(png_structp) {}

[[noreturn]] void Complain(png_structp, png_const_charp text) {
    throw std::runtime_error(std::string("cannot write a PNG picture: ") + text);
}

/// Frees what libpng holds, also when an error is thrown through it.
struct PngWriter {
    png_structp png;
    png_infop info;

    PngWriter()
        : png(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, Complain, nullptr)),
          info(png_create_info_struct(png)) {}
    PngWriter(const PngWriter&) = delete;
    PngWriter& operator=(const PngWriter&) = delete;
    ~PngWriter() { png_destroy_write_struct(&png, &info); }
};

}  // namespace

std::string EncodePng(const LevelPicture& picture) {
    std::string content;
    const PngWriter writer;
    const auto side = static_cast<png_uint_32>(picture.side);
    png_set_write_fn(writer.png, &content, AppendBytes, NothingToFlush);
    png_set_IHDR(writer.png, writer.info, side, side, 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    // The generator decodes five pictures for a terrain, so what counts is the time for that. Low
    // bytes are noise in which no matches are found: differences and Huffman codes alone give the
    // same size as more effort, and are read and written faster.
    png_set_filter(writer.png, PNG_FILTER_TYPE_BASE, PNG_FILTER_UP);
    png_set_compression_strategy(writer.png, Z_HUFFMAN_ONLY);
    png_write_info(writer.png, writer.info);
    std::vector<png_byte> row(3 * static_cast<std::size_t>(picture.side));
    auto level = picture.levels.begin();
    for (int y = 0; y < picture.side; ++y) {
        for (std::size_t at = 0; at < row.size(); at += 3, ++level) {
            row[at + 1] = static_cast<png_byte>(*level & 0xFF);
            row[at + 2] = static_cast<png_byte>(*level >> 8);
        }
        png_write_row(writer.png, row.data());
    }
    png_write_end(writer.png, nullptr);
    return content;
}

}  // namespace quillbrand
