#include "ui/dialogs/frmAbout.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QTimer>
#include <QVBoxLayout>

#include "ui/controls/Controls.h"
#include "ui/controls/Icons.h"

namespace quillbrand {

namespace {

constexpr int shownMs = 1400;
constexpr int emblemSide = 112;

QLabel* MakeLine(const QString& text, double scale, QFont::Weight weight = QFont::Normal) {
    auto* line = new QLabel(text);
    QFont font = line->font();
    font.setPointSizeF(font.pointSizeF() * scale);
    font.setWeight(weight);
    line->setFont(font);
    return line;
}

}  // namespace

frmAbout::frmAbout(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(QStringLiteral("About Quillbrand"));
    auto* emblem = new QLabel;
    emblem->setPixmap(ThemedIcon(QStringLiteral("quillbrand"), palette())
                          .pixmap(QSize(emblemSide, emblemSide), devicePixelRatioF()));
    auto* words = new QVBoxLayout;
    words->setSpacing(gap / 2);
    words->addStretch();
    words->addWidget(MakeLine(QStringLiteral("Quillbrand"), 2.2, QFont::DemiBold));
    auto* lblVersion =
        MakeLine(QStringLiteral("Version %1").arg(QCoreApplication::applicationVersion()), 1.0);
    lblVersion->setObjectName(QStringLiteral("lblVersion"));
    words->addWidget(lblVersion);
    words->addSpacing(gap);
    words->addWidget(MakeLine(QStringLiteral("An editor for terrain heightfields."), 1.0));
    words->addStretch();

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(3 * gap, 2 * gap, 4 * gap, 2 * gap);
    layout->setSpacing(3 * gap);
    layout->addWidget(emblem);
    layout->addLayout(words);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void frmAbout::ShowAsSplash() {
    setWindowFlag(Qt::FramelessWindowHint);
    open();
}

void frmAbout::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    auto* timer = new QTimer(this);
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, this, &QDialog::accept);
    timer->start(shownMs);
}

void frmAbout::mousePressEvent(QMouseEvent*) {
    accept();
}

void frmAbout::keyPressEvent(QKeyEvent*) {
    accept();
}

}  // namespace quillbrand
