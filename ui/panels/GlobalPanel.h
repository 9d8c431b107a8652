#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ui/Workplace.h"

class QButtonGroup;
class QCheckBox;
class QLineEdit;

namespace quillbrand {

class NumberField;

/// The tab "Global": the grid's size and what a TER file carries beside its heights.
class GlobalPanel : public QWidget {
    Q_OBJECT

  public:
    explicit GlobalPanel(Workplace& workplace, QWidget* parent = nullptr);

    /// Shows the terrain's header values, and hands the state of "fix Height" to the terrain.
    void Refresh();

    /// Ticks "fix Height" as the terrain has it: Refresh does the opposite.
    void ShowFixHeight();

    /// Ticks the option of `size` intervals and no other; none where none fits. The tools know
    /// which one is ticked.
    void TickSize(int size);

    /// What the planet's fields hold: kilometres, and whether the terrain is curved.
    double PlanetRadius() const;
    bool Curved() const;

    /// The ends of the height window in metres, as they are shown.
    QString LowestText() const;
    QString HighestText() const;

  private:
    QWidget* BuildGridPoints();
    QWidget* BuildPlanetaryContext();
    QWidget* BuildLandscapeArea();

    void ConnectFields();
    void TakeChosenSize();
    void LeaveSoon(std::function<void()> leave);
    void FinishLeaving();
    void Change(const QString& command, const std::function<void(clsTerrain&)>& change);

    void CmdResize_Click();
    void Resize();
    void chkCurved_Click(bool ticked);
    void cmdEarth_Click();
    void cmdMoon_Click();
    void cmdMars_Click();
    void cmdPlanetRender_Click();
    void txtPlanetRadius_KeyPress(const QString& text);
    void txtMinTerrain_Validate(const std::string& text);
    void txtMaxTerrain_Validate(const std::string& text);
    void txtTerSizeMeters_GotFocus();
    void txtTerSizeMeters_Validate(const std::string& text);
    void txtTerSizeMeters_LostFocus(const QString& oldSizeText);

    Workplace& workplace_;
    QButtonGroup* optTerSize_;
    NumberField* txtPlanetRadius_;
    QCheckBox* chkCurved_;
    QLineEdit* txtMetersPoint_;
    NumberField* txtTerSizeMeters_;
    NumberField* txtMinTerrain_;
    NumberField* txtMaxTerrain_;
    QCheckBox* chkFixHeight_;
    QString oldSizeText_;
    std::vector<std::function<void()>> leaves_;  ///< the last words of fields, still to be heard
};

}  // namespace quillbrand
