#pragma once

#include <QIcon>
#include <QPalette>
#include <QString>

namespace quillbrand {

/// The drawing `name` of the program's own icons, its strokes in the button text colours of
/// `palette`, drawn anew for each size. A name that does not exist gives an empty icon.
QIcon ThemedIcon(const QString& name, const QPalette& palette);

}  // namespace quillbrand
