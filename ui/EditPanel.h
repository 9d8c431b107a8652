#pragma once

#include <QWidget>

#include "ui/Workplace.h"

namespace quillbrand {

/// The tab "Edit": the mask's entry, the pen's readings, and the sliders of pens and tools. Its
/// functions are not built yet, so every control is disabled.
class EditPanel : public QWidget {
    Q_OBJECT

  public:
    explicit EditPanel(Workplace& workplace, QWidget* parent = nullptr);

  private:
    static QWidget* BuildMaskFrame();
    static QWidget* BuildInfoFrame();
    static QWidget* BuildPenFrame();
};

}  // namespace quillbrand
