#pragma once

#include <QWidget>

#include "ui/Workplace.h"

class QCheckBox;
class QLabel;
class QSlider;

namespace quillbrand {

class PictureBox;

/// `PicZ`: the cross-section that takes the plan view's place, with a thumbnail of the plan, the
/// sliders that move it and the colour bar.
class ZViewPanel : public QWidget {
    Q_OBJECT

  public:
    explicit ZViewPanel(Workplace& workplace, QWidget* parent = nullptr);

    /// Shows the section that `sldXView` is at; `plan` becomes the thumbnail. The heights must be
    /// stretched to the full range. A flat terrain is left again, with a message.
    void Open(const Picture& plan);

    /// The ends of the height scale as the user sees them elsewhere, in metres.
    void SetAltitudes(const QString& low, const QString& high);

  signals:
    /// The user wants the section drawn anew (`PicZView_Click`, `chkRealViewZ_Click`).
    void Reopen();

    /// The terrain is flat: back to the plan view.
    void Leave();

    /// The mouse over the thumbnail, in grid units.
    void ThumbnailMouseMove(QPointF place);

  private:
    QWidget* BuildSection();
    QLayout* BuildPosition();
    QLayout* BuildWords();
    void ConnectControls();
    QWidget* BuildColourTable();
    void DrawColourBar();

    /// Draws the section at a slider's position; `axis` 1 cuts a row, 0 a column.
    void ZView(int position, int axis);

    /// The same when a slider has moved.
    void Move(int position, int axis);

    Workplace& workplace_;
    PictureBox* frmZView_;
    PictureBox* PicZView_;
    PictureBox* PicColor_;
    QSlider* sldXView_;
    QSlider* SldYView_;
    QCheckBox* chkRealViewZ_;
    QLabel* lblZhigh_;
    QLabel* lblZlow_;
    QLabel* lblViewFrom_;
    QLabel* lblColTblMax_;
    QLabel* lblColTblMin_;
    QString low_;
    QString high_;
};

}  // namespace quillbrand
