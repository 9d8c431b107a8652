#pragma once

#include <QDialog>
#include <array>

#include "effects/ErosionSettings.h"
#include "ui/Workplace.h"

class QGridLayout;
class QSlider;

namespace quillbrand {

/// Asks for the settings of natural erosion. "OK" only hides it, so that it comes back with the
/// same values; after "Cancel" it starts afresh.
class dlgFltErosion : public QDialog {
    Q_OBJECT

  public:
    explicit dlgFltErosion(Workplace& workplace);

    /// Runs the dialog; nothing when the user cancels.
    std::optional<ErosionSettings> Ask();

    void reject() override;

  private:
    QWidget* BuildSliders();
    QLayout* BuildButtons();

    ErosionSettings Settings() const;
    void Show(const ErosionSettings& settings);
    void Command1_Click();
    void Command2_Click();

    Workplace& workplace_;
    std::array<QSlider*, 4> sliders_{};  ///< Slider1..Slider4
};

}  // namespace quillbrand
