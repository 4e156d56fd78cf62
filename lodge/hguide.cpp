// SPDX-License-Identifier: GPL-2.0-or-later
#include "lodge/hguide.h"

#include "lodge/lodge_frame.h"
#include "platform/picture_box.h"
#include "platform/resize_widget.h"
#include "platform/rtf/rich_text_box.h"
#include "shell/game_state.h"

#include <QPushButton>

Hguide::Hguide()
    : Background(new platform::PictureBox(this)),
      RichTextBox1(new platform::RichTextBox(this)),
      Closebut(new QPushButton(QStringLiteral("Close"), this)),
      resize_(new platform::ReSize(this, lodge::kLodgeDesign)) {
  lodge::prepareLodgeScreen(*this, QStringLiteral("Hunting Guide"));
  RichTextBox1->setStyleSheet(
      QStringLiteral("QTextEdit { background: #fbf6e9; color: #20180c; border: 2px solid #7a5a24; }"));
  connect(Closebut, &QPushButton::clicked, this, &Hguide::Closebut_Click);
  resize_->place(Background, QRect(QPoint(0, 0), lodge::kLodgeDesign));
  resize_->place(RichTextBox1, {70, 40, 874, 490}, 11);
  resize_->place(Closebut, {824, 548, 120, 40}, 12);
}

void Hguide::Form_Load() {
  lodge::placeOverHuntingScreen(*this);
  Background->setPicturePath(lodge::lodgeArtPath(QStringLiteral("hguide.bmp")));
  RichTextBox1->setFileName(Game.MediaRoot + QStringLiteral("data\\safety.rtf"));
}

void Hguide::Closebut_Click() {
  close();
}
