// SPDX-License-Identifier: GPL-2.0-or-later
// The hunter's record book: one page per species listing every trophy taken, read from the
// player's trophy.isd; after a lawful kill it first writes the new trophy and opens on it.
#pragma once

#include <QDialog>

#include <cstdint>
#include <memory>

class QLabel;
class QPushButton;
class QTableWidget;
namespace platform {
class PictureBox;
class RecordData;
class ReSize;
}  // namespace platform

class RecordBook : public QDialog {
  Q_OBJECT

 public:
  static constexpr int16_t kBrowseMode = 3;
  static constexpr int16_t kAppendMode = 4;

  RecordBook();
  ~RecordBook() override;

  void Form_Load();
  void DoViewData(int16_t page);
  void catback_Click();
  void Catnext_Click();
  void Closebox_Click();

  platform::PictureBox* Background;
  platform::PictureBox* Trophypic;
  QLabel* Specieslab;
  QTableWidget* VSFMyGrid;
  QPushButton* catback;
  QPushButton* Catnext;
  QPushButton* Closebox;
  std::unique_ptr<platform::RecordData> VsData10;

  int16_t page() const { return page_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void fitColumns(int gridWidth);
  void placeWidgets();
  void appendTrophy();
  void showPage();
  void writeHeadings();
  void addRow(const QString& line);

  platform::ReSize* resize_;
  int16_t page_ = 1;
};
