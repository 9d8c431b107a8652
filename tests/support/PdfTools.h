#pragma once

#include <QImage>
#include <QRectF>
#include <filesystem>
#include <string>
#include <vector>

/// What stands in a PDF file, as the tools of poppler-utils read it back. Each function throws when
/// the tool fails.
namespace quillbrand {

/// The lines of text that are not blank, runs of blanks as one.
std::string PdfText(const std::filesystem::path& pdf);

/// A page, counted from 1, drawn with `resolution` pixels per inch.
QImage PdfPage(const std::filesystem::path& pdf, int page, int resolution);

/// The pictures of all pages, in their own points.
std::vector<QImage> PdfPictures(const std::filesystem::path& pdf);

/// Where the first word that is `word` stands, in points from the upper left corner of the page;
/// empty when it does not.
QRectF WordBox(const std::filesystem::path& pdf, int page, const std::string& word);

}  // namespace quillbrand
