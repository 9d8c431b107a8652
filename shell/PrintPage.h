#pragma once

#include <QImage>
#include <QPageLayout>
#include <array>
#include <string>

#include "base/Files.h"
#include "terrain/Document.h"

class QPagedPaintDevice;

namespace quillbrand {

/// What the print dialog chooses.
struct PrintSettings {
    bool terrain = true;   ///< the picture
    bool settings = true;  ///< the text
    int copies = 1;        ///< none below 1
};

/// What a copy is to the device that is printed on.
enum class CopyAs {
    Job,  ///< a print job of its own, begun and ended on the device: for a printer
    Page  ///< a page of the one document that the device makes
};

/// The lines of the settings text, from top to bottom.
std::array<std::string, 14> PageLines(const Document& document);

/// Prints the page on `device`, once for each copy. `picture` is the height picture as it stands
/// on the screen; it takes half of the paper's shorter side, whatever its points. Paper and margins
/// are the device's. Requires a QGuiApplication, for the fonts. Throws Fault when the device fails;
/// the copies before that one are printed.
void PrintPage(QPagedPaintDevice& device, CopyAs copyAs, const Document& document,
               const QImage& picture, const PrintSettings& settings);

/// The page of the first copy on white, as large as `room` allows: what `paper` will look like.
/// Requires a QGuiApplication.
QImage PagePicture(const Document& document, const QImage& picture, const PrintSettings& settings,
                   const QPageLayout& paper, QSize room);

/// A4 paper, upright, without margins.
QPageLayout WholeA4();

/// The page as a PDF file, with a page for each copy; nothing without copies. A program without
/// windows needs no QGuiApplication of its own for this.
Bytes PrintedPdf(const Document& document, const QImage& picture, const PrintSettings& settings,
                 const QPageLayout& paper = WholeA4());

}  // namespace quillbrand
