// SPDX-License-Identifier: GPL-2.0-or-later
#include "shooting/record_book.h"

#include "platform/picture_box.h"
#include "platform/records/record_data.h"
#include "platform/resize_widget.h"
#include "shell/game_state.h"
#include "shell/names.h"
#include "shooting/scene_layout.h"
#include "shooting/trophy_book.h"
#include "shooting/trophy_record.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

namespace {

constexpr QSize kDesign{640, 480};
constexpr QRect kGridRect{30, 186, 580, 240};
// Shares of the room left in the grid's width, given most to the columns whose texts vary most.
constexpr int kColumnShares[kTrophyColumns] = {14, 10, 25, 11, 10, 19, 9, 17, 11};
// Rows kept when the grid is cleared: the headings and one row under them.
constexpr int kKeptRows = 2;

QString quoted(const QString& text) {
  return u'"' + text + u'"';
}

}  // namespace

RecordBook::RecordBook()
    : Background(new platform::PictureBox(this)),
      Trophypic(new platform::PictureBox(this)),
      Specieslab(new QLabel(this)),
      VSFMyGrid(new QTableWidget(kKeptRows, kTrophyColumns, this)),
      catback(new QPushButton(QStringLiteral("<< Back"), this)),
      Catnext(new QPushButton(QStringLiteral("Next >>"), this)),
      Closebox(new QPushButton(QStringLiteral("Close"), this)),
      VsData10(std::make_unique<platform::RecordData>()),
      resize_(new platform::ReSize(this, kDesign, platform::ReSize::Fit::KeepShape)) {
  setWindowTitle(QStringLiteral("Record Book"));
  setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
  setStyleSheet(
      QStringLiteral("RecordBook { background: #1b140c; } QLabel#Specieslab { color: #3a2410; }"
                     "QTableWidget { background: #f6efdc; color: #1e160c; gridline-color: #b8a880; }"));
  Specieslab->setObjectName(QStringLiteral("Specieslab"));
  Specieslab->setAlignment(Qt::AlignCenter);
  Specieslab->setWordWrap(true);
  QFont bold = Specieslab->font();
  bold.setBold(true);
  Specieslab->setFont(bold);
  VSFMyGrid->horizontalHeader()->hide();
  VSFMyGrid->verticalHeader()->hide();
  VSFMyGrid->setEditTriggers(QAbstractItemView::NoEditTriggers);
  VSFMyGrid->setSelectionMode(QAbstractItemView::NoSelection);
  connect(catback, &QPushButton::clicked, this, &RecordBook::catback_Click);
  connect(Catnext, &QPushButton::clicked, this, &RecordBook::Catnext_Click);
  connect(Closebox, &QPushButton::clicked, this, &RecordBook::Closebox_Click);
  placeWidgets();
  resize(kDesign);
}

RecordBook::~RecordBook() = default;

void RecordBook::placeWidgets() {
  resize_->place(Background, QRect(QPoint(0, 0), kDesign));
  // The book's painted title heads the left page; the species' picture sits under it and its
  // name in ink on the right page, clear of the gutter.
  resize_->place(Trophypic, {44, 60, 160, 120});
  resize_->place(Specieslab, {372, 84, 230, 64}, 18);
  resize_->place(VSFMyGrid, kGridRect, 7);
  resize_->place(catback, {150, 432, 100, 30}, 10);
  resize_->place(Catnext, {270, 432, 100, 30}, 10);
  resize_->place(Closebox, {390, 432, 100, 30}, 10);
}

void RecordBook::Form_Load() {
  // A damaged book would make every later kill fail; it is kept aside before anything reads it.
  keepTrophyBookUsable();
  placeFullScreenScene(*this);
  Background->setPicturePath(Game.MediaRoot + QStringLiteral("art\\") + Game.AreaLetter +
                             QStringLiteral("trophy.bmp"));
  if (Game.ScreenMode == kBrowseMode) {
    page_ = 1;
    DoViewData(1);
    showPage();
  }
  if (Game.ScreenMode == kAppendMode) {
    appendTrophy();
    page_ = Game.CurAnimal;
    showPage();
    DoViewData(page_);
  }
}

void RecordBook::appendTrophy() {
  appendTrophyTo(*VsData10);
}

void RecordBook::showPage() {
  Specieslab->setText(SpeciesName(page_));
  Trophypic->setPicturePath(Game.MediaRoot + QStringLiteral("art\\Trophy") + QString::number(page_) +
                            QStringLiteral(".bmp"));
}

void RecordBook::catback_Click() {
  page_ = previousTrophyPage(page_);
  DoViewData(page_);
  showPage();
}

void RecordBook::Catnext_Click() {
  page_ = nextTrophyPage(page_);
  DoViewData(page_);
  showPage();
}

void RecordBook::writeHeadings() {
  const QStringList headings = trophyHeadings();
  for (int column = 0; column < kTrophyColumns; ++column) {
    auto* item = new QTableWidgetItem(headings[column]);
    QFont font = item->font();
    font.setBold(true);
    item->setFont(font);
    item->setBackground(QColor(0xd8c8a0));
    VSFMyGrid->setItem(0, column, item);
  }
}

void RecordBook::fitColumns(int gridWidth) {
  // Each column as wide as its longest text, the room left over shared out, so that a page
  // of short rows still spans the book.
  VSFMyGrid->resizeColumnsToContents();
  int shares = 0, used = 0;
  for (int column = 0; column < kTrophyColumns; ++column) {
    shares += kColumnShares[column];
    used += VSFMyGrid->columnWidth(column);
  }
  const int spare = gridWidth - 2 * VSFMyGrid->frameWidth() - used;
  if (spare <= 0) return;
  for (int column = 0; column < kTrophyColumns; ++column)
    VSFMyGrid->setColumnWidth(column,
                              VSFMyGrid->columnWidth(column) + spare * kColumnShares[column] / shares);
}

void RecordBook::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  fitColumns(VSFMyGrid->width());
}

void RecordBook::addRow(const QString& line) {
  const int row = VSFMyGrid->rowCount();
  VSFMyGrid->insertRow(row);
  const QStringList cells = trophyRowCells(line);
  for (int column = 0; column < cells.size(); ++column)
    VSFMyGrid->setItem(row, column, new QTableWidgetItem(cells[column]));
}

void RecordBook::DoViewData(int16_t page) {
  while (VSFMyGrid->rowCount() > kKeptRows) VSFMyGrid->removeRow(VSFMyGrid->rowCount() - 1);
  VSFMyGrid->clearContents();
  VSFMyGrid->setUpdatesEnabled(false);
  writeHeadings();
  VsData10->SetDatabaseName(trophyBookPath());
  VsData10->SetCriteria(QStringLiteral("Field(\"Animaltype\") = ") + quoted(SpeciesName(page).trimmed()));
  VsData10->FindFirst();
  while (!VsData10->NoMatch()) {
    addRow(trophyRowLine(*VsData10));
    VsData10->FindNext();
  }
  fitColumns(sharedScreenPixels().width() * kGridRect.width() / kDesign.width());
  VSFMyGrid->setUpdatesEnabled(true);
}

void RecordBook::Closebox_Click() {
  close();
}
