#pragma once

#include <QMainWindow>
#include <QPointer>
#include <filesystem>
#include <memory>

#include "ui/DocumentCommands.h"
#include "ui/Toolbar1.h"
#include "ui/WindowHost.h"
#include "ui/Workplace.h"

class QLabel;
class QProgressBar;
class QRadioButton;
class QStackedLayout;
class QTabWidget;
class QTimer;

namespace quillbrand {

class EditPanel;
class EditTools;
class EffectsPanel;
class GeneratorPanel;
class GlobalPanel;
class ObjectsPanel;
class PlanView;
class StatusPanels;
class ToolStrip;
class ZViewPanel;

/// The main window: only the frame around tool bar, picture, tabs and status bar, the heartbeat,
/// and what connects them.
class frmTer : public QMainWindow, public Workplace {
    Q_OBJECT

  public:
    /// Session and host must outlive the window.
    frmTer(Session& session, WindowHost& host, QWidget* parent = nullptr);
    ~frmTer() override;

    /// The window's own start: picture, sets, start file. False, after a message, when there are no
    /// Perlin sets: the program then ends.
    bool Form_Load();

    Session& TheSession() override { return session_; }
    WindowHost& TheHost() override { return host_; }
    QWidget* Window() override { return this; }
    void ShowPlanView() override;
    void ResizePicture(double factor = 1) override;
    void RebuildPicture() override;
    void ShowFixHeight() override;
    void Say(const QString& text) override;

    /// Opens a TER file like the dialog does; a fault is shown.
    void OpenFile(const std::filesystem::path& path);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void BuildWindow();
    QWidget* BuildPictures();
    QWidget* BuildRightColumn();
    QWidget* BuildViewFrame();
    QWidget* BuildInfoFrame();
    void BuildTabs();
    void ConnectParts();

    void ActualScreen();
    void EnableInput(bool enable);
    void Timer1_Timer();
    std::vector<ToolButton> Buttons();
    void Toolbar1_ButtonClick(const QString& key, const std::function<bool()>& work);
    void StepBack();
    void StepForward();
    void ShowHistory();
    void CommonEnd();
    void ShowZView();
    void optZView_Click();
    void UpdateTitle();
    double PictureLimit() const;

    Session& session_;
    WindowHost& host_;
    DocumentCommands document_;

    Toolbar1* toolbar_;
    ToolStrip* toolStrip_;
    QWidget* pictures_;
    QStackedLayout* views_;
    PlanView* planView_;
    std::unique_ptr<EditTools> editTools_;
    ZViewPanel* PicZ_;
    QRadioButton* OptXYView_;
    QRadioButton* optZView_;
    QLabel* InfoText_;
    QProgressBar* PB_;
    QTabWidget* SSTab1_;
    GlobalPanel* globalPanel_;
    GeneratorPanel* generatorPanel_;
    EditPanel* editPanel_;
    EffectsPanel* effectsPanel_;
    ObjectsPanel* objectsPanel_;
    StatusPanels* sBar_;
    QTimer* Timer1_;
    bool loaded_ = false;
    bool inputEnabled_ = true;
    QPointer<QWidget> focusBefore_;
};

}  // namespace quillbrand
