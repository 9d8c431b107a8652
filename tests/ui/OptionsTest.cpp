#include <QAbstractItemView>
#include <QAction>
#include <QColorDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTabWidget>

#include "tests/ui/WindowFixture.h"

namespace quillbrand {
namespace {

void ClickIn(QWidget* dialog, const char* name) {
    auto* control = dialog->findChild<QWidget*>(name);
    ASSERT_NE(control, nullptr) << name;
    // An option takes clicks on its mark and words only.
    QTest::mouseClick(control, Qt::LeftButton, {}, QPoint(10, control->height() / 2));
}

QString TextIn(QWidget* dialog, const char* name) {
    return dialog->findChild<QLineEdit*>(name)->text();
}

class OptionsDialog : public WindowFixture {
  protected:
    void Start(const std::string& settings) {
        WriteText(folder_ / "Quillbrand.ini", settings);
        ASSERT_TRUE(StartWindow());
    }

    void Open(const ModalUser::Action& action) {
        ModalUser user({action});
        ClickTool("Eigenschaften");
        EXPECT_TRUE(user.IsDone());
        EXPECT_TRUE(user.seen.isEmpty()) << user.seen.join('\n').toStdString();
    }

    /// Chooses a colour in the dialog behind "select ..", which the window must show before the
    /// key closes it.
    void PickColour(QWidget* options, const QColor& colour, Qt::Key key) {
        ModalUser user({[&](QWidget* modal) {
            qobject_cast<QColorDialog*>(modal)->setCurrentColor(colour);
            EXPECT_EQ(WindowColour(), colour);
            QTest::keyClick(modal, key);
        }});
        ClickIn(options, "cmdSelectColor");
    }

