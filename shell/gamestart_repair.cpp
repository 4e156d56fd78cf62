// SPDX-License-Identifier: GPL-2.0-or-later
// The start screen's repair of a known system configuration fault: a registry value that
// disables the disk driver, and the CD driver line of the boot batch file.
#include "shell/gamestart.h"

#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/system_config.h"
#include "platform/text_file.h"
#include "shell/game_state.h"

namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

const QString kIosKey = QStringLiteral("System\\CurrentControlSet\\Services\\VXD\\IOS");
const QString kNoIde = QStringLiteral("NOIDE");
const QString kRepairTitle = QStringLiteral("System Configuration Error Detected");
const QString kCannotRepair = QStringLiteral("Error Could Not Repair");
const QString kReadNoIde =
    QStringLiteral("Please read the NOIDE.TXT file and contact your hardware manufacturer.");
const QString kRestartFailed = QStringLiteral("Could not close Windows. Please restart your system.");

QString markerPath() {
  return Game.Fileloc + QStringLiteral("noide.txt");
}

// A line that loads the CD driver and is not yet a remark becomes one.
QString remarkedLine(const QString& line) {
  const QString test = line.trimmed().toUpper();
  return test.contains(QStringLiteral("MSCDEX")) && !test.startsWith(QStringLiteral("REM "))
             ? QStringLiteral("REM ") + line
             : line;
}

}  // namespace

bool Gamestart::CheckNOIDEExist() {
  return platform::systemConfig().HasMachineValue(kIosKey, kNoIde);
}

void Gamestart::restartOrEnd(const QString& failureTitle) {
  if (!platform::systemConfig().RequestRestart())
    platform::MsgBox(kRestartFailed, Buttons::Ok, Icon::None, failureTitle);
  endProgram();
}

void Gamestart::CheckSystemConfig() {
  if (!CheckNOIDEExist()) return;
  auto& files = platform::files();
  if (files.exists(markerPath())) {
    // Repaired once already and the fault came back: put the boot file back and restart.
    platform::MsgBox(
        joinMessageLines({QStringLiteral("Err:BADIDE - Varnholt was unable to repair your system "
                                         "configuration error."),
                          kReadNoIde, QStringLiteral("Pressing OK will restart Windows.")}),
        Buttons::Ok, Icon::Critical, kCannotRepair);
    if (files.exists(QStringLiteral("c:\\autoexec.vrn"))) {
      files.remove(QStringLiteral("C:\\autoexec.bat"));
      files.rename(QStringLiteral("C:\\Autoexec.vrn"), QStringLiteral("C:\\Autoexec.bat"));
    }
    files.remove(markerPath());
    restartOrEnd(QStringLiteral("Could not close Windows"));
    return;
  }
  const Answer repair = platform::MsgBox(
      joinMessageLines({QStringLiteral("Varnholt has detected a system configuration error."),
                        QStringLiteral("To repair this error, click OK."),
                        QStringLiteral("To ignore this error and run the program, click Cancel.")}),
      Buttons::OkCancel, Icon::Critical, kRepairTitle);
  if (repair != Answer::Ok) {
    platform::MsgBox(
        joinMessageLines({QStringLiteral("WARNING- You have chosen to ignore a reported error condition."),
                          QStringLiteral("You may experience runtime errors when running this program.")}),
        Buttons::Ok, Icon::Exclamation, QStringLiteral("Ignore Error Condition"));
    return;
  }
  const Answer begin = platform::MsgBox(
      joinMessageLines({QStringLiteral("Close all other programs before repairing this error."),
                        QStringLiteral("Windows will restart at the end of the repair sequence."),
                        QStringLiteral("To begin repair, click OK."),
                        QStringLiteral("To quit repair sequence and exit the program, click Cancel.")}),
      Buttons::OkCancel, Icon::Critical, kRepairTitle);
  if (begin != Answer::Ok) {
    endProgram();
    return;
  }
  rt::PrintFile marker;
  marker.print(QStringLiteral("NoIDE"));
  try {
    marker.commit(files.resolve(markerPath()));
  } catch (const std::exception&) {
    // The repair goes on; the marker only guards against repeating it.
  }
  DeleteMSCDEX();
  DeleteNoIde();
  restartOrEnd(QStringLiteral("Could not close Windows."));
}

void Gamestart::DeleteMSCDEX() {
  auto& files = platform::files();
  std::optional<rt::ListInput> boot;
  try {
    boot.emplace(files.resolve(QStringLiteral("c:\\autoexec.bat")));
  } catch (const rt::FileNotFound&) {
    platform::MsgBox(
        joinMessageLines(
            {QStringLiteral("Could not locate C:\\AUTOEXEC.BAT file. "),
             QStringLiteral("This file should be located in the root directory on your boot drive."),
             QStringLiteral("You may need to manually REM out your MSCDEX.EXE in this file."),
             QStringLiteral("Please view the NOIDE.TXT file on the CD-ROM for more information.")}),
        Buttons::Ok, Icon::Exclamation, QStringLiteral("Could not find C:\\AUTOEXEC.BAT"));
    return;
  }
  files.rename(QStringLiteral("c:\\autoexec.bat"), QStringLiteral("c:\\autoexec.vrn"));
  rt::PrintFile rewritten;
  while (!boot->eof()) rewritten.print(remarkedLine(boot->lineInput()));
  try {
    rewritten.commit(files.resolve(QStringLiteral("c:\\autoexec.bat")));
  } catch (const std::exception&) {
    // The backup keeps the original; the next start finds the marker and puts it back.
  }
}

void Gamestart::DeleteNoIde() {
  if (platform::systemConfig().DeleteMachineValue(kIosKey, kNoIde)) return;
  platform::MsgBox(joinMessageLines({QStringLiteral("Err:NODEL - Varnholt was unable to repair your system "
                                                    "configuration error."),
                                     kReadNoIde}),
                   Buttons::Ok, Icon::Critical, kCannotRepair);
}
