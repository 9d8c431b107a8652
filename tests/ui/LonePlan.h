#pragma once

#include "ui/plan/PlanView.h"

namespace quillbrand {

/// A plan view without a main window around it, for a picture of at most `limit` pixels a side.
class LonePlan : public Workplace {
  public:
    LonePlan(Host& host, double limit) : host_(host), limit_(limit) {}

    Session& TheSession() override { return session; }
    Host& TheHost() override { return host_; }
    QWidget* Window() override { return &view; }
    void ShowPlanView() override {}
    void ResizePicture(double factor) override { view.Resize(factor, limit_); }
    void RebuildPicture() override { view.Rebuild(); }
    std::optional<int> ChosenSize() override { return std::nullopt; }
    std::string SeedText() override { return {}; }

    clsTerrain& Terrain() { return session.document.CurrentTerrain; }

    Session session;

  private:
    Host& host_;
    double limit_;

  public:
    PlanView view{*this};
};

}  // namespace quillbrand