    QColor WindowColour() const { return window_->palette().color(QPalette::Window); }
    std::string Settings() const { return TextOf(folder_ / "Quillbrand.ini"); }
};

TEST_F(OptionsDialog, StoresWhatIsTickedAndLeavesTheRest) {
    Start("; mine\n[Start]\nOptTer=4\nOther=x\n[Terrain]\nDirectory=/hills\n");
    EXPECT_EQ(session_.document.CurrentTerrain.XPoints(), 2049);
    Open([](QWidget* modal) {
        EXPECT_EQ(modal->findChild<QListWidget*>("List1")->currentItem()->text(), "Greyscala");
        for (const char* name : {"Option21", "Option22"})
            EXPECT_FALSE(modal->findChild<QRadioButton*>(name)->isChecked()) << name;
        QTest::keyClick(modal, Qt::Key_Return);
    });
    const QColor colour = WindowColour();
    const int number = ColourOf(colour.red(), colour.green(), colour.blue());
    const std::string rest =
        "BackColor= " + std::to_string(number) + "\n[Terrain]\nDirectory=/hills\n";
    EXPECT_EQ(Settings(), "; mine\n[Start]\nOptTer= 2\nOther=x\noptzoom= 0\ncolor= 0\n" + rest)
        << "the largest size is not known here";
    Open([](QWidget* modal) {
        ClickIn(modal, "Option13");
        ClickIn(modal, "Option22");
        QTest::keyClick(modal->findChild<QWidget*>("List1"), Qt::Key_End);
        ClickIn(modal, "OKButton");
    });
    EXPECT_EQ(Settings(), "; mine\n[Start]\nOptTer= 3\nOther=x\noptzoom= 2\ncolor= 7\n" + rest);
    EXPECT_EQ(session_.settings.ResizeMode, 2);
    EXPECT_EQ(session_.settings.PaletteRow, 7);
    EXPECT_EQ(session_.document.CurrentTerrain.XPoints(), 2049) << "the size is for the next start";
}

TEST_F(OptionsDialog, ColoursTheWindowAtOnceAndBackOnCancel) {
    Start("");
    const QColor before = WindowColour();
    const QColor dark(40, 2, 1);
    Open([&](QWidget* modal) {
        PickColour(modal, dark, Qt::Key_Escape);
        EXPECT_EQ(WindowColour(), before);
        PickColour(modal, dark, Qt::Key_Return);
        EXPECT_EQ(WindowColour(), dark);
        EXPECT_EQ(window_->palette().color(QPalette::WindowText), Qt::white);
        const QImage icon = Find<QAction>("Neu")->icon().pixmap(24).toImage();
        EXPECT_GT(icon.scaled(1, 1, {}, Qt::SmoothTransformation).pixelColor(0, 0).lightness(),
                  200);
        EXPECT_EQ(modal->findChild<QWidget*>("shColor")->palette().color(QPalette::Window), before);
        QTest::keyClick(modal, Qt::Key_Escape);
    });
    EXPECT_EQ(WindowColour(), before);
    EXPECT_FALSE(window_->testAttribute(Qt::WA_SetPalette)) << "the desktop's colours come through";
    EXPECT_EQ(Settings(), "");
    Open([&](QWidget* modal) {
        PickColour(modal, dark, Qt::Key_Return);
        ClickIn(modal, "OKButton");
    });
    EXPECT_EQ(WindowColour(), dark);
    EXPECT_NE(Settings().find("\nBackColor= 66088\n"), std::string::npos) << Settings();
}

TEST_F(OptionsDialog, StaysOpenWhenNothingCanBeStored) {
    Start("");
    session_.settings.IniPath = "/proc/nowhere/Quillbrand.ini";
    Open([](QWidget* modal) {
        ModalUser user({Press("OK"), ChoosePath("/"), Press("OK")});
        ClickIn(modal, "Option21");
        ClickIn(modal, "OKButton");
        EXPECT_TRUE(modal->isVisible());
        modal->findChild<QTabWidget*>()->setCurrentIndex(1);
        ClickIn(modal, "Command2");
        EXPECT_EQ(TextIn(modal, "Text2"), "");
        EXPECT_EQ(user.seen.filter("/proc/nowhere").size(), 2);
        ClickIn(modal, "CancelButton");
    });
    EXPECT_EQ(session_.settings.ResizeMode, 0);
}

TEST_F(OptionsDialog, StoresAFolderAtOnceButNotACancelledOne) {
    Start("[Objects]\nDirectory=/old\n");
    const std::string folder = (folder_ / "PS").string();
    Open([&](QWidget* modal) {
        auto* tabs = modal->findChild<QTabWidget*>();
        QTest::keyClick(tabs, Qt::Key_Tab, Qt::ControlModifier);
        ASSERT_EQ(tabs->tabText(tabs->currentIndex()), "Directories");
        ModalUser user({PressEscape(), ChoosePath(folder), ChoosePath(folder), ChoosePath(folder)});
        ClickIn(modal, "Command2");
        EXPECT_EQ(TextIn(modal, "Text2"), "/old");
        for (const char* name : {"command1", "Command2", "Command3"})
            ClickIn(modal, name);
        for (const char* name : {"Text1", "Text2", "Text3"})
            EXPECT_EQ(TextIn(modal, name).toStdString(), folder);
        ClickIn(modal, "CancelButton");
    });
    EXPECT_EQ(Settings(), "[Objects]\nDirectory=" + folder + "\n\n[Terragen]\ndirectory=" + folder +
                              "\n\n[Terrain]\ndirectory=" + folder + "\n");
}

TEST_F(OptionsDialog, TellsWhichFolderIsSelectedAndGoesBackFromNone) {
    Start("");
    const QString program = QString::fromStdString(folder_.Path().string());
    const auto choose = [&](QWidget* chooser) {
        const auto expectSelected = [&](const QString& folder) {
            EXPECT_EQ(chooser->findChild<QLabel*>("StatusText")->text().toStdString(),
                      ("Sie haben " + folder + " gewählt.").toStdString());
        };
        expectSelected(program);
        auto* name = chooser->findChild<QLineEdit*>("fileNameEdit");
        name->setText(program + "/PS");
        name->setText("/proc/nowhere");
        ModalUser user({Press("OK")});
        Press("Choose")(chooser);
        EXPECT_TRUE(user.seen.value(0).contains("/proc/nowhere"));
        expectSelected(program + "/PS");
        Press("Choose")(chooser);
    };
    Open([&](QWidget* modal) {
        modal->findChild<QTabWidget*>()->setCurrentIndex(1);
        ModalUser user({choose});
        ClickIn(modal, "Command3");
        EXPECT_EQ(TextIn(modal, "Text3"), program + "/PS");
        ClickIn(modal, "CancelButton");
    });
}

TEST_F(OptionsDialog, RegistersAtEachClickOrTellsWhyNot) {
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    // Where no folder can be made, never the real home.
    qputenv("XDG_DATA_HOME", (folder_ / "data").c_str());
    WriteText(folder_ / "data", "no folder");
    Start("");
    Open([&](QWidget* modal) {
        for (int i = 0; i < 2; ++i) {
            ModalUser user({Press("OK")});
            ClickIn(modal, "chkRegTERFile");
            EXPECT_TRUE(user.seen.value(0).contains("data")) << i;
        }
        ClickIn(modal, "CancelButton");
    });
    qputenv("XDG_DATA_HOME", before);
}

}  // namespace
}  // namespace quillbrand
