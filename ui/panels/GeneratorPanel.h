#pragma once

#include <QWidget>

#include "generator/GeneratorSettings.h"
#include "ui/Workplace.h"

class QCheckBox;
class QLineEdit;
class QListWidget;
class QPushButton;
class QSlider;

namespace quillbrand {

/// The tab "Generator".
class GeneratorPanel : public QWidget {
    Q_OBJECT

  public:
    explicit GeneratorPanel(Workplace& workplace, QWidget* parent = nullptr);

    /// Fills the list of the Perlin sets and selects row 0.
    void LoadPerlinList();

    /// Brings the controls into line with the session.
    void Refresh();

  private:
    void BuildControls();
    QWidget* BuildSetFrame();
    QLayout* BuildSeedRow();
    QLayout* BuildButtons();
    void ConnectControls();

    void cmdGenerator_Click();
    void cmdPreview_Click();
    void cmdRandom_Click();
    void txtRandom_Change(const QString& text);
    void cmdGenModify_Click();
    void cmdGeneratorSaveSetting_Click();
    void cmdGenLoadSetting_Click();

    GeneratorSettings Settings() const;
    void Show(const GeneratorSettings& settings);

    Workplace& workplace_;
    QListWidget* lstPerlinSets_;
    QSlider* sldIteration_;
    QSlider* sldGenHeigth_;
    QSlider* sldStructure_;
    QSlider* roughness_;
    QLineEdit* txtRandom_;
    QPushButton* cmdRandom_;
    QCheckBox* chkHighResolution_;
    QCheckBox* chkClearTerrain_;
    QPushButton* cmdGenModify_;
    QPushButton* save_;
    QPushButton* load_;
    QPushButton* cmdPreview_;
    QPushButton* cmdGenerator_;
};

}  // namespace quillbrand
