#pragma once

#include <cassert>
#include <string>
#include <utility>

#include "terrain/Document.h"

namespace quillbrand {

/// The scope in which a command changes a document: heights, header, FixHeight, TerrainEmpty,
/// CurrentFile.
///
///     HeightsChange change(document, "Smooth");
///     ...
///     change.Commit();
///
/// Left without Commit, by a fault, it puts everything back, TerrainSaved too; what the mode of the
/// history says. Commit makes a step of the history, unless nothing differs, or only the running
/// extremes or the file's name do. A scope within another one belongs to it: only the outermost one
/// does anything.
class HeightsChange {
  public:
    /// `name` is how the user knows the command. Throws Fault where there is no memory to put
    /// something back; in mode Steps the change then goes on without, and LostHistory tells.
    /// Requires: no height has changed since the last scope.
    HeightsChange(Document& document, std::string name) : document_(document) {
        document_.history.Open(document_, std::move(name));
    }
    HeightsChange(const HeightsChange&) = delete;
    HeightsChange& operator=(const HeightsChange&) = delete;
    ~HeightsChange() {
        if (open_)
            document_.history.Close(document_, false);
    }

    /// The command is done: its changes stay. Requires: no scope within this one is open, and
    /// Commit was not called before.
    void Commit() {
        assert(open_);
        open_ = false;
        document_.history.Close(document_, true);
    }

  private:
    Document& document_;
    bool open_ = true;
};

}  // namespace quillbrand
