// make-perlin-sets: writes the shipped Perlin sets, noise pictures and descriptions, into a folder.

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>

#include "data/output/WriteFile.h"
#include "data/perlin/NoisePicture.h"

namespace {

using quillbrand::WriteFile;
using namespace quillbrand::perlin;

/// Room for a window of 129 points.
constexpr int smallestSide = 133;
/// Room for a thousand places, in each direction, of a window of 257 points.
constexpr int standardSide = 1285;
constexpr int largestSide = 4096;

int ReadSide(const QString& text) {
    bool isNumber = false;
    const int side = text.toInt(&isNumber);
    if (!isNumber || side < smallestSide || side > largestSide)
        throw std::runtime_error("--side " + text.toStdString() + ": allowed is " +
                                 std::to_string(smallestSide) + " to " +
                                 std::to_string(largestSide));
    return side;
}

const PerlinSet& ReadSet(const std::string& text) {
    const PerlinSet* set = FindPerlinSet(text);
    if (set == nullptr) {
        std::string known;
        for (const PerlinSet& other : PerlinSets())
            known += std::string("\n  ") + other.name;
        throw std::runtime_error("--set " + text + ": no such set. There are:" + known);
    }
    return *set;
}

void WriteSet(const QDir& folder, const PerlinSet& set, int side) {
    for (int number = 1; number <= pictureCount; ++number)
        WriteFile(folder, PictureFile(set, number),
                  quillbrand::EncodePng(MakeNoisePicture(set, number, side)));
    // Last, so that a set in the program's list has all its pictures.
    WriteFile(folder, std::string(set.file) + ".INI", DescribeSet(set));
}

void Run(const QCommandLineParser& options) {
    if (!options.positionalArguments().isEmpty())
        throw std::runtime_error("unknown argument " +
                                 options.positionalArguments().first().toStdString());
    const QDir folder(options.value("out"));
    if (options.value("out").isEmpty())
        throw std::runtime_error("--out DIR is missing");
    const int side = options.isSet("side") ? ReadSide(options.value("side")) : standardSide;
    const PerlinSet* only =
        options.isSet("set") ? &ReadSet(options.value("set").toStdString()) : nullptr;
    if (!QDir().mkpath(folder.path()))
        throw std::runtime_error("cannot make the folder " + folder.path().toStdString());
    for (const PerlinSet& set : PerlinSets())
        if (only == nullptr || only == &set)
            WriteSet(folder, set, side);
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QCommandLineParser options;
    options.setApplicationDescription("Makes the Perlin sets: noise pictures for the generator.");
    options.addHelpOption();
    options.addOptions({{"out", "Folder to write into; made if it is missing.", "DIR"},
                        {"set", "Only this set, by its name or file stem.", "NAME"},
                        {"side", "Width and height of the pictures in pixels (1285).", "N"}});
    options.process(application);
    try {
        Run(options);
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "make-perlin-sets: %s\n", fault.what());
        return 1;
    }
    return 0;
}
