#pragma once

#include <string>
#include <string_view>

#include "base/RandomSource.h"

namespace quillbrand {

enum class Buttons { OkCancel, YesNo, YesNoCancel };
enum class Answer { Ok, Cancel, Yes, No };

/// What a question is about, for hosts that answer without a person.
enum class QuestionId {
    Other,
    Refine,          ///< stretch the heights of a file that uses few of the steps
    Repair,          ///< fill the holes of an elevation file
    Adjust,          ///< keep the side length in metres when the number of points changes
    Remake,          ///< compute an object anew because its mask has changed
    Clear,           ///< drop the heights
    ScaleHeights,    ///< let the heights grow with the side length
    SaveFirst,       ///< save before the renderer starts
    SaveBeforeExit,  ///< save before the program ends
};

/// A question in a message box. A message that ends a command is a Fault instead.
struct Question {
    std::string text;
    std::string title;
    Buttons buttons = Buttons::YesNo;
    QuestionId id = QuestionId::Other;
};

/// The one way in which long work talks to the outside: the editor's window, the batch program's
/// terminal, or a test that records and replays. Nothing here must be kept in step by the caller,
/// and every function is cheap enough to be called once per row.
class Host {
  public:
    virtual ~Host() = default;

    /// The status text (`InfoText`). It stays visible only while the busy flag is set.
    virtual void Status(std::string_view text) = 0;

    /// The busy flag (`TerrainBusy`), which keeps input out of the window.
    virtual void Busy(bool busy) = 0;

    /// Percent of the work in hand (`pProgress` of the current terrain).
    virtual void Progress(int percent) = 0;

    /// Lets pending events through. The host looks at the clock itself, so call it freely.
    virtual void Yield() = 0;

    /// Brings everything that is shown into line with the terrain and the session.
    virtual void ActualScreen() = 0;

    virtual Answer Ask(const Question& question) = 0;

    /// The source of every random number of a command.
    virtual RandomSource& Chance() = 0;
};

}  // namespace quillbrand
