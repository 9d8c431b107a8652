#include "ui/dialogs/dlgPreview.h"

#include <QVBoxLayout>

#include "editor/HeightPicture.h"
#include "ui/controls/Controls.h"
#include "ui/plan/PictureBox.h"

namespace quillbrand {

namespace {

/// Two pixels for each point of the larger preview.
constexpr int pictureSide = 514;

}  // namespace

dlgPreview::dlgPreview(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("dlgPreview"));
    setWindowTitle(QStringLiteral("Preview"));
    Picture1_ = Named(new PictureBox, "Picture1");
    Picture1_->setFixedSize(pictureSide, pictureSide);
    auto* OKButton = MakeButton("OKButton", "&close");
    OKButton->setDefault(true);

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(gap);
    layout->addWidget(Picture1_);
    layout->addWidget(OKButton, 0, Qt::AlignHCenter);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    connect(Picture1_, &PictureBox::Clicked, this, &QDialog::accept);
    connect(OKButton, &QPushButton::clicked, this, &QDialog::accept);
}

void dlgPreview::ShowHeights(clsTerrain& preview, int paletteRow, Host& host) {
    Picture raster;
    BuildHeightPicture(raster, preview, paletteRow, host);
    Picture1_->SetRaster(std::move(raster));
}

}  // namespace quillbrand
