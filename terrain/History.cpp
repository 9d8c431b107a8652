#include "terrain/History.h"

#include <algorithm>
#include <cassert>
#include <new>
#include <utility>

#include "base/Fault.h"
#include "terrain/Document.h"

namespace quillbrand {

namespace {

/// Whether there was memory for `action`.
template <typename Action>
bool FoundMemory(Action action) {
    try {
        action();
    } catch (const Fault&) {
        return false;
    } catch (const std::bad_alloc&) {
        return false;
    }
    return true;
}

DocumentState StateOf(const Document& document, std::uint64_t number) {
    return {document.CurrentTerrain.Values(), document.TerrainEmpty, document.CurrentFile, number};
}

/// A grid of another size with the cells of `terrain` that fit, and 0 beyond them.
std::unique_ptr<clsTerrain> Resized(const clsTerrain& terrain, int size) {
    auto resized = std::make_unique<clsTerrain>();
    resized->Init(std::int64_t{size} + 1);
    resized->pProgress = terrain.pProgress;
    CopyCells(terrain, *resized, 0, 0, size + 3, size + 3);
    return resized;
}

bool SameCells(const clsTerrain& one, const clsTerrain& other) {
    bool same = one.Size() == other.Size();
    for (int y = 0; same && y <= one.Size() + 2; ++y)
        same = std::ranges::equal(one.Row(y), other.Row(y));
    return same;
}

}  // namespace

void History::Mode(HistoryMode mode) {
    assert(depth_ == 0);
    if (mode == mode_)
        return;
    mode_ = mode;
    shadow_.reset();
    now_.number = ++lastNumber_;
    Clear();
}

void History::Megabytes(int megabytes) {
    megabytes_ = std::max(megabytes, 0);
    Trim();
}

void History::Clear() {
    steps_.clear();
    done_ = 0;
    lost_ = false;
}

std::vector<History::Entry> History::Entries() const {
    std::vector<Entry> entries;
    for (const HistoryStep& step : steps_)
        entries.push_back({step.name, step.Bytes(), entries.size() >= done_});
    return entries;
}

std::size_t History::Bytes() const {
    std::size_t bytes = 0;
    for (const HistoryStep& step : steps_)
        bytes += step.Bytes();
    return bytes;
}

void History::Trim() noexcept {
    const std::size_t budget = static_cast<std::size_t>(megabytes_) << 20;
    for (std::size_t bytes = Bytes(); steps_.size() > leastSteps && bytes > budget;) {
        if (done_ > 0) {
            bytes -= steps_.front().Bytes();
            steps_.pop_front();
            --done_;
        } else {
            // Where all are undone, the first is the one that all others build on.
            bytes -= steps_.back().Bytes();
            steps_.pop_back();
        }
    }
}

void History::Open(const Document& document, std::string name) {
    if (depth_ == 0 && mode_ != HistoryMode::Nothing) {
        lost_ = false;
        const auto prepare = [&] {
            assert(Agrees(document) && "the document was changed outside every HeightsChange");
            name_ = std::move(name);
            wasSaved_ = document.TerrainSaved;
            savedAtEnd_ = false;
            now_ = StateOf(document, now_.number);
            if (!shadow_)
                shadow_ = std::make_unique<clsTerrain>(document.CurrentTerrain);
        };
        if (mode_ == HistoryMode::Rollback)
            prepare();
        else if (!FoundMemory(prepare))
            Lose();
    }
    ++depth_;
}

void History::Close(Document& document, bool committed) noexcept {
    assert(depth_ > 0);
    if (--depth_ > 0 || mode_ == HistoryMode::Nothing)
        return;
    if (!committed)
        PutBack(document);
    else if (mode_ == HistoryMode::Rollback)
        shadow_.reset();
    else if (shadow_ && !FoundMemory([&] { Keep(document); }))
        Lose();
    if (committed && savedAtEnd_)
        savedNumber_ = now_.number;
}

void History::PutBack(Document& document) noexcept {
    if (!shadow_)
        return;
    const int progress = document.CurrentTerrain.pProgress;
    std::swap(document.CurrentTerrain, *shadow_);
    shadow_.reset();
    document.CurrentTerrain.pProgress = progress;
    document.CurrentTerrain.Values(now_.terrain);
    document.TerrainEmpty = now_.TerrainEmpty;
    document.TerrainSaved = wasSaved_;
    document.CurrentFile = std::move(now_.CurrentFile);
}

void History::Keep(const Document& document) {
    DocumentState end = StateOf(document, now_.number);
    std::vector<PackedBlock> blocks = packer_.Pack(*shadow_, document.CurrentTerrain);
    if (blocks.empty() && end.SameAs(now_))
        return;
    end.number = ++lastNumber_;
    steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(done_), steps_.end());
    steps_.push_back({std::move(name_), std::move(now_), end, std::move(blocks)});
    done_ = steps_.size();
    now_ = std::move(end);
    UpdateShadow(document.CurrentTerrain, steps_.back().blocks);
    Trim();
}

