#include "ui/controls/LabelledSlider.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QRegularExpression>

namespace quillbrand {

LabelledSlider::LabelledSlider(const QString& name, const SliderRange& range, const QString& label,
                               const QString& toolTip, QWidget* parent)
    : QWidget(parent), slider_(new QSlider(Qt::Horizontal)) {
    slider_->setObjectName(name);
    slider_->setRange(range.low, range.high);
    slider_->setValue(range.start);
    slider_->setPageStep(range.bigStep);
    slider_->setToolTip(toolTip);
    slider_->setAccessibleName(label.simplified());
    if (range.ticks > 0) {
        slider_->setTickPosition(QSlider::TicksBelow);
        slider_->setTickInterval(range.ticks);
    }

    auto* words = new QHBoxLayout;
    static const QRegularExpression gap(QStringLiteral(" {2,}"));
    const QStringList groups = label.split(gap, Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < groups.size(); ++i) {
        if (i > 0)
            words->addStretch();
        auto* word = new QLabel(groups[i]);
        word->setBuddy(slider_);
        words->addWidget(word);
    }

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(slider_);
    layout->addLayout(words);
}

}  // namespace quillbrand
