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
      QStringLiteral("QTextEdit { background: rgba(251, 246, 233, 230); color: #20180c; border: none; }"));
  connect(Closebut, &QPushButton::clicked, this, &Hguide::Closebut_Click);
  resize_->place(Background, QRect(QPoint(0, 0), lodge::kLodgeDesign));
  resize_->place(RichTextBox1, {66, 92, 882, 430}, 11);
  resize_->place(Closebut, {828, 528, 120, 38}, 12);
}

void Hguide::Form_Load() {
  lodge::placeOverHuntingScreen(*this);
  Background->setPicturePath(lodge::lodgeArtPath(QStringLiteral("hguide.bmp")));
  RichTextBox1->setFileName(Game.MediaRoot + QStringLiteral("data\\safety.rtf"));
}

void Hguide::Closebut_Click() {
  close();
}
