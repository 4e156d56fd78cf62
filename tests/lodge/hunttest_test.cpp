// SPDX-License-Identifier: GPL-2.0-or-later
// The hunter's test: where the questions come from, the three prizes paid once a hunt, the
// marked answers and the printed sheet.
#include "lodge/hunttest.h"

#include "lodge_fixture.h"
#include "platform/fakes/recording_printer.h"
#include "platform/fakes/scripted_random.h"
#include "platform/runtime.h"

#include <QCheckBox>
#include <QLabel>

namespace {

using platform::Buttons;
using platform::Icon;
using platform::MessageBox;

constexpr int kLines = 29;

// Line n asks "Question n" and its answer is true when n is odd.
int16_t answerOfLine(int n) {
  return static_cast<int16_t>(n % 2);
}

class HunttestTest : public lodge_testing::LodgeFixture {
 protected:
  HunttestTest() {
    QByteArray file;
    for (int n = 0; n < kLines; ++n)
      file += QByteArray::number(answerOfLine(n)) + ",\"Question " + QByteArray::number(n) +
              ", true or false\"\r\n";
    drive.write("data/htest.csv", file);
  }

  // Opens a fresh test whose first question is line `start`.
  std::unique_ptr<Hunttest> sit(int start) {
    draws->push((start + 0.5) / 20.0);
    auto test = std::make_unique<Hunttest>();
    test->Form_Load();
    return test;
  }

  // Ticks the boxes so that exactly `wrong` of the first questions are answered wrongly.
  void answer(Hunttest& test, int wrong) {
    for (int i = 0; i < lodge::kTestQuestions; ++i) {
      const bool right = test.rightAnswers()[i] == 1;
      test.Check1[i]->setChecked(i < wrong ? !right : right);
    }
  }

  // Scores a test that is going to pay, and so to speak, which takes one draw.
  void scorePaying(Hunttest& test) {
    draws->push(0.0);
    test.Scoretest_Click();
  }

