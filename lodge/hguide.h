// SPDX-License-Identifier: GPL-2.0-or-later
// The hunting guide: the world's safety and law text, read-only, the study text for the
// hunter's test.
#pragma once

#include <QDialog>

class QPushButton;
namespace platform {
class PictureBox;
class ReSize;
class RichTextBox;
}  // namespace platform

class Hguide : public QDialog {
  Q_OBJECT

 public:
  Hguide();

  void Form_Load();
  void Closebut_Click();

  platform::PictureBox* Background;
  platform::RichTextBox* RichTextBox1;
  QPushButton* Closebut;

 private:
  platform::ReSize* resize_;
};
