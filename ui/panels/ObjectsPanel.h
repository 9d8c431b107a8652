#pragma once

#include <QWidget>

#include "ui/Workplace.h"

namespace quillbrand {

/// The tab "Objects": the object layer's commands and the way into the ObjectMaker. Neither is
/// built yet, so every control is disabled.
class ObjectsPanel : public QWidget {
    Q_OBJECT

  public:
    explicit ObjectsPanel(Workplace& workplace, QWidget* parent = nullptr);

  private:
    static QWidget* BuildObjects();
    static QWidget* BuildObjectMaker();
};

}  // namespace quillbrand
