#include <QInputDialog>
#include <QListWidget>

#include "effects/QBTools2.h"
#include "tests/ui/WindowFixture.h"
#include "ui/dialogs/frmElevator.h"
#include "ui/plan/PictureBox.h"

namespace quillbrand {
namespace {

ModalUser::Action AnswerName(const QString& name) {
    return [name](QWidget* modal) {
        auto* dialog = qobject_cast<QInputDialog*>(modal);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->windowTitle() + ": " + dialog->labelText(), "New Set: Setname");
        dialog->setTextValue(name);
        QTest::keyClick(dialog, Qt::Key_Return);
    };
}

class ElevatorWindow : public WindowFixture {
  protected:
    void SetUp() override {
        WindowFixture::SetUp();
        ASSERT_TRUE(StartWindow());
        ShowTab("Effects");
    }

    void Open() {
        elevator_ = std::make_unique<frmElevator>(*window_);
        elevator_->show();
        picture_ = elevator_->findChild<PictureBox*>("PicElevator");
        list_ = elevator_->findChild<QListWidget*>("List1");
    }

    void ClickIn(const char* name) {
        QTest::mouseClick(elevator_->findChild<QWidget*>(name), Qt::LeftButton);
    }

    void ClickSet(int row) {
        const QPoint place = list_->visualItemRect(list_->item(row)).center();
        QTest::mouseClick(list_->viewport(), Qt::LeftButton, {}, place);
    }

    /// A stroke that begins at the first point.
    void Draw(QPoint from, const QList<QPoint>& moves) {
        QTest::mousePress(picture_, Qt::LeftButton, {}, from);
        for (const QPoint place : moves) {
            QMouseEvent move(QEvent::MouseMove, place, picture_->mapToGlobal(place), Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(picture_, &move);
        }
        QTest::mouseRelease(picture_, Qt::LeftButton, {}, moves.isEmpty() ? from : moves.back());
    }

    /// The rows of column x that are black on the screen.
    QList<int> BlackRows(int x) {
        const QImage shown = picture_->grab().toImage();
        QList<int> rows;
        for (int y = 0; y < shown.height(); ++y)
            if (shown.pixelColor(x, y) == QColor(Qt::black))
                rows += y;
        return rows;
    }

    static ElevatorGrid StraightLine() {
        Elevator straight;
        QBTools2::LoadElevatorSet(straight, 0);
        return straight.grid;
    }

    ElevatorGrid& grid() { return session_.tools.elevator.grid; }

    std::unique_ptr<frmElevator> elevator_;
    PictureBox* picture_ = nullptr;
    QListWidget* list_ = nullptr;
};

TEST_F(ElevatorWindow, ClearsTheRowOfAPressAndTheColumnsOfADrag) {
    Open();
    EXPECT_EQ(picture_->size(), QSize(260, 260));
    QTest::mousePress(picture_, Qt::RightButton, {}, {7, 9});
    QTest::mouseMove(picture_, {8, 30});
    EXPECT_TRUE(grid() == StraightLine());

    Draw({100, 120}, {{101, 50}, {101, 60}, {-20, 300}});
    ElevatorGrid expected = StraightLine();
    expected(136, 120) = 0;
    expected(100, 120) = 1;
    expected(101, 155) = 0;
    expected(101, 60) = 1;
    EXPECT_TRUE(grid() == expected) << "what a drag leaves the picture by is limited to it";
    EXPECT_TRUE(BlackRows(100).contains(120));
    EXPECT_EQ(BlackRows(100).back(), 156) << "both marks of the column are drawn";
    EXPECT_EQ(BlackRows(101).front(), 60);
    EXPECT_EQ(BlackRows(0), QList<int>{256});
    EXPECT_EQ(BlackRows(256), QList<int>{0});
}

TEST_F(ElevatorWindow, DrawsFromTheUpperRightCornerOverGrey) {
    Open();
    grid().Clear();
    Draw({40, 200}, {});
    for (int x = 40; x <= 256; ++x) {
        const QList<int> rows = BlackRows(x);
        ASSERT_EQ(rows.size(), 1) << x;
        EXPECT_NEAR(rows[0], (256 - x) * 200 / 216.0, 1) << x;
    }
    EXPECT_EQ(BlackRows(40), QList<int>{200});
    EXPECT_EQ(BlackRows(39), QList<int>{});
    const QImage shown = picture_->grab().toImage();
    EXPECT_EQ(shown.pixelColor(250, 250), QColor(0xC0, 0xC0, 0xC0));
    EXPECT_NE(shown.pixelColor(20, 236), QColor(0xC0, 0xC0, 0xC0)) << "the reference diagonal";
}

TEST_F(ElevatorWindow, AddsSavesAndFetchesSets) {
    Open();
    Draw({30, 210}, {{30, 200}});
    {
        ModalUser user({AnswerName(QString::fromUtf8("Hügel")), PressEscape(), AnswerName(""),
                        AnswerName(QString::fromUtf8("Δ")), Press("OK")});
        for (int i = 0; i < 4; ++i)
            ClickIn("cmdAddElevatorSet");
        EXPECT_TRUE(user.IsDone());
        EXPECT_EQ(user.seen.size(), 1) << "only for letters that cannot be stored";
    }
    ASSERT_EQ(list_->count(), 3);
    EXPECT_EQ(list_->item(1)->text(), QString::fromUtf8("Hügel"));
    EXPECT_EQ(list_->currentRow(), 0);
    EXPECT_EQ(TextOf(folder_ / "Elevator.dat").substr(0, 20), "H\xfcgel" + std::string(15, ' '));
    EXPECT_EQ(Contents(folder_ / "Elevator.dat").size(), 2 * 277);

    ClickIn("cmdReset");
    EXPECT_TRUE(grid() == StraightLine());
    EXPECT_EQ(BlackRows(30), QList<int>{226});
    ClickSet(1);
    EXPECT_EQ(session_.tools.elevator.ElevatorSetIndex, 1);
    EXPECT_EQ(grid().FirstMark(30), 200);
    Draw({31, 201}, {{31, 190}});
    ClickIn("cmdElevatorSave");
    ClickIn("cmdReset");
    ClickSet(1);
    EXPECT_EQ(grid().FirstMark(31), 190) << "a click on the chosen set fetches it again";

    Open();
    ASSERT_EQ(list_->count(), 3);
    EXPECT_EQ(list_->currentRow(), 1);
    EXPECT_EQ(list_->item(1)->text(), QString::fromUtf8("Hügel").leftJustified(20));
}

TEST_F(ElevatorWindow, ArmsByOkAndByNothingElse) {
    const auto draw = [this](QWidget* modal) {
        EXPECT_EQ(modal->windowTitle(), "Elevator shift");
        EXPECT_FALSE(grid().IsArmed()) << "never while the window is open";
        picture_ = modal->findChild<PictureBox*>("PicElevator");
        Draw({9, 9}, {});
    };
    const auto close = [](QWidget* modal) { modal->close(); };
    for (const auto& leave :
         {Press("OK"), Press("Cancel"), PressEscape(), ModalUser::Action(close)}) {
        ModalUser user({Press("OK"), draw, leave});
        Click("cmdElevatorPar");
        ASSERT_EQ(user.seen.size(), 1);
        EXPECT_TRUE(user.seen[0].contains("Elevator.dat")) << "it is missing";
        const bool isFirst = grid().IsArmed();
        EXPECT_EQ(grid()(9, 9), isFirst);
        grid().Arm(false);
        EXPECT_EQ(grid() == StraightLine(), !isFirst);
        grid().Arm(true);
    }
}

}  // namespace
}  // namespace quillbrand
