#pragma once

#include <filesystem>

#include "ui/Workplace.h"

namespace quillbrand {

/// The commands on the document that a button of the tool bar starts: they ask, call the session's
/// commands and show the result. A Fault goes to the caller, with document and window as before.
class DocumentCommands {
  public:
    explicit DocumentCommands(Workplace& workplace) : workplace_(workplace) {}

    /// Flat heights after a question, with file name and window kept, or with both forgotten.
    void Neu();
    void Loeschen();

    /// Each of these returns false where the command ended early: cancelled, or with a message.
    bool Oeffnen();
    bool Open(const std::filesystem::path& path);

    /// Under the document's name, or as FileSave where it has none; counts as saved even when that
    /// was cancelled.
    bool Speichern();
    bool SpeichernAls();

    /// Asks for a type unless `type` fixes it, and for a file. True when a file was written.
    bool FileSave(int type);

    /// To and from the session's one backup slot.
    void Backup();
    bool Restore();

    /// The last step taken back, or done again.
    void Undo();
    void Redo();

    /// The question at the exit. False when the program must go on.
    bool MayExit();

  private:
    bool AskToClear();
    bool RefuseEmpty();
    void ShowTerrain(double zoomFactor);
    void ShowStep(int sizeBefore);

    Workplace& workplace_;
};

}  // namespace quillbrand
