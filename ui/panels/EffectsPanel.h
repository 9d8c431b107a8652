#pragma once

#include <QWidget>
#include <optional>

#include "effects/ErosionSettings.h"
#include "ui/Workplace.h"

class QButtonGroup;
class QLineEdit;
class QPushButton;
class QSlider;

namespace quillbrand {

class dlgFltErosion;

/// The tab "Effects".
///
/// The strengths are kept one off on purpose: choosing effect i shows entry i of
/// `EffectStrength`, while the slider writes, and "Start !" runs, entry i + 1.
class EffectsPanel : public QWidget {
    Q_OBJECT

  public:
    explicit EffectsPanel(Workplace& workplace, QWidget* parent = nullptr);

    /// Shows the limits in metres of the present terrain.
    void Refresh();

  private:
    void BuildControls();
    QWidget* BuildFilters();
    QLayout* BuildOptions();
    QWidget* BuildElevatorParameter();
    void OrderControls();
    void ConnectControls();

    void optFilter_Click(int index);
    void sldEffectFactor_Change(int value);
    void sldZMin_Change();
    void sldZMax_Change();
    void cmdZrangeReset_Click();
    void cmdElevatorPar_Click();
    void cmdStartEffects_Click();
    std::optional<ErosionSettings> AskErosion();

    Workplace& workplace_;
    int SelectedEffect_ = 0;

    QButtonGroup* optFilter_;
    QPushButton* cmdElevatorPar_;
    QSlider* sldEffectFactor_;
    QSlider* sldZMin_;
    QSlider* sldZMax_;
    QLineEdit* txtZMin_;
    QLineEdit* txtZmax_;
    QPushButton* cmdZrangeReset_;
    QPushButton* cmdStartEffects_;
    dlgFltErosion* dlgFltErosion_ = nullptr;  ///< from its first use on, the window's own
};

}  // namespace quillbrand
