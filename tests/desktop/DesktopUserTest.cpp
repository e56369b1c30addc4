// What a person does around a question of the guest's: which of it still counts.
#include "desktop/guest/DesktopUser.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTest>

#include "desktop/Patience.h"
#include "desktop/Person.h"
#include "desktop/guest/GuestWindows.h"
#include "desktop/guest/GuestWork.h"

namespace quorvia::host {
namespace {

constexpr std::int64_t launch = 11;

using Question = std::function<void(User&)>;

/// Each thing that a guest may ask of its user, and waits for.
const std::pair<const char*, Question> questions[] = {
    {"a text", [](User& user) { user.read("Refused.", true); }},
    {"a question", [](User& user) { user.answer("Go on?"); }},
    {"a file", [](User& user) { user.chooseFiles({}); }}};

class DesktopUserTest : public ::testing::Test {
protected:
    /// At the window of the dialog that is open.
    void press(std::int32_t button) { actions_.push(PressButton_s{button}, launch); }
    /// And does the rest in the moment in which its window closes, of which the guest has not heard
    /// yet.
    void answerQuestion(const std::function<void()>& rest = [] {}) {
        person_.then("a question", [rest] {
            auto* window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (window == nullptr)
                return false;
            QObject::connect(window, &QDialog::finished, rest);
            window->reject();
            return true;
        });
    }
    /// The button that a guest is told of once its question is answered; 0 for none.
    std::int32_t toldAfter(const Question& question) {
        std::optional<DialogAction> next;
        GuestWork guest;
        guest.start(
            [&] {
                question(user_);
                next = actions_.take(launch);
            },
            [](const std::string& failure) { EXPECT_EQ(failure, ""); });
        EXPECT_TRUE(comesTrue([&guest] { return !guest.isRunning(); }));
        return next ? std::get<PressButton_s>(*next).button : 0;
    }

private:
    QWidget mainWindow_;
    ActionQueue actions_;
    GuestWindows windows_{mainWindow_, actions_};
    DesktopUser user_{windows_, actions_};
    Person person_;
};

TEST_F(DesktopUserTest, ForgetsWhatWasPressedBeforeTheQuestionCameUp) {
    for (const auto& [what, question] : questions) {
        press(2);
        answerQuestion();
        EXPECT_EQ(toldAfter(question), 0) << what;
    }
}

TEST_F(DesktopUserTest, TellsWhatIsPressedBeforeTheGuestHasHeardTheAnswer) {
    for (const auto& [what, question] : questions) {
        answerQuestion([this] { press(3); });
        EXPECT_EQ(toldAfter(question), 3) << what;
    }
}

} // namespace
} // namespace quorvia::host
