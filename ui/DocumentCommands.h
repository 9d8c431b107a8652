#pragma once

#include <filesystem>

#include "ui/Workplace.h"

namespace quillbrand {

/// The commands on the document that a button of the tool bar starts: they ask, call the session's
/// commands and show the result. A Fault goes to the caller, with document and window as before.
class DocumentCommands {
  public:
    explicit DocumentCommands(Workplace& workplace) : workplace_(workplace) {}

    void Neu();
    void Loeschen();

    /// Both return false where the user cancelled: nothing further happens then.
    bool Oeffnen();
    bool Open(const std::filesystem::path& path);

    void Speichern();
    void SpeichernAls();

    /// Asks for a type unless `type` fixes it, and for a file. True when a file was written.
    bool FileSave(int type);

    void Backup();
    void Restore();

    /// The question at the exit. False when the program must go on.
    bool MayExit();

  private:
    bool AskToClear();
    void ShowTerrain(double zoomFactor);

    Workplace& workplace_;
};

}  // namespace quillbrand
