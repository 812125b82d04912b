#pragma once

#include "platform/Dialogs.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>

namespace ondrilo {

/// Keeps what was shown and asked; answers what a test has queued. A question that no answer awaits, and an
/// answer that no question took, fail the test.
class FakeMessageBoxes : public MessageBoxes {
  public:
    ~FakeMessageBoxes() override { EXPECT_TRUE(answers.empty()) << "a question was expected"; }

    void Show(TextView text) override { shown.emplace_back(text); }
    [[nodiscard]] Answer AskYesNo(TextView question, Answer preselected) override {
        lastPreselected = preselected;
        return Ask(question);
    }
    [[nodiscard]] Answer AskYesNoCancel(TextView question) override { return Ask(question); }

    std::vector<Text> shown; ///< messages and questions in their order
    std::deque<Answer> answers;
    std::function<void()> whileAsked; ///< what happens in the loop of a question
    Answer lastPreselected = Answer::Yes;

  private:
    Answer Ask(TextView question) {
        shown.emplace_back(question);
        if (whileAsked)
            whileAsked();
        if (answers.empty()) {
            ADD_FAILURE() << "asked: " << ToUtf8(question);
            return Answer::Cancel;
        }
        const auto answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

} // namespace ondrilo
