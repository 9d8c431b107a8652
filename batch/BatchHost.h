#pragma once

#include <chrono>
#include <set>
#include <string>

#include "shell/SessionHost.h"

namespace quillbrand {

/// The host of the batch program: a progress line on standard error, prepared answers to the
/// questions.
class BatchHost : public SessionHost {
  public:
    /// Without `showProgress` nothing is ever written.
    BatchHost(Session& session, RandomSource& chance, bool showProgress);

    /// How a question of the command in hand is answered. Without this it is No or Cancel.
    void SetAnswer(QuestionId id, bool yes);
    void ForgetAnswers() { yes_.clear(); }

    /// Takes the progress line off the terminal.
    void ClearLine();

    void Status(std::string_view text) override { status_ = text; }
    void Progress(int percent) override;
    void Yield() override;
    void ActualScreen() override {}
    Answer Ask(const Question& question) override;

  private:
    using Clock = std::chrono::steady_clock;

    void Draw(const std::string& line);

    bool showProgress_;
    std::set<QuestionId> yes_;  ///< the questions that are answered so
    std::string status_;
    int percent_ = 0;
    std::size_t drawn_ = 0;  ///< characters that stand on the terminal
    Clock::time_point nextDraw_;
};

}  // namespace quillbrand
