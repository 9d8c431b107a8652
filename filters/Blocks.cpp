#include <algorithm>

#include "filters/Bodies.h"

namespace quillbrand::mFilterG {

void Mosaic(Job& job) {
    if (job.Level() < 1)
        job.RefuseLevel("from 1");
    const int side = std::min(job.Level(), std::max(job.Width(), job.Height()));
    for (int y = 0; y < job.Height(); ++y) {
        // The first row of a block keeps its left pixels, so it can be read after it has changed.
        const Pixel* source = job.Row(y - y % side);
        Pixel* row = job.Row(y);
        for (int left = 0; left < job.Width(); left += side) {
            const Pixel colour = source[left];
            const int end = std::min(left + side, job.Width());
            for (int x = left; x < end; ++x)
                row[x] = Recoloured(row[x], colour);
        }
        job.RowDone(y);
    }
}

}  // namespace quillbrand::mFilterG