void History::UpdateShadow(const clsTerrain& terrain, const std::vector<PackedBlock>& blocks) {
    if (!shadow_ || shadow_->Size() != terrain.Size()) {
        shadow_.reset();
        return;
    }
    for (const PackedBlock& block : blocks)
        CopyCells(terrain, *shadow_, block.x, block.y, block.width, block.height);
}

/// The steps lead nowhere any more: the document has moved on without them.
void History::Lose() noexcept {
    Clear();
    lost_ = true;
    shadow_.reset();
    now_.number = ++lastNumber_;
}

bool History::Agrees(const Document& document) const {
    return !shadow_ || SameCells(document.CurrentTerrain, *shadow_);
}

int History::Undo(Document& document, int steps) {
    int made = 0;
    for (; made < steps && CanUndo(); ++made, --done_)
        Follow(document, steps_[done_ - 1], Way::Back);
    return made;
}

int History::Redo(Document& document, int steps) {
    int made = 0;
    for (; made < steps && CanRedo(); ++made, ++done_)
        Follow(document, steps_[done_], Way::Forth);
    return made;
}

void History::Follow(Document& document, const HistoryStep& step, Way way) {
    assert(depth_ == 0);
    const DocumentState& from = way == Way::Back ? step.after : step.before;
    const DocumentState& to = way == Way::Back ? step.before : step.after;
    clsTerrain& terrain = document.CurrentTerrain;
    const int sizeBefore = from.terrain.header.Size;
    const int size = to.terrain.header.Size;
    assert(terrain.Size() == sizeBefore);
    std::unique_ptr<clsTerrain> resized;
    std::string file;
    const auto prepare = [&] {
        file = from.CurrentFile == to.CurrentFile ? document.CurrentFile : to.CurrentFile;
        packer_.Prepare(std::max(sizeBefore, size) + 3);
        if (size != sizeBefore)
            resized = Resized(terrain, size);
    };
    if (!FoundMemory(prepare))
        throw Fault("there is not enough memory to " +
                    std::string(way == Way::Back ? "undo" : "redo") + " \"" + step.name + "\"");

    // Nothing can fail from here on.
    if (resized)
        std::swap(terrain, *resized);
    for (const PackedBlock& block : step.blocks)
        packer_.Follow(block, way, terrain);
    terrain.Values(to.terrain);
    UpdateShadow(terrain, step.blocks);
    document.TerrainEmpty = to.TerrainEmpty;
    document.TerrainSaved = to.number == savedNumber_;
    document.CurrentFile = std::move(file);
    now_ = {to.terrain, to.TerrainEmpty, {}, to.number};
}

void History::MarkSaved() {
    if (depth_ > 0)
        savedAtEnd_ = true;
    else
        savedNumber_ = now_.number;
}

}  // namespace quillbrand
