#pragma once

#include <functional>

#include "ui/plan/PlanView.h"

namespace quillbrand {

/// The host of a plan view that stands alone: nothing is pumped, `onYield` is called instead.
class LoneHost : public WindowHost {
  public:
    using WindowHost::WindowHost;

    void Status(std::string_view text) override { statuses.emplace_back(text); }
    void Yield() override { onYield(); }

    std::vector<std::string> statuses;
    std::function<void()> onYield = [] {};
};

/// A plan view without a main window around it, for a picture of at most `limit` pixels a side.
class LonePlan : public Workplace {
  public:
    explicit LonePlan(double limit) : limit_(limit) {}

    Session& TheSession() override { return session; }
    WindowHost& TheHost() override { return host; }
    QWidget* Window() override { return &view; }
    void ShowPlanView() override {}
    void ResizePicture(double factor) override { view.Resize(factor, limit_); }
    void RebuildPicture() override { view.Rebuild(); }
    void ShowFixHeight() override {}
    void Say(const QString& /*text*/) override {}

    clsTerrain& Terrain() { return session.document.CurrentTerrain; }

    Session session;
    RandomSource chance{1};
    LoneHost host{session, chance};

  private:
    double limit_;

  public:
    PlanView view{*this};
};

}  // namespace quillbrand
