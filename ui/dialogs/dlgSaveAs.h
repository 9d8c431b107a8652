#pragma once

#include <QDialog>

namespace quillbrand {

/// Asks for the type of file to save.
class dlgSaveAs : public QDialog {
    Q_OBJECT

  public:
    explicit dlgSaveAs(QWidget* parent = nullptr);

    /// 1 TER, 2 bitmap, 3 bitmap of variable size; 0 when the user cancelled.
    int SaveType = 0;

  private:
    void Choose(int type);
};

}  // namespace quillbrand
