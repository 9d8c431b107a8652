#include <QDir>
#include <QLineEdit>
#include <QRadioButton>

#include "tests/ui/WindowFixture.h"
#include "ui/controls/Icons.h"
#include "ui/dialogs/dlgGenModify.h"
#include "ui/dialogs/dlgPreview.h"
#include "ui/dialogs/dlgSaveAs.h"
#include "ui/dialogs/dlgSavePerlinsetNew.h"
#include "ui/dialogs/frmAbout.h"

namespace quillbrand {
namespace {

void ClickIn(QWidget& dialog, const char* name) {
    auto* control = dialog.findChild<QWidget*>(name);
    ASSERT_NE(control, nullptr) << name;
    QTest::mouseClick(control, Qt::LeftButton);
}

/// How many pixels are more than half covered; each of them must have the colour.
int DrawnPixels(const QImage& picture, const QColor& colour) {
    int drawn = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            if (pixel.alpha() < 128)
                continue;
            ++drawn;
            EXPECT_NEAR(pixel.red(), colour.red(), 2);
            EXPECT_NEAR(pixel.green(), colour.green(), 2);
            EXPECT_NEAR(pixel.blue(), colour.blue(), 2);
        }
    return drawn;
}

TEST(ModifyDialog, GivesTheModeThatIsTicked) {
    dlgGenModify dialog(ModifyModes::Division);
    dialog.show();
    EXPECT_EQ(dialog.Mode(), ModifyModes::Division);
    ClickIn(dialog, "optModifyTerrain6");
    ClickIn(dialog, "OKButton");
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.Mode(), ModifyModes::lowest);
}

TEST(ModifyDialog, KeepsAModeThatHasNoOption) {
    for (const int mode : {0, 17}) {
        dlgGenModify dialog(mode);
        for (const auto* option : dialog.findChildren<QRadioButton*>())
            EXPECT_FALSE(option->isChecked()) << option->objectName().toStdString();
        EXPECT_EQ(dialog.Mode(), mode);
    }
}

TEST(Dialogs, CloseByEscape) {
    dlgGenModify modify(ModifyModes::Add);
    dlgPreview preview;
    dlgSaveAs saveAs;
    frmAbout about;
    for (QDialog* dialog : std::initializer_list<QDialog*>{&modify, &preview, &saveAs, &about}) {
        dialog->show();
        QTest::keyClick(dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog->isVisible()) << dialog->objectName().toStdString();
    }
    EXPECT_EQ(modify.result(), QDialog::Rejected);
    EXPECT_EQ(saveAs.SaveType, 0);
}

TEST(PreviewDialog, ClosesByALeftClickOnThePictureOnly) {
    dlgPreview preview;
    preview.show();
    auto* picture = preview.findChild<QWidget*>("Picture1");
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton})
        QTest::mouseClick(picture, button);
    EXPECT_TRUE(preview.isVisible());
    QTest::mouseClick(picture, Qt::LeftButton);
    EXPECT_FALSE(preview.isVisible());
}

TEST(SaveAsDialog, GivesTheTypeAndOffersOnlyWhatCanBeWritten) {
    dlgSaveAs dialog;
    dialog.show();
    for (const char* name : {"cmdBMP", "cmdBMPvariable"}) {
        ClickIn(dialog, name);
        EXPECT_TRUE(dialog.isVisible()) << name;
    }
    ClickIn(dialog, "OKButton");
    EXPECT_EQ(dialog.SaveType, 1);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST(AboutWindow, ClosesAtOnceByAClickAndByItselfAsASplash) {
    frmAbout about;
    about.show();
    QTest::mouseClick(&about, Qt::LeftButton);
    EXPECT_FALSE(about.isVisible());
    about.ShowAsSplash();
    EXPECT_TRUE(about.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !about.isVisible(); }, 1500));
}

TEST(ThemedIcons, TakeTheColoursOfThePaletteAndPaleWhenDisabled) {
    const QColor normal(10, 200, 30);
    const QColor disabled(90, 91, 92);
    QPalette palette;
    palette.setColor(QPalette::Active, QPalette::ButtonText, normal);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, disabled);
    EXPECT_TRUE(ThemedIcon("no such drawing", palette).isNull());
    for (QString name : QDir(":/icons").entryList({"*.svg"})) {
        name.chop(4);
        if (name == "quillbrand")
            continue;
        SCOPED_TRACE(name.toStdString());
        const QIcon icon = ThemedIcon(name, palette);
        for (const int side : {24, 48}) {
            const QSize size(side, side);
            EXPECT_EQ(icon.pixmap(size).size(), size);
            EXPECT_GT(DrawnPixels(icon.pixmap(size).toImage(), normal), side / 2);
            const QPixmap pale = icon.pixmap(size, QIcon::Disabled);
            EXPECT_GT(DrawnPixels(pale.toImage(), disabled), side / 2);
        }
    }
}

using PerlinSetDialog = WindowFixture;

TEST_F(PerlinSetDialog, SavesUnderTheTrimmedNameAndCloses) {
    ASSERT_TRUE(StartWindow());
    Produce("321");
    dlgSavePerlinsetNew dialog(*window_);
    dialog.show();
    QTest::keyClicks(dialog.findChild<QLineEdit*>("Text1"), " Hill ");
    {
        ModalUser user({PressEscape()});
        ClickIn(dialog, "OKButton");
        EXPECT_TRUE(dialog.isVisible()) << "a cancelled file dialog does nothing";
    }
    ModalUser user({[&](QWidget* modal) {
        EXPECT_EQ(modal->windowTitle(), "PerlinSets save ...");
        EXPECT_EQ(modal->findChild<QLineEdit*>("fileNameEdit")->text(), "Hill");
        ChoosePath(folder_ / "Hill")(modal);
    }});
    ClickIn(dialog, "OKButton");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(session_.TerrainBusy);
    const std::string file = TextOf(folder_ / "Hill.QPS");
    EXPECT_EQ(file.substr(0, 31), "QUILLBRAND PERLINSET NAME Hill ");
    EXPECT_EQ(file.size(), 61 + 2 * 267 * 267);
}

TEST_F(PerlinSetDialog, StaysOpenAfterAFault) {
    ASSERT_TRUE(StartWindow());
    Produce("321");
    dlgSavePerlinsetNew dialog(*window_);
    dialog.show();
    ModalUser user({ChoosePath("/proc/nowhere.QPS"), Press("OK")});
    ClickIn(dialog, "OKButton");
    ASSERT_EQ(user.seen.size(), 1);
    EXPECT_TRUE(user.seen[0].startsWith("Sichere Perlinset Neu: "));
    EXPECT_TRUE(user.seen[0].contains("nowhere.QPS")) << user.seen[0].toStdString();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(session_.TerrainBusy);
}

}  // namespace
}  // namespace quillbrand
