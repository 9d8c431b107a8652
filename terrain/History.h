#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "terrain/HistoryStep.h"
#include "terrain/StepPacking.h"
#include "terrain/clsTerrain.h"

namespace quillbrand {

struct Document;

/// What a HeightsChange does beside closing the command.
enum class HistoryMode {
    Nothing,   ///< neither undo nor putting back: for a program that ends at the first fault
    Rollback,  ///< what a fault interrupts is put back
    Steps,     ///< that, and every command is a step that can be undone
};

/// The steps of a document that can be undone and redone. Commands add to it by HeightsChange.
///
/// A shadow of the grid holds the heights of the last step's end, so that a command costs nothing
/// before it starts, and what it changed is found by comparing.
class History {
  public:
    /// So many of the last steps stay, whatever memory they take.
    static constexpr std::size_t leastSteps = 5;

    /// As a list shows a step.
    struct Entry {
        std::string name;
        std::size_t bytes;
        bool undone;
    };

    /// Rollback at first. Another mode empties the history. Requires: no open HeightsChange.
    HistoryMode Mode() const { return mode_; }
    void Mode(HistoryMode mode);

    /// What the steps may take, 256 at first; the oldest go when it is not enough.
    int Megabytes() const { return megabytes_; }
    void Megabytes(int megabytes);

    /// Forgets all steps; the document stays as it is.
    void Clear();

    bool CanUndo() const { return done_ > 0; }
    bool CanRedo() const { return done_ < steps_.size(); }

    /// The command that the next Undo or Redo concerns; "" where there is none.
    std::string NameOfUndo() const { return CanUndo() ? steps_[done_ - 1].name : ""; }
    std::string NameOfRedo() const { return CanRedo() ? steps_[done_].name : ""; }

    /// All steps, oldest first, and the memory of all.
    std::vector<Entry> Entries() const;
    std::size_t Bytes() const;

    /// Whether the last command found no memory for its step, so that the history was emptied.
    bool LostHistory() const { return lost_; }

    /// Goes that many steps back or forth, as far as there are any; returns how many. Throws Fault
    /// where a step finds no memory, with the document at the step before.
    /// Requires: no open HeightsChange, and the document that the steps came from.
    int Undo(Document& document, int steps);
    int Redo(Document& document, int steps);

    /// The document as it stands, or as the open change will leave it, is what its file holds.
    void MarkSaved();

  private:
    friend class HeightsChange;

    void Open(const Document& document, std::string name);
    void Close(Document& document, bool committed) noexcept;

    void PutBack(Document& document) noexcept;
    void Keep(const Document& document);
    void Lose() noexcept;
    void UpdateShadow(const clsTerrain& terrain, const std::vector<PackedBlock>& blocks);
    void Trim() noexcept;
    void Follow(Document& document, const HistoryStep& step, Way way);
    bool Agrees(const Document& document) const;

    HistoryMode mode_ = HistoryMode::Rollback;
    int megabytes_ = 256;
    std::deque<HistoryStep> steps_;
    std::size_t done_ = 0;  ///< steps_[done_] and those above it are undone
    bool lost_ = false;

    std::unique_ptr<clsTerrain> shadow_;  ///< made by the opening that finds none
    DocumentState now_;  ///< at the last step's end; while a change is open, at its opening
    StepPacker packer_;

    int depth_ = 0;  ///< open changes, one in the other
    std::string name_;
    bool wasSaved_ = false;
    bool savedAtEnd_ = false;
    std::uint64_t lastNumber_ = 1;
    std::uint64_t savedNumber_ = 0;
};

}  // namespace quillbrand
