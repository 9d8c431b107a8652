#include "ui/StatusPanels.h"

#include <QLabel>

namespace quillbrand {

StatusPanels::StatusPanels(QWidget* parent) : QStatusBar(parent) {
    setObjectName(QStringLiteral("sBar"));
    // Shares of the width: size and zoom, TU, raw height, X, Y, metres.
    constexpr std::array shares = {3, 2, 2, 1, 1, 2};
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        panels_[i] = new QLabel(this);
        panels_[i]->setObjectName(QStringLiteral("sBarPanel%1").arg(i + 1));
        panels_[i]->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        panels_[i]->setMargin(2);
        addWidget(panels_[i], shares[i]);
    }
}

void StatusPanels::SetPanel(int panel, const std::string& text) {
    panels_.at(static_cast<std::size_t>(panel - 1))->setText(QString::fromStdString(text));
}

}  // namespace quillbrand
