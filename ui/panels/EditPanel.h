#pragma once

#include <QWidget>

#include "ui/Workplace.h"

namespace quillbrand {

class PictureBox;

/// The tab "Edit": the mask's entry, the pen's readings, and the sliders of pens and tools. Its
/// functions are not built yet, so every control is disabled.
class EditPanel : public QWidget {
    Q_OBJECT

  public:
    explicit EditPanel(Workplace& workplace, QWidget* parent = nullptr);

    /// The colour of the swatch of the pen height.
    void SetSwatch(QColor colour);

  private:
    static QWidget* BuildMaskFrame();
    QWidget* BuildInfoFrame();
    static QWidget* BuildPenFrame();

    PictureBox* Picture2_ = nullptr;
};

}  // namespace quillbrand
