#pragma once

#include <QWidget>
#include <optional>

#include "ui/Workplace.h"

class QButtonGroup;
class QCheckBox;
class QLineEdit;

namespace quillbrand {

/// The tab "Global": the grid's size and what a TER file carries beside its heights.
class GlobalPanel : public QWidget {
    Q_OBJECT

  public:
    explicit GlobalPanel(Workplace& workplace, QWidget* parent = nullptr);

    /// Shows the terrain's header values, and hands the state of "fix Height" to the terrain.
    void Refresh();

    /// Ticks the option of `size` intervals and no other; none where none fits.
    void TickSize(int size);

    /// The intervals of the option that is ticked, or nothing.
    std::optional<int> ChosenSize() const;

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

    void chkCurved_Click(bool ticked);

    Workplace& workplace_;
    QButtonGroup* optTerSize_;
    QLineEdit* txtPlanetRadius_;
    QCheckBox* chkCurved_;
    QLineEdit* txtMetersPoint_;
    QLineEdit* txtTerSizeMeters_;
    QLineEdit* txtMinTerrain_;
    QLineEdit* txtMaxTerrain_;
    QCheckBox* chkFixHeight_;
};

}  // namespace quillbrand
