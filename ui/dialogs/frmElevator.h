#pragma once

#include <QDialog>

#include "ui/Workplace.h"

class QListWidget;
class QPushButton;

namespace quillbrand {

class PictureBox;
struct PlanMouse;

/// Draws the elevator's curve by hand and keeps the sets. "OK" arms the effect; every other way
/// out goes back to the straight line and leaves it disarmed.
class frmElevator : public QDialog {
    Q_OBJECT

  public:
    /// Opens the session's elevator.
    explicit frmElevator(Workplace& workplace);

    /// Shows the window until it is closed, with a message over it where the sets file is not in
    /// order.
    void Run();

    /// Draws the curve into the picture: from the upper right corner to every mark, column by
    /// column to the left.
    void RedrawLine();

    void accept() override;
    void reject() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void BuildWindow();
    QWidget* BuildPicture();
    QLayout* BuildSets();
    void ConnectControls();
    void Form_Load();
    void AddToList(const std::string& name);
    Elevator& TheElevator();

    void List1_Click();
    void PicElevator_MouseDown(const PlanMouse& mouse);
    void PicElevator_MouseMove(const PlanMouse& mouse);
    void cmdAddElevatorSet_Click();
    void cmdElevatorSave_Click();
    void cmdReset_Click();

    Workplace& workplace_;
    QString trouble_;
    PictureBox* PicElevator_;
    QListWidget* List1_;
    QPushButton* cmdAddElevatorSet_;
    QPushButton* cmdElevatorSave_;
    QPushButton* cmdReset_;
    bool choiceTaken_ = false;  ///< of the press in hand
};

}  // namespace quillbrand
