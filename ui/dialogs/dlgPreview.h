#pragma once

#include <QDialog>

#include "base/Host.h"
#include "terrain/clsTerrain.h"

namespace quillbrand {

class PictureBox;

/// Shows what the generator would make; a click on the picture closes it.
class dlgPreview : public QDialog {
    Q_OBJECT

  public:
    explicit dlgPreview(QWidget* parent = nullptr);

    /// Draws the heights in the colours of palette strip `paletteRow`.
    void ShowHeights(clsTerrain& preview, int paletteRow, Host& host);

  private:
    PictureBox* Picture1_;
};

}  // namespace quillbrand
