// make-erosion-picture: writes the picture that the river erosion adds to terrains.

#include <QFileInfo>
#include <cstdio>
#include <exception>

#include "data/output/WriteFile.h"
#include "data/river/RiverPicture.h"

namespace {

/// What the sampling of the effect is laid out for.
constexpr int pictureSide = 1025;

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: make-erosion-picture FILE\n", stderr);
        return 2;
    }
    try {
        const QFileInfo file(QString::fromLocal8Bit(argv[1]));
        quillbrand::WriteFile(
            file.dir(), file.fileName().toStdString(),
            quillbrand::EncodePng(quillbrand::river::MakeRiverPicture(pictureSide)));
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "make-erosion-picture: %s\n", fault.what());
        return 1;
    }
    return 0;
}
