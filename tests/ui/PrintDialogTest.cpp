#include <QComboBox>
#include <QLineEdit>

#include "tests/support/PdfTools.h"
#include "tests/ui/WindowFixture.h"
#include "ui/dialogs/dlgPrint.h"
#include "ui/plan/PictureBox.h"

namespace quillbrand {
namespace {

class PrintDialog : public WindowFixture {
  protected:
    void SetUp() override {
        WindowFixture::SetUp();
        ASSERT_TRUE(StartWindow());
        Produce("4711");
    }

    /// What the tool bar's button leads to, with `actions` in the windows that it opens.
    QStringList Print(QList<ModalUser::Action> actions) {
        ModalUser user(std::move(actions));
        ClickTool("Print");
        EXPECT_TRUE(user.IsDone());
        return user.seen;
    }

    /// Chooses the file, which is the last of the printers, for the pages to go to.
    static ModalUser::Action SetUpFile(const std::filesystem::path& file) {
        return [file](QWidget* modal) {
            EXPECT_EQ(modal->windowTitle(), "Setting Printer");
            auto* printers = modal->findChild<QComboBox*>("printers");
            printers->setCurrentIndex(printers->count() - 1);
            modal->findChild<QLineEdit*>("filename")
                ->setText(QString::fromStdString(file.string()));
            Press("OK")(modal);
        };
    }

    std::filesystem::path pdf_ = folder_ / "page.pdf";
};

TEST_F(PrintDialog, PrintsThePlanViewAsItStandsOnTheScreen) {
    auto* picture = Find<PictureBox>("Picture1");
    picture->EditRaster().Row(3)[5] = qRgb(1, 2, 3);
    picture->RasterChanged();
    EXPECT_EQ(Print({Press("Printer..."), PressEscape(), Press("Printer..."), SetUpFile(pdf_),
                     Press("Print")}),
              QStringList());
    const auto pictures = PdfPictures(pdf_);
    ASSERT_EQ(pictures.size(), 1u);
    EXPECT_TRUE(pictures[0] == picture->grab().toImage().convertToFormat(QImage::Format_RGB32));
    EXPECT_NE(PdfText(pdf_).find("Size :257 x 257 Pixel"), std::string::npos);
}

TEST_F(PrintDialog, PrintsAndShowsWhatIsTickedOnceForEachCopy) {
    dlgPrint dialog(*window_, Find<PictureBox>("Picture1")->grab().toImage());
    const QImage& shown = dialog.findChild<PictureBox*>("PicPrint")->Raster().Image();
    const QImage both = shown;
    dialog.show();
    QTest::mouseClick(dialog.findChild<QWidget*>("Check10"), Qt::LeftButton);
    EXPECT_FALSE(shown == both);
    dialog.Printer().setOutputFileName(QString::fromStdString(pdf_.string()));
    dialog.Printer().setCopyCount(2);
    Press("Print")(&dialog);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(PdfPictures(pdf_).empty());
    EXPECT_FALSE(WordBox(pdf_, 2, "Note").isEmpty());
}

}  // namespace
}  // namespace quillbrand
