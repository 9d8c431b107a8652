#include "base/Picture.h"
#include "base/Text.h"
#include "batch/Batch.h"
#include "batch/Command.h"
#include "editor/HeightPicture.h"
#include "shell/PrintPage.h"

namespace quillbrand {

namespace {

KeyType PdfName() {
    return {"a file name ending in .pdf", [](const std::string& text) -> std::optional<Value> {
                if (LowerCase(std::filesystem::path(text).extension().string()) != ".pdf")
                    return std::nullopt;
                return text;
            }};
}

/// Without copies there is nothing to write.
void Print(Batch& batch, const Arguments& given) {
    const PrintSettings settings{.terrain = given.Get<bool>("terrain"),
                                 .settings = given.Get<bool>("settings"),
                                 .copies = given.Get<int>("copies")};
    if (settings.copies == 0)
        return;
    Picture picture;
    if (settings.terrain)
        BuildHeightPicture(picture, batch.session.document.CurrentTerrain,
                           batch.session.settings.PaletteRow, batch.host);
    ReplaceFile(given.Get<std::string>("file"),
                PrintedPdf(batch.session.document, picture.Image(), settings));
}

}  // namespace

std::vector<Command> PrintCommandTable() {
    constexpr int mostCopies = 32767;
    return {
        {"print",
         "writes the print page as PDF, a page for each copy",
         {Key{"file", PdfName()}.Required().Writes(FileKind::Page),
          Key{"terrain", YesNo()}.Default("yes"), Key{"settings", YesNo()}.Default("yes"),
          Key{"copies", WholeNumber(0, mostCopies)}.Default("1")},
         Print},
    };
}

}  // namespace quillbrand
