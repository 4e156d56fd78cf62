// SPDX-License-Identifier: GPL-2.0-or-later
// The hunting screen: the hunter stands in a panorama, turns, walks through hotspots between
// lodge, camp, range and stands, and meets animals while the game clock runs. One class over
// several files by concern: navigation, clock, encounters, optics and the shot's aftermath,
// the head box's controls, and the voice.
#pragma once

#include "hunt/location_table.h"

#include <QString>
#include <QStringList>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <memory>

class QFrame;
class QLabel;
class QPushButton;
class QTimer;
class OpticsOverlay;
namespace platform {
class MCIWnd;
class PictureBox;
class SVControl;
}  // namespace platform

class surround : public QWidget {
  Q_OBJECT

 public:
  surround();
  ~surround() override;

  // Set-up and places.
  void Form_Initialize();
  void Form_Load();
  void Surrinit();
  void Setheadbox();
  void Clearheadbox();
  void SetItembuttons();
  void CHECKfiles() {}
  void CHKRestartGame();

  // The panoramas' events.
  void SVControl1_OnEnterHotspot(const QString& name);
  void SVControl1_OnLeaveHotspot(const QString& name);
  void SVControl1_OnLocation(int32_t heading);
  void SVControl1_OnSelectHotspot(const QString& name);
  void SVControl2_OnEnterHotspot(const QString& name);
  void SVControl2_OnLeaveHotspot(const QString& name);
  void SVControl2_OnLocation(int32_t heading);
  void SVOnLocation(int32_t heading);
  void SVEnterHotspot(const QString& name);
  void Timer1_Timer();

  // The clock.
  void AddTime(int16_t amount, const QString& interval);
  void AddTimeNoChk(int16_t amount, const QString& interval);

  // Encounters.
  void Timer2_Timer();
  void Callbutton_Click();
  void Animalsnds(int16_t species);
  void StartVideoshot();
  void TestEncounter();

  // Optics and the shot's aftermath.
  void Scope_Click();
  void Scopeon();
  void Scopeoff();
  void Aftershot();

  // The head box.
  void bntHuntgd_Click();
  void butInv_Click();
  void ChangeWep_Click();
  void Campbut_Click();
  void Mainmenu_Click();
  void btnMdnweb_Click();
  void btnQuillonweb_Click();
  void btnRedfern_Click();
  void SetToCamp();
  void Settolodge();

  // The voice.
  int16_t FillConvArr(const QString& key);
  void Saynotext(const QString& key);
  void Say(const QString& key);
  void InitSaylist(const QString& key);
  void Saylist(int16_t position);
  void MCIWnd1_Error(int error, const QString& text);
  void MCIWnd1_ExtendedModeChange(int mode);

  // Asked before the window closes; false keeps it open.
  bool Form_QueryUnload();

  std::unique_ptr<platform::SVControl> svcontrol1;
  std::unique_ptr<platform::SVControl> SVControl2;
  platform::MCIWnd* MCIWnd1;
  QTimer* Timer1;
  QTimer* Timer2;
  platform::PictureBox* Sleeppic;
  OpticsOverlay* opticspic;
  QFrame* Headbox;
  QLabel* compass;
  QLabel* Timebox;
  QLabel* Daybox;
  QLabel* Poidescript;
  QLabel* Rangelab;
  QFrame* frmBlank;
  QFrame* frmMain;
  QFrame* frmLodge;
  QFrame* frmCamp;
  QFrame* Huntbox;
  QPushButton* Mainmenu;
  QPushButton* butinv;
  QPushButton* bntHuntgd;
  QPushButton* ChangeWep;
  QPushButton* Campbut;
  QPushButton* Callbutton;
  QPushButton* Scope;
  QPushButton* Windbut;
  QPushButton* btnMdnweb;
  QPushButton* btnQuillonweb;
  QPushButton* btnRedfern;
  QStringList WindStrengths;
  QStringList WindDirections;

  // What the app does when the hunter asks to start again; the start screen lives above us.
  static void setRestartHandler(std::function<void()> restart);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void buildHeadBox();
  void connectEvents();
  void placeWidgets();
  void registerWithShell();
  void readTagLimits();
  void loadPanorama(const QString& location, int32_t heading);
  void showPlaceText(const QString& extra = {});
  void openLicence(int16_t mode);
  void moveToRecordedPlace(const QString& path);
  void arriveAt(int16_t placeType);

  // Navigation.
  void walkTo(const QString& name);
  void enterField(LocationRecord& place);
  void shootAtTarget(const QString& targetClass);
  void enterRange();
  void playAreaFilm();
  void playFilm(const QString& name);
  void findWoundedAnimal();
  void endOfHover();
  void enterHotspot(platform::SVControl& view, const QString& name);
  void leaveHotspot(platform::SVControl& view, const QString& name);

  // The clock.
  void refreshClock();
  void endDay();
  void nightPause(const QString& picture);
  void endHunt(const QString& picture);
  void showFullPicture(const QString& picture);

  // Encounters.
  void tickEvents();
  void shiftWind();
  void ambientSound();
  void pickTrailPoint();
  void encounter();
  bool chooseEncounterVideo();

  // The shot's aftermath.
  void animalDown();
  void killHandling(int16_t species);
  void bodyHit();
  void playTrackingFilm();
  int16_t opticsLevel() const;

  bool walking_ = false;
  int32_t heading1_ = 0;
  int32_t heading2_ = 0;
  int16_t opticsStand_ = -1;  // the stand the optics view holds
};
