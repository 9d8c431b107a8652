#include "terrain/TerHeader.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <tuple>

#include "base/NumberText.h"

namespace quillbrand {

namespace {

template <std::size_t length>
void SetTag(std::array<char, length>& tag, std::string_view text) {
    std::copy_n(text.begin(), length, tag.begin());
}

/// Every field in the order of the record.
template <typename Header>
auto Fields(Header& h) {
    return std::tie(h.TerragenHeader, h.Size, h.XptsTag, h.XPoints, h.YptsTag, h.YPoints, h.ScalTag,
                    h.ScaleX, h.ScaleY, h.ScaleZ, h.CradTag, h.CRAD, h.CrvmTag, h.CRVM, h.AltwTag,
                    h.HeightScale, h.BaseHeight);
}

}  // namespace

TerHeader::TerHeader() : Size(256), XPoints(257), YPoints(257) {
    SetTag(TerragenHeader, "TERRAGENTERRAIN SIZE");
}

void TerHeader::FillTags() {
    using namespace std::string_view_literals;
    SetTag(TerragenHeader, "TERRAGENTERRAIN SIZE"sv);
    SetTag(XptsTag, "\0\0XPTS"sv);
    SetTag(YptsTag, "\0\0YPTS"sv);
    SetTag(ScalTag, "\0\0SCAL"sv);
    SetTag(CradTag, "CRAD"sv);
    SetTag(CrvmTag, "CRVM"sv);
    SetTag(AltwTag, "\0\0ALTW"sv);
}

void TerHeader::Append(ByteWriter& writer) const {
    std::apply([&writer](const auto&... field) { (writer.Put(field), ...); }, Fields(*this));
}

void CheckScales(float ScaleT, float CRAD, const std::string& name) {
    if (!std::isfinite(ScaleT) || !std::isfinite(CRAD))
        throw Fault(name + " is damaged: its metres per point (" + ShortestText(ScaleT) +
                    ") or its planet radius (" + ShortestText(CRAD) + ") is no number");
}

TerHeader TerHeader::Read(const ByteReader& reader) {
    TerHeader header;
    std::size_t offset = 0;
    const auto take = [&](auto& field) {
        field = reader.ValueAt<std::decay_t<decltype(field)>>(offset);
        offset += sizeof field;
    };
    std::apply([&take](auto&... field) { (take(field), ...); }, Fields(header));
    return header;
}

}  // namespace quillbrand
