#include "base/Spans.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace quillbrand {

namespace {

bool IsBefore(const Span& a, const Span& b) {
    return std::tie(a.y, a.left) < std::tie(b.y, b.left);
}

/// Sorts, and joins what overlaps or touches.
void Join(Spans& spans) {
    if (!std::is_sorted(spans.begin(), spans.end(), IsBefore))
        std::sort(spans.begin(), spans.end(), IsBefore);
    std::size_t last = 0;
    for (std::size_t i = 1; i < spans.size(); ++i) {
        if (spans[i].y == spans[last].y && spans[i].left <= spans[last].right + 1)
            spans[last].right = std::max(spans[last].right, spans[i].right);
        else
            spans[++last] = spans[i];
    }
    if (!spans.empty())
        spans.resize(last + 1);
}

}  // namespace

Spans RoundBrush(int width) {
    Spans rows;
    // In halves of a pixel, from the disc's centre.
    for (int i = 0; i < width; ++i) {
        const int y = 2 * i - (width - 1);
        int x = width - 1;
        while (x * x + y * y > width * width)
            x -= 2;
        const int left = (width - 1 - x) / 2;
        rows.push_back({i - width / 2, left - width / 2, width - 1 - left - width / 2});
    }
    return rows;
}

Spans FlatBrush(int width, bool isColumn) {
    const int first = -(width / 2);
    if (!isColumn)
        return {{0, first, first + width - 1}};
    Spans rows;
    for (int i = 0; i < width; ++i)
        rows.push_back({first + i, 0, 0});
    return rows;
}

Spans Brushed(const Spans& trace, const Spans& brush, const QRect& clip) {
    Spans covered;
    covered.reserve(trace.size());
    for (const Span& run : trace)
        for (const Span& row : brush) {
            const Span span{run.y + row.y, std::max(run.left + row.left, clip.left()),
                            std::min(run.right + row.right, clip.right())};
            if (span.y >= clip.top() && span.y <= clip.bottom() && span.left <= span.right)
                covered.push_back(span);
        }
    Join(covered);
    return covered;
}

Spans Without(const Spans& spans, const Spans& others) {
    Spans rest;
    auto other = others.begin();
    for (Span span : spans) {
        while (other != others.end() &&
               std::tie(other->y, other->right) < std::tie(span.y, span.left))
            ++other;
        // One of the others may reach into the next span as well.
        for (auto hole = other;
             hole != others.end() && hole->y == span.y && hole->left <= span.right; ++hole) {
            if (hole->left > span.left)
                rest.push_back({span.y, span.left, hole->left - 1});
            span.left = hole->right + 1;
        }
        if (span.left <= span.right)
            rest.push_back(span);
    }
    return rest;
}

QRect Around(const Spans& spans) {
    QRect around;
    for (const Span& span : spans)
        around |= QRect(span.left, span.y, span.right - span.left + 1, 1);
    return around;
}

}  // namespace quillbrand
