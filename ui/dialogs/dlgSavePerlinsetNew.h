#pragma once

#include <QDialog>

#include "ui/Workplace.h"

class QLineEdit;

namespace quillbrand {

/// Asks for a name and saves the terrain as a Perlin set of that name.
class dlgSavePerlinsetNew : public QDialog {
    Q_OBJECT

  public:
    explicit dlgSavePerlinsetNew(Workplace& workplace);

  private:
    void OKButton_Click();
    void SavePerlinSet();

    Workplace& workplace_;
    QLineEdit* Text1_;
};

}  // namespace quillbrand
