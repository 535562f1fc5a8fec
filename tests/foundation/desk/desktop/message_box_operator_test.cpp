#include "foundation/desk/desktop/message_box_operator.h"

#include "foundation/widgets/desktop/progress.h"

#include <QApplication>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace winvrx {
namespace {

/// Asks and meanwhile does what an operator does in front of the box.
Answer askWhile(const Message& message, const std::function<void(QMessageBox&)>& meanwhile) {
    QTimer::singleShot(0, qApp, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        meanwhile(*box);
    });
    return MessageBoxOperator().ask(message);
}

Answer answerTo(const Message& message, Qt::Key key) {
    return askWhile(message, [&](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("EXCLUIR"));
        EXPECT_EQ(box.text(), QStringLiteral("Deseja?"));
        QTest::keyClick(box.defaultButton(), key);
    });
}

/// The kind of a message decides what ENTER does; ESC never agrees.
TEST(MessageBoxOperatorTest, EnterCarriesOnOnlyWhereTheActCanBeUndone) {
    struct Case {
        Message message;
        Answer onEnter;
        Answer onEscape;
    };
    const std::string title = "EXCLUIR";
    const std::string text = "Deseja?";
    Message kept = question(title, text, {}, Buttons::YesNoCancel);
    kept.present = Answer::No;
    const Case cases[] = {
        {kept, Answer::No, Answer::Cancel},
        {question(title, text), Answer::Yes, Answer::No},
        {question(title, text, {}, Buttons::OkCancel), Answer::Ok, Answer::Cancel},
        {question(title, text, {}, Buttons::YesNoCancel), Answer::Yes, Answer::Cancel},
        {warning(title, text), Answer::No, Answer::No},
        {warning(title, text, {}, Buttons::OkCancel), Answer::Cancel, Answer::Cancel},
        {riskyQuestion(title, text), Answer::No, Answer::No},
        {refusal(title, text), Answer::Ok, Answer::Ok},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(&one - cases);
        EXPECT_EQ(answerTo(one.message, Qt::Key_Return), one.onEnter);
        EXPECT_EQ(answerTo(one.message, Qt::Key_Escape), one.onEscape);
    }
    EXPECT_EQ(answerTo(warning(title, text), Qt::Key_S), Answer::Yes);
    EXPECT_EQ(answerTo(question(title, text), Qt::Key_N), Answer::No);
    EXPECT_EQ(answerTo(warning(title, text, {}, Buttons::OkCancel), Qt::Key_O), Answer::Ok);
    EXPECT_EQ(answerTo(question(title, text, {}, Buttons::OkCancel), Qt::Key_C), Answer::Cancel);
}

TEST(MessageBoxOperatorTest, ProgressStepsBackWhileAQuestionStands) {
    constexpr int kManySteps = 1000;
    QWidget window;
    window.show();
    Progress progress({QStringLiteral("progress"), {}, QStringLiteral("Cartão %1 de %2")}, &window);
    EXPECT_TRUE(progress.show(1, kManySteps));
    auto* dialog = window.findChild<QProgressDialog*>(QStringLiteral("progress"));
    ASSERT_NE(dialog, nullptr);
    ASSERT_TRUE(dialog->isVisible());
    const Answer answer = askWhile(question("IMPRIMINDO", "Agora?"), [&](QMessageBox& box) {
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_TRUE(box.isVisible());
        QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_EQ(answer, Answer::Yes);
    EXPECT_TRUE(progress.show(2, kManySteps));
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->labelText(), QStringLiteral("Cartão 2 de 1000"));
}

}  // namespace
}  // namespace winvrx
