#include "tests/support/PdfTools.h"

#include <QRegularExpression>
#include <algorithm>
#include <cstdio>
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
    const auto output = QString::fromStdString(OutputOf("pdftotext -layout " + Quoted(pdf) + " -"));
    std::string text;
    for (const QString& line : output.split('\n'))
        if (!line.trimmed().isEmpty())
            text += line.simplified().toStdString() + "\n";
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
    static const QString corners =
        QStringLiteral("xMin=\"(.+)\" yMin=\"(.+)\" xMax=\"(.+)\" yMax=\"(.+)\">%1<");
    const auto match = QRegularExpression(corners.arg(QString::fromStdString(word)))
                           .match(QString::fromStdString(output));
    if (!match.hasMatch())
        return {};
    const auto corner = [&](int first) {
        return QPointF(match.captured(first).toDouble(), match.captured(first + 1).toDouble());
    };
    return {corner(1), corner(3)};
}

}  // namespace quillbrand
