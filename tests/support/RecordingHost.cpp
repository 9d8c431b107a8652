#include "tests/support/RecordingHost.h"

namespace quillbrand {

Answer RecordingHost::Ask(const Question& question) {
    questions.push_back(question);
    if (answers.empty())
        return Answer::No;
    const Answer answer = answers.front();
    answers.pop_front();
    return answer;
}

}  // namespace quillbrand
