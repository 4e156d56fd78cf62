// SPDX-License-Identifier: GPL-2.0-or-later
// Message boxes: the real box shows LF CR joins as line breaks and returns the button
// pressed; the double records every box and answers questions from its script.
#include "platform/dialogs.h"
#include "platform/fakes/scripted_dialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

// Presses `button` on the message box once it is up, remembering what it showed.
void pressWhenShown(QMessageBox::StandardButton button, QString* text, QMessageBox::Icon* icon) {
  QTimer::singleShot(0, [=] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    *text = box->text();
    *icon = box->icon();
    box->button(button)->click();
  });
}

TEST(QtDialogs, ShowsLineJoinsAsBreaksAndReturnsThePressedButton) {
  QString text;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
  pressWhenShown(QMessageBox::Cancel, &text, &icon);
  const Answer answer = platform::QtDialogs().MsgBox(
      {"Line one\n\rLine two\n\r", Buttons::OkCancel, Icon::Critical, "System Configuration Error Detected"});
  EXPECT_EQ(answer, Answer::Cancel);
  EXPECT_EQ(text, "Line one\nLine two\n");
  EXPECT_EQ(icon, QMessageBox::Critical);

  pressWhenShown(QMessageBox::Yes, &text, &icon);
  EXPECT_EQ(platform::QtDialogs().MsgBox({"Buy?", Buttons::YesNo, Icon::Information, "Buy Item"}),
            Answer::Yes);
  EXPECT_EQ(icon, QMessageBox::Information);
}

TEST(ScriptedDialogs, RecordsEveryBoxExactlyAndAnswersQuestionsInOrder) {
  platform::ScopedService<platform::Dialogs, platform::ScriptedDialogs> dialogs;
  dialogs->answer(Answer::No);
  dialogs->answer(Answer::Ok);
  EXPECT_EQ(platform::MsgBox("Have it.", Buttons::Ok, Icon::Exclamation, "Have Item"), Answer::Ok);
  EXPECT_EQ(platform::MsgBox("Overwrite\n\rgame?", Buttons::YesNo, Icon::None, "Save game exists"),
            Answer::No);
  EXPECT_EQ(platform::MsgBox("Repair?", Buttons::OkCancel, Icon::Critical, "Error"), Answer::Ok);
  ASSERT_EQ(dialogs->shown().size(), 3u);
  EXPECT_EQ(dialogs->shown()[1],
            (platform::MessageBox{"Overwrite\n\rgame?", Buttons::YesNo, Icon::None, "Save game exists"}));
  EXPECT_THROW(platform::MsgBox("Again?", Buttons::YesNo), std::logic_error);
}

}  // namespace
