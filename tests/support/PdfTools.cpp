#include "tests/support/PdfTools.h"

#include <algorithm>
#include <cstdio>
#include <regex>
#include <sstream>
#include <stdexcept>

#include "tests/support/TemporaryFolder.h"

namespace quillbrand {

namespace {

namespace fs = std::filesystem;

std::string Quoted(const fs::path& path) {
    return "'" + path.string() + "'";
}

std::string OutputOf(const std::string& command) {
    FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr)
        throw std::runtime_error("cannot run " + command);
    std::string output;
    for (int c = 0; (c = std::fgetc(pipe)) != EOF;)
        output += static_cast<char>(c);
    if (pclose(pipe) != 0)
        throw std::runtime_error(command + " failed (package poppler-utils)");
    return output;
}

/// The pictures that `command`, which takes the beginning of their names, makes.
std::vector<QImage> PicturesOf(const std::string& command) {
    const TemporaryFolder folder;
    OutputOf(command + " " + Quoted(folder / "p"));
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(folder.Path()))
        files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    std::vector<QImage> pictures;
    pictures.reserve(files.size());
    for (const fs::path& file : files)
        pictures.push_back(
            QImage(QString::fromStdString(file.string())).convertToFormat(QImage::Format_RGB32));
    return pictures;
}

}  // namespace

std::string PdfText(const fs::path& pdf) {
    std::istringstream output(OutputOf("pdftotext -layout " + Quoted(pdf) + " -"));
    std::string text;
    for (std::string line; std::getline(output, line);) {
        std::istringstream words(line);
        std::string joined;
        for (std::string word; words >> word;)
            joined += (joined.empty() ? "" : " ") + word;
        text += joined.empty() ? "" : joined + "\n";
    }
    return text;
}

QImage PdfPage(const fs::path& pdf, int page, int resolution) {
    const std::string number = std::to_string(page);
    return PicturesOf("pdftoppm -f " + number + " -l " + number + " -r " +
                      std::to_string(resolution) + " " + Quoted(pdf))
        .at(0);
}

std::vector<QImage> PdfPictures(const fs::path& pdf) {
    return PicturesOf("pdfimages " + Quoted(pdf));
}

QRectF WordBox(const fs::path& pdf, int page, const std::string& word) {
    const std::string number = std::to_string(page);
    const std::string output =
        OutputOf("pdftotext -bbox -f " + number + " -l " + number + " " + Quoted(pdf) + " -");
    const std::regex box(
        "xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" "
        "yMax=\"([0-9.]+)\">" +
        word + "<");
    std::smatch match;
    if (!std::regex_search(output, match, box))
        return {};
    return {QPointF(std::stod(match[1]), std::stod(match[2])),
            QPointF(std::stod(match[3]), std::stod(match[4]))};
}

}  // namespace quillbrand
