#pragma once

#include <bit>
#include <cstddef>
#include <cstring>
#include <span>
#include <string>
#include <string_view>

#include "base/Fault.h"
#include "base/Files.h"

namespace quillbrand {

static_assert(std::endian::native == std::endian::little, "the file formats are little-endian");

/// The little-endian value at `offset`, or 0 where the bytes do not hold all of it.
template <typename Value>
Value ValueAt(std::span<const std::byte> bytes, std::size_t offset) {
    Value value{};
    if (bytes.size() >= sizeof value && offset <= bytes.size() - sizeof value)
        std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
}

/// Reads little-endian values at given offsets of a file's bytes and checks each against what is
/// there. `name` is how the file is called in a Fault, normally its path.
class ByteReader {
  public:
    ByteReader(std::span<const std::byte> bytes, std::string name)
        : bytes_(bytes), name_(std::move(name)) {}

    std::size_t Size() const { return bytes_.size(); }

    /// Throws Fault when `count` bytes from `offset` on are not all there.
    std::span<const std::byte> At(std::size_t offset, std::size_t count) const {
        if (offset > bytes_.size() || count > bytes_.size() - offset)
            throw Fault(name_ + " is cut short: it has " + std::to_string(bytes_.size()) +
                        " bytes, but at least " + std::to_string(offset + count) + " are needed");
        return bytes_.subspan(offset, count);
    }

    template <typename Value>
    Value ValueAt(std::size_t offset) const {
        Value value;
        std::memcpy(&value, At(offset, sizeof value).data(), sizeof value);
        return value;
    }

    /// The first `count` bytes as text.
    std::string_view TextAt(std::size_t offset, std::size_t count) const {
        return {reinterpret_cast<const char*>(At(offset, count).data()), count};
    }

  private:
    std::span<const std::byte> bytes_;
    std::string name_;
};

/// Appends little-endian values to a file's content.
class ByteWriter {
  public:
    explicit ByteWriter(Bytes& bytes) : bytes_(bytes) {}

    template <typename Value>
    void Put(const Value& value) {
        const auto part = std::as_bytes(std::span(&value, 1));
        bytes_.insert(bytes_.end(), part.begin(), part.end());
    }

    void Text(std::string_view text) {
        const auto part = std::as_bytes(std::span(text.data(), text.size()));
        bytes_.insert(bytes_.end(), part.begin(), part.end());
    }

  private:
    Bytes& bytes_;
};

}  // namespace quillbrand
