#include <QDir>
#include <QLineEdit>

#include "tests/ui/WindowFixture.h"
#include "ui/controls/Icons.h"
#include "ui/dialogs/dlgGenModify.h"
#include "ui/dialogs/dlgPreview.h"
#include "ui/dialogs/dlgSavePerlinsetNew.h"
#include "ui/dialogs/frmAbout.h"

namespace quillbrand {
namespace {

void ClickIn(QWidget& dialog, const char* name) {
    auto* control = dialog.findChild<QWidget*>(name);
    ASSERT_NE(control, nullptr) << name;
    QTest::mouseClick(control, Qt::LeftButton);
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
    QPalette palette;
    palette.setColor(QPalette::Active, QPalette::ButtonText, QColor(255, 0, 0));
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0, 0, 255));
    for (QString name : QDir(":/icons").entryList({"*.svg"})) {
        name.chop(4);
        if (name == "quillbrand")
            continue;
        const QIcon icon = ThemedIcon(name, palette);
        for (const auto& [mode, rgb] :
             {std::pair(QIcon::Normal, qRgb(255, 0, 0)), {QIcon::Disabled, qRgb(0, 0, 255)}}) {
            const QImage drawn = icon.pixmap(QSize(24, 24), mode).toImage();
            int whole = 0;
            for (int i = 0; i < drawn.width() * drawn.height(); ++i)
                whole += drawn.pixel(i % drawn.width(), i / drawn.width()) == rgb;
            EXPECT_GT(whole, 5) << name.toStdString();
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

}  // namespace
}  // namespace quillbrand
