#pragma once

#include <QWidget>

#include "ui/Workplace.h"
#include "ui/plan/EditState.h"

class QCheckBox;
class QLabel;
class QPushButton;
class QSlider;

namespace quillbrand {

class LabelledSlider;
class PictureBox;

/// The tab "Edit": the mask's entry, the pen's readings, and the sliders of pens and tools.
class EditPanel : public QWidget {
    Q_OBJECT

  public:
    explicit EditPanel(Workplace& workplace, QWidget* parent = nullptr);

    /// What pens and tools are set to.
    const EditState& State() const { return state_; }

    /// The window's own start: readings and swatch of the pen's height.
    void Form_Load();

    /// What the fields of the height window show, in metres, for the fine tuning's reading.
    void SetAltitudes(double low, double high);

    /// Reads the pen's height anew, as after a move of its slider: commands end with it.
    void Slider2_Change();

    /// A change of tab: the swatch shows the middle height.
    void ShowMiddle();

    void ChooseShape(PenShape shape) { state_.pen.shape = shape; }

    /// Makes the pen one point larger or smaller, as often as `steps` says.
    void ChangeSize(int steps);

    /// The pen is taken up or put down.
    void TakePen();
    void PutPenDown();

    /// `PickActive` with its check box, and alone.
    void TickPick(bool pick);
    void ArmPick(bool pick) { state_.PickActive = pick; }

    /// Takes over the height under the mouse.
    void Pick(const MousePoint& mouse);

    /// `Command1`: the pen paints white.
    void PaintWhite();

  signals:
    /// `Command1`.
    void WhiteChosen();

    /// The pen has another size.
    void SizeChanged();

  private:
    QWidget* BuildMaskFrame();
    QWidget* BuildInfoFrame();
    QWidget* BuildPenFrame();
    QLayout* BuildFineReading();
    void ConnectControls();

    void Slider1_Change();
    void sliderFineHeight_Change();
    void ShowSwatch(Colour colour);
    void ShowSwatchOf(int height);

    Workplace& workplace_;
    EditState state_;
    double lowest_ = 0;
    double highest_ = 0;
    PictureBox* Picture2_;
    QPushButton* Command1_;
    QLabel* lblPickHeigh_;
    QCheckBox* chkPick_;
    QCheckBox* chkEditSnap_;
    QSlider* Slider1_;
    QLabel* Label39_;
    QSlider* Slider2_;
    QLabel* lblHeight_;
    QSlider* sliderFineHeight_;
    QLabel* lblFineHeight_;
    QPushButton* cmdResetFineHeight_;
    QSlider* sldDepthEffects_;
};

}  // namespace quillbrand