  platform::ScopedService<platform::Random, platform::ScriptedRandom> draws;
};

TEST_F(HunttestTest, TenQuestionsFromTheDrawnLine) {
  auto test = sit(19);
  EXPECT_EQ(test->Question[0]->text(), QStringLiteral("Question 19, true or false"));
  EXPECT_EQ(test->Question[9]->text(), QStringLiteral("Question 28, true or false"));
  EXPECT_EQ(test->rightAnswers()[0], answerOfLine(19));
  EXPECT_EQ(draws->randomizeCalls(), 1);
  auto first = sit(0);
  EXPECT_EQ(first->Question[0]->text(), QStringLiteral("Question 0, true or false"));
}

TEST_F(HunttestTest, TickBoxesReadTrueOrFalse) {
  auto test = sit(0);
  EXPECT_EQ(test->Check1[3]->text(), QStringLiteral("False"));
  test->Check1[3]->click();
  EXPECT_EQ(test->Check1[3]->text(), QStringLiteral("True"));
  test->Check1[3]->click();
  EXPECT_EQ(test->Check1[3]->text(), QStringLiteral("False"));
}

TEST_F(HunttestTest, EachScorePaysItsPrizeWithItsWords) {
  struct Case {
    int wrong;
    const char* key;
    int16_t money;
  };
  for (const Case c : {Case{0, "score100", 2600}, Case{1, "score75", 2575}, Case{2, "score50", 2550},
                       Case{3, "scorew", 2500}}) {
    Game.Money = 2500;
    Game.TestRewarded = false;
    auto test = sit(5);
    answer(*test, c.wrong);
    scorePaying(*test);
    EXPECT_EQ(Game.Money, c.money) << c.key;
    EXPECT_TRUE(Game.TestRewarded) << c.key;
    EXPECT_EQ(spoken().last(), QString::fromLatin1(c.key));
    EXPECT_EQ(dialogs->last(), (MessageBox{lodge::prizeFor(10 - c.wrong).message, Buttons::Ok, Icon::None,
                                           QStringLiteral("Hunting Test")}));
  }
}

TEST_F(HunttestTest, ASecondTestInTheSameHuntPaysNothingAndSaysNothing) {
  auto test = sit(2);
  answer(*test, 0);
  scorePaying(*test);
  EXPECT_EQ(Game.Money, 2600);
  const size_t boxes = dialogs->shown().size();
  const QStringList said = spoken();

  auto again = sit(7);
  answer(*again, 0);
  again->Scoretest_Click();
  test->Scoretest_Click();
  EXPECT_EQ(Game.Money, 2600);
  EXPECT_EQ(draws->remaining(), 0u) << "nothing was said";
  EXPECT_EQ(dialogs->shown().size(), boxes);
  EXPECT_EQ(spoken(), said);
}

TEST_F(HunttestTest, WrongAnswersAreMarkedAndRightOnesCleared) {
  auto test = sit(0);
  answer(*test, 2);
  scorePaying(*test);
  EXPECT_TRUE(test->markedWrong(0));
  EXPECT_TRUE(test->markedWrong(1));
  EXPECT_FALSE(test->markedWrong(2));
  answer(*test, 0);
  test->Scoretest_Click();
  EXPECT_FALSE(test->markedWrong(0));
}

TEST_F(HunttestTest, APrizeThatWouldOverflowTheWalletChangesNothing) {
  Game.Money = 32700;
  auto test = sit(0);
  answer(*test, 0);
  EXPECT_THROW(test->Scoretest_Click(), rt::OverflowError);
  EXPECT_EQ(Game.Money, 32700);
  EXPECT_FALSE(Game.TestRewarded);
}

TEST_F(HunttestTest, ThePrintedSheetCarriesTheQuestionsAndTheAnswers) {
  platform::ScopedService<platform::Printer, platform::RecordingPrinter> printer;
  Game.HunterName = QStringLiteral("Ada");
  auto test = sit(1);
  test->printbut_Click();
  ASSERT_EQ(printer->texts().size(), 1);
  const QStringList lines = printer->texts().front().split(u'\n');
  EXPECT_EQ(lines.front(), QStringLiteral("Hunting Test"));
  EXPECT_TRUE(lines.contains(QStringLiteral("For Ada")));
  const auto header = lines.indexOf(QStringLiteral(".  T  F   -"));
  ASSERT_GE(header, 0);
  EXPECT_TRUE(lines[header + 1].endsWith(QStringLiteral("Question 1, true or false")));
  const auto answers = lines.indexOf(QStringLiteral("Answers"));
  ASSERT_GT(answers, header);
  EXPECT_EQ(lines[answers + 1], QStringLiteral("1. True"));
  EXPECT_EQ(lines[answers + 2], QStringLiteral("2. False"));
  EXPECT_EQ(printer->names().front(), QStringLiteral("Hunting Test"));
}

TEST_F(HunttestTest, WithoutAPrinterTheSheetGoesToTheSaveFolderOrSaysItCannot) {
  Game.Fileloc = QStringLiteral("C:\\Hunt\\Saves\\");
  auto test = sit(1);
  {
    platform::ScopedService<platform::Printer, platform::RecordingPrinter> pdf(
        platform::PrintResult{true, QStringLiteral("/saves/Hunting Test.pdf")});
    test->printbut_Click();
    EXPECT_EQ(pdf->pdfFolder(), Game.Fileloc);
    ASSERT_EQ(dialogs->shown().size(), 1u);
    EXPECT_TRUE(dialogs->last().text.contains(QStringLiteral("/saves/Hunting Test.pdf")));
  }
  platform::ScopedService<platform::Printer, platform::RecordingPrinter> broken(
      platform::PrintResult{false, {}});
  test->printbut_Click();
  ASSERT_EQ(dialogs->shown().size(), 2u);
  EXPECT_EQ(dialogs->last().text, QStringLiteral("The test can't be printed."));
}

TEST_F(HunttestTest, AShortQuestionFileLeavesTheMissingQuestionsBlank) {
  drive.write("data/htest.csv", "1,\"Only one\"\r\n");
  auto test = sit(0);
  EXPECT_EQ(test->Question[0]->text(), QStringLiteral("Only one"));
  EXPECT_EQ(test->Question[1]->text(), QString());
}

}  // namespace
