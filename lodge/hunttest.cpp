// SPDX-License-Identifier: GPL-2.0-or-later
#include "lodge/hunttest.h"

#include "lodge/lodge_frame.h"
#include "lodge/speech.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/picture_box.h"
#include "platform/printer.h"
#include "platform/random.h"
#include "platform/resize_widget.h"
#include "platform/runtime.h"
#include "platform/text_file.h"
#include "shell/game_state.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

namespace {

// A test starts at one of the first twenty lines of the question file.
constexpr int kStartLines = 20;
const QString kTitle = QStringLiteral("Hunting Test");

QString answerWord(int16_t value) {
  return value == 1 ? QStringLiteral("True") : QStringLiteral("False");
}

}  // namespace

Hunttest::Hunttest()
    : Background(new platform::PictureBox(this)),
      Scoretest(new QPushButton(QStringLiteral("Score Test"), this)),
      printbut(new QPushButton(QStringLiteral("Print"), this)),
      Closebox(new QPushButton(QStringLiteral("Close"), this)),
      resize_(new platform::ReSize(this, lodge::kLodgeDesign)) {
  lodge::prepareLodgeScreen(*this, QStringLiteral("Hunter's Test"));
  for (int i = 0; i < lodge::kTestQuestions; ++i) {
    Question[i] = new QLabel(this);
    Question[i]->setWordWrap(true);
    lodge::onPaper(*Question[i]);
    Check1[i] = new QCheckBox(QStringLiteral("False"), this);
    Check1[i]->setStyleSheet(
        QStringLiteral("QCheckBox { color: #2b1d0e; background: rgba(250, 243, 226, 228); padding: 2px 6px;"
                       " border-radius: 4px; font-weight: bold; }"));
    connect(Check1[i], &QCheckBox::clicked, this, [this, i] { Check1_Click(i); });
  }
  connect(Scoretest, &QPushButton::clicked, this, &Hunttest::Scoretest_Click);
  connect(printbut, &QPushButton::clicked, this, &Hunttest::printbut_Click);
  connect(Closebox, &QPushButton::clicked, this, &Hunttest::Closebox_Click);
  placeWidgets();
}

void Hunttest::placeWidgets() {
  resize_->place(Background, QRect(QPoint(0, 0), lodge::kLodgeDesign));
  for (int i = 0; i < lodge::kTestQuestions; ++i) {
    resize_->place(Question[i], {96, 110 + 41 * i, 670, 37}, 10);
    resize_->place(Check1[i], {780, 114 + 41 * i, 140, 28}, 11);
  }
  resize_->place(Scoretest, {96, 530, 170, 40}, 12);
  resize_->place(printbut, {280, 530, 130, 40}, 12);
  resize_->place(Closebox, {790, 530, 130, 40}, 12);
}

void Hunttest::Form_Load() {
  lodge::placeOverHuntingScreen(*this);
  Background->setPicturePath(lodge::lodgeArtPath(QStringLiteral("htest.bmp")));
  platform::random().Randomize();
  readQuestions(static_cast<int>(rt::Int(kStartLines * platform::Rnd())));
}

void Hunttest::readQuestions(int start) {
  try {
    rt::ListInput in(platform::files().resolve(Game.MediaRoot + QStringLiteral("data\\htest.csv")));
    for (int line = 0; line < start; ++line) in.lineInput();
    for (int i = 0; i < lodge::kTestQuestions; ++i) {
      answers_[i] = in.inputInt16();
      questions_[i] = in.inputString();
      Question[i]->setText(questions_[i]);
    }
  } catch (const std::exception&) {
    // A short or missing file leaves the questions read so far; the rest stay blank.
  }
}

void Hunttest::Check1_Click(int index) {
  Check1[index]->setText(answerWord(Check1[index]->isChecked() ? 1 : 0));
}

bool Hunttest::markedWrong(int index) const {
  return Question[index]->property("wrong").toBool();
}

void Hunttest::markQuestion(int index, bool wrong) {
  Question[index]->setProperty("wrong", wrong);
  Question[index]->setStyleSheet(
      wrong ? QStringLiteral("QLabel { color: #b01010; border: 2px solid #b01010; }") : QString());
}

void Hunttest::Scoretest_Click() {
  lodge::TestAnswers given{};
  for (int i = 0; i < lodge::kTestQuestions; ++i) given[i] = Check1[i]->isChecked() ? 1 : 0;
  const auto marks = lodge::markAnswers(answers_, given);
  for (int i = 0; i < lodge::kTestQuestions; ++i) markQuestion(i, !marks[i]);
  // The prizes are paid once a hunt; a second sitting is marked and nothing more.
  if (!Game.TestRewarded) payPrize(lodge::countRight(marks));
}

void Hunttest::payPrize(int score) {
  const lodge::TestPrize prize = lodge::prizeFor(score);
  const int16_t wallet = rt::add16(Game.Money, prize.dollars);
  Game.TestRewarded = true;
  talk::Saynotext(prize.speechKey);
  Game.Money = wallet;
  platform::MsgBox(prize.message, platform::Buttons::Ok, platform::Icon::None, kTitle);
}

QString Hunttest::testSheet() const {
  QString sheet = kTitle + QStringLiteral("\n\nFor ") + Game.HunterName + QStringLiteral("\n\n.  T  F   -\n");
  for (int i = 0; i < lodge::kTestQuestions; ++i)
    sheet += QString::number(i + 1) + QStringLiteral(".  _  _   ") + questions_[i] + u'\n';
  sheet += QStringLiteral("\nAnswers\n");
  for (int i = 0; i < lodge::kTestQuestions; ++i)
    sheet += QString::number(i + 1) + QStringLiteral(". ") + answerWord(answers_[i]) + u'\n';
  return sheet;
}

void Hunttest::printbut_Click() {
  platform::printer().setPdfFolder(Game.Fileloc);
  const platform::PrintResult result = platform::printer().PrintText(testSheet(), kTitle);
  if (!result.printed)
    platform::MsgBox(QStringLiteral("The test can't be printed."), platform::Buttons::Ok,
                     platform::Icon::Exclamation, kTitle);
  else if (!result.pdfPath.isEmpty())
    platform::MsgBox(QStringLiteral("There is no printer; the test was saved as ") + result.pdfPath + u'.',
                     platform::Buttons::Ok, platform::Icon::Information, kTitle);
}

void Hunttest::Closebox_Click() {
  close();
}
