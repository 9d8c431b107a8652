#include "ui/plan/PlanView.h"

#include <QHBoxLayout>
#include <utility>

#include "base/Canvas.h"
#include "editor/HeightPicture.h"
#include "editor/PointTexts.h"
#include "editor/View.h"
#include "ui/dialogs/Messages.h"
#include "ui/plan/PictureBox.h"

namespace quillbrand {

PlanView::PlanView(Workplace& workplace, QWidget* parent)
    : QWidget(parent), workplace_(workplace), Picture1_(new PictureBox) {
    setAutoFillBackground(true);
    QPalette black;
    black.setColor(QPalette::Window, Qt::black);
    setPalette(black);
    Picture1_->setObjectName(QStringLiteral("Picture1"));
    Picture1_->setCursor(Qt::CrossCursor);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(Picture1_, 0, Qt::AlignCenter);
    Picture1_->Add(frame_);
    Picture1_->Add(Pencil_);
    connect(Picture1_, &PictureBox::MouseMove, this,
            [this](const PlanMouse& mouse) { ShowPoint(mouse.place); });
    connect(Picture1_, &PictureBox::DoubleClicked, this, [this](const PlanMouse& mouse) {
        if (mouse.button == Qt::LeftButton)
            Redraw();
    });
}

const Picture& PlanView::Raster() const {
    return Picture1_->Raster();
}

QImage PlanView::PrintPicture() const {
    return Picture1_->Shown();
}

void PlanView::SetBackColor(Colour colour) {
    back_ = colour;
    Picture1_->SetBackColor(ToQColor(colour));
}

void PlanView::Resize(double factor, double limit) {
    Session& session = workplace_.TheSession();
    const int size = session.document.CurrentTerrain.Size();
    double& zoom = session.tools.ViewZoom;
    zoom = NextZoom(zoom, factor, size, limit);
    const int side = PictureSide(zoom, size);
    Picture1_->setFixedSize(side, side);
    Picture1_->SetUnits(size);
    emit PanelText(1, ZoomText(zoom, size));
}

void PlanView::Rebuild() {
    Session& session = workplace_.TheSession();
    BuildHeightPicture(spare_, session.document.CurrentTerrain, session.settings.PaletteRow,
                       workplace_.TheHost());
    spare_ = Picture1_->SetRaster(std::move(spare_));
}

void PlanView::Redraw() {
    WindowHost& host = workplace_.TheHost();
    RunCommand(workplace_.Window(), host, QStringLiteral("Picture redraw"), [this, &host] {
        host.Busy(true);
        host.Status("Picture redraw...");
        ShowOutline({});
        host.Yield();
        Rebuild();
        host.Status("Ready");
        host.Busy(false);
    });
}

void PlanView::ShowPoint(QPointF place) {
    const Session& session = workplace_.TheSession();
    if (session.TerrainBusy)
        return;
    const auto texts = PointTexts(session.document.CurrentTerrain, place.x(), place.y());
    if (!texts)
        return;
    for (std::size_t i = 0; i < texts->size(); ++i)
        emit PanelText(static_cast<int>(i) + 2, (*texts)[i]);
}

void PlanView::Draw(const std::function<QRect(Canvas&)>& draw) {
    const clsTerrain& terrain = workplace_.TheSession().document.CurrentTerrain;
    if (Raster().Width() == 0) {
        Picture plain(terrain.XPoints(), terrain.YPoints());
        plain.Image().fill(PixelOf(back_));
        Picture1_->SetRaster(std::move(plain));
    }
    Canvas canvas(Picture1_->EditRaster());
    canvas.Scale(0, 0, terrain.Size(), terrain.Size());
    Picture1_->RasterChanged(draw(canvas));
}

int PlanView::WidthInRaster(int pixels) const {
    const clsTerrain& terrain = workplace_.TheSession().document.CurrentTerrain;
    const int points = Raster().Width() > 0 ? Raster().Width() : terrain.XPoints();
    return WidthInPoints(pixels, points, Picture1_->width());
}

void PlanView::ShowOutline(const std::optional<PenOutline>& outline) {
    Pencil_.outline = outline;
    Picture1_->OverlayChanged(Pencil_);
}

void PlanView::ShowFrame(const std::optional<Frame>& frame) {
    frame_.frame = frame;
    Picture1_->OverlayChanged(frame_);
}

QPoint PlanView::OnScreen(QPointF place) const {
    return Picture1_->mapToGlobal(Picture1_->InPixels(place)).toPoint();
}

}  // namespace quillbrand
