#pragma once

#include <deque>
#include <string>
#include <vector>

#include "base/Host.h"

namespace quillbrand {

/// A host that writes down what it is told and answers from a prepared list; without an answer
/// left it says No.
class RecordingHost : public Host {
  public:
    explicit RecordingHost(std::uint32_t seed = 1) : chance(seed) {}

    void Status(std::string_view text) override { statuses.emplace_back(text); }
    void Busy(bool busy) override { isBusy = busy; }
    void Progress(int percent) override { progress.push_back(percent); }
    void Yield() override { ++yields; }
    void ActualScreen() override { ++screens; }
    Answer Ask(const Question& question) override {
        questions.push_back(question);
        if (answers.empty())
            return Answer::No;
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    RandomSource& Chance() override { return chance; }

    std::vector<std::string> statuses;
    std::vector<int> progress;
    std::vector<Question> questions;
    std::deque<Answer> answers;
    bool isBusy = false;
    int yields = 0;
    int screens = 0;
    RandomSource chance;
};

}  // namespace quillbrand
