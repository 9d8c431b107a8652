#pragma once

#include <QDialog>

class QButtonGroup;

namespace quillbrand {

/// Asks how a new relief is to meet the heights that are there.
class dlgGenModify : public QDialog {
    Q_OBJECT

  public:
    /// Ticks `mode`; a mode that has no option leaves all of them off.
    explicit dlgGenModify(int mode, QWidget* parent = nullptr);

    /// The lowest mode that is ticked; without a tick the one that was given.
    int Mode() const;

  private:
    QWidget* BuildOptions();

    QButtonGroup* optModifyTerrain_;
    int given_;
};

}  // namespace quillbrand
