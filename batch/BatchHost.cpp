#include "batch/BatchHost.h"

#include <algorithm>
#include <cstdio>

namespace quillbrand {

namespace {

constexpr auto pause = std::chrono::milliseconds(100);

/// A longer line would wrap and could not be rewritten.
constexpr std::size_t mostCharacters = 78;

}  // namespace

BatchHost::BatchHost(Session& session, RandomSource& chance, bool showProgress)
    : SessionHost(session, chance), showProgress_(showProgress), nextDraw_(Clock::now() + pause) {}

void BatchHost::Progress(int percent) {
    SessionHost::Progress(percent);
    percent_ = std::clamp(percent, 0, 100);
}

void BatchHost::Yield() {
    if (!showProgress_)
        return;
    const auto now = Clock::now();
    if (now < nextDraw_)
        return;
    nextDraw_ = now + pause;
    Draw(status_.substr(0, mostCharacters - 6) + " " + std::to_string(percent_) + " %");
}

void BatchHost::Draw(const std::string& line) {
    const std::size_t width = std::max(line.size(), drawn_);
    std::fprintf(stderr, "\r%-*s", static_cast<int>(width), line.c_str());
    std::fflush(stderr);
    drawn_ = line.size();
}

void BatchHost::ClearLine() {
    if (drawn_ == 0)
        return;
    Draw("");
    std::fputc('\r', stderr);
    std::fflush(stderr);
}

void BatchHost::SetAnswer(QuestionId id, bool yes) {
    if (yes)
        yes_.insert(id);
    else
        yes_.erase(id);
}

Answer BatchHost::Ask(const Question& question) {
    const bool yes = yes_.contains(question.id);
    switch (question.buttons) {
        case Buttons::OkCancel:
            return yes ? Answer::Ok : Answer::Cancel;
        case Buttons::YesNo:
            return yes ? Answer::Yes : Answer::No;
        case Buttons::YesNoCancel:
            return yes ? Answer::Yes : Answer::Cancel;
    }
    return Answer::Cancel;
}

}  // namespace quillbrand
