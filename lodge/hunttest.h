// SPDX-License-Identifier: GPL-2.0-or-later
// The hunter's test: ten true-or-false questions on hunting law and safety from a random
// place in the question file. A good score pays a prize, once a hunt; the sheet can be printed.
#pragma once

#include "lodge/test_scoring.h"

#include <QDialog>

#include <array>

class QCheckBox;
class QLabel;
class QPushButton;
namespace platform {
class PictureBox;
class ReSize;
}  // namespace platform

class Hunttest : public QDialog {
  Q_OBJECT

 public:
  Hunttest();

  void Form_Load();
  void Check1_Click(int index);
  void Scoretest_Click();
  void printbut_Click();
  void Closebox_Click();

  // The printed sheet: title, the hunter, the questions and the right answers.
  QString testSheet() const;
  const lodge::TestAnswers& rightAnswers() const { return answers_; }
  bool markedWrong(int index) const;

  platform::PictureBox* Background;
  std::array<QLabel*, lodge::kTestQuestions> Question{};
  std::array<QCheckBox*, lodge::kTestQuestions> Check1{};
  QPushButton* Scoretest;
  QPushButton* printbut;
  QPushButton* Closebox;

 private:
  void placeWidgets();
  void readQuestions(int start);
  void markQuestion(int index, bool wrong);
  void payPrize(int score);

  platform::ReSize* resize_;
  lodge::TestAnswers answers_{};
  std::array<QString, lodge::kTestQuestions> questions_;
};
