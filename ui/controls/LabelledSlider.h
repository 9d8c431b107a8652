#pragma once

#include <QSlider>
#include <QWidget>

namespace quillbrand {

/// What a slider is made with.
struct SliderRange {
    int low;
    int high;
    int start;
    int bigStep = 1;
    int ticks = 0;  ///< distance of the tick marks; 0 for none
};

/// A horizontal slider with its label beneath, spread over its width.
class LabelledSlider : public QWidget {
    Q_OBJECT

  public:
    /// `name` is the slider's own objectName. `label` is up to three words or groups, parted by two
    /// blanks or more, which stand at the left end, in the middle and at the right end.
    LabelledSlider(const QString& name, const SliderRange& range, const QString& label,
                   const QString& toolTip, QWidget* parent = nullptr);

    QSlider* Slider() const { return slider_; }

  private:
    QSlider* slider_;
};

}  // namespace quillbrand
