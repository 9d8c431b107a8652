#include <optional>

#include "bench/BenchTerrain.h"
#include "bench/CopyUnit.h"
#include "effects/QBFilter.h"
#include "effects/QBTools2.h"
#include "terrain/HeightsChange.h"

namespace quillbrand {
namespace {

/// Hills in a document that keeps steps, and one change that is made again and again.
class ChangedHills {
  public:
    explicit ChangedHills(HistoryMode mode) {
        document_.CurrentTerrain = RollingTerrain(30000);
        document_.history.Mode(mode);
    }

    /// Leaves a change open, from the first heights to the ones that `action` makes.
    template <typename Action>
    void Begin(Action action) {
        document_.Undo();
        change_.emplace(document_, "Change");
        action(document_.CurrentTerrain);
    }
    void End() {
        change_->Commit();
        change_.reset();
    }
    void Undo() { document_.Undo(); }

    double Megabytes() const { return static_cast<double>(document_.history.Bytes()) / (1 << 20); }

  private:
    Document document_;
    std::optional<HeightsChange> change_;
};

void Smoothed(clsTerrain& terrain) {
    SilentHost host;
    float strength = 3;
    QBFilter::FilterSmooth(terrain, strength, {.extent = terrain.XPoints()}, host);
}

void KeepWholeEffect(benchmark::State& state) {
    ChangedHills hills(HistoryMode::Steps);
    MeasureInCopies(
        state, 20, [&] { hills.Begin(Smoothed); }, [&] { hills.End(); });
    state.counters["megabytes"] = hills.Megabytes();
}
QB_BENCHMARK(KeepWholeEffect);

void KeepStroke(benchmark::State& state) {
    ChangedHills hills(HistoryMode::Steps);
    MeasureInCopies(
        state, 3,
        [&] { hills.Begin([](clsTerrain& terrain) { terrain.GetSquare(1000, 1000, 30, 7); }); },
        [&] { hills.End(); });
    state.counters["megabytes"] = hills.Megabytes();
}
QB_BENCHMARK(KeepStroke);

void UndoWholeEffect(benchmark::State& state) {
    ChangedHills hills(HistoryMode::Steps);
    MeasureInCopies(
        state, 12,
        [&] {
            hills.Begin(Smoothed);
            hills.End();
        },
        [&] { hills.Undo(); });
}
QB_BENCHMARK(UndoWholeEffect);

void ChangeInModeNothing(benchmark::State& state) {
    Document document;
    document.CurrentTerrain = RollingTerrain(30000);
    document.history.Mode(HistoryMode::Nothing);
    MeasureInCopies(
        state, 0, [] {},
        [&] {
            HeightsChange change(document, "Change");
            change.Commit();
        });
}
BENCHMARK(ChangeInModeNothing)->UseManualTime()->Iterations(200);  // far too short for a second

}  // namespace
}  // namespace quillbrand
