#include "ui/controls/Icons.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>
#include <utility>

/// Keeps the linker from leaving the drawings out of a program that links this library. The macro
/// declares a function of the global namespace.
static void KeepDrawings() {
    Q_INIT_RESOURCE(icons);
}

namespace quillbrand {

namespace {

/// A drawing whose "currentColor" becomes the palette's colour of the state it is asked for.
class ThemedIconEngine : public QIconEngine {
  public:
    ThemedIconEngine(QByteArray drawing, QPalette palette)
        : drawing_(std::move(drawing)), palette_(std::move(palette)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor colour = palette_.color(group, QPalette::ButtonText);
        QByteArray tinted = drawing_;
        tinted.replace("currentColor", colour.name().toLatin1());
        QSvgRenderer(tinted).render(painter, QRectF(rect));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new ThemedIconEngine(*this); }

  private:
    QByteArray drawing_;
    QPalette palette_;
};

}  // namespace

QIcon ThemedIcon(const QString& name, const QPalette& palette) {
    KeepDrawings();
    QFile file(QStringLiteral(":/icons/") + name + QStringLiteral(".svg"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QIcon(new ThemedIconEngine(file.readAll(), palette));
}

}  // namespace quillbrand
