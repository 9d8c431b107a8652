#pragma once

#include "base/Host.h"
#include "shell/Session.h"

namespace quillbrand {

/// The part of a Host that every front has in common: busy flag and percent live in the session,
/// chance in one source. Session and source must outlive it.
class SessionHost : public Host {
  public:
    SessionHost(Session& session, RandomSource& chance) : session_(session), chance_(chance) {}

    void Busy(bool busy) override { session_.TerrainBusy = busy; }
    void Progress(int percent) override { session_.document.CurrentTerrain.pProgress = percent; }
    RandomSource& Chance() override { return chance_; }

  protected:
    const Session& TheSession() const { return session_; }

  private:
    Session& session_;
    RandomSource& chance_;
};

}  // namespace quillbrand
