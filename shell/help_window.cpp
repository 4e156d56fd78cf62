// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/help_window.h"

#include "platform/files.h"
#include "shell/game_state.h"
#include "shell/screen_instance.h"

#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace {

// Catches F1 before any widget, so help opens from every screen alike.
class HelpKeyFilter : public QObject {
 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_F1) {
      OpenHelp();
      return true;
    }
    return QObject::eventFilter(watched, event);
  }
};

}  // namespace

HelpWindow::HelpWindow() : browser_(new QTextBrowser(this)) {
  setWindowTitle(QStringLiteral("Help"));
  browser_->setOpenExternalLinks(true);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(browser_);
  resize(720, 540);
}

void HelpWindow::showHelp() {
  const QString path = QString::fromStdString(platform::files().resolve(Game.HelpFile).string());
  if (QFileInfo::exists(path))
    browser_->setSource(QUrl::fromLocalFile(path), QTextDocument::HtmlResource);
  else
    browser_->setHtml(QStringLiteral("<h2>Help</h2><p>The help pages were not found at %1.</p>")
                          .arg(Game.HelpFile.toHtmlEscaped()));
  show();
  raise();
}

QString HelpWindow::shownText() const {
  return browser_->toPlainText();
}

void OpenHelp() {
  ScreenInstance<HelpWindow>::get().showHelp();
}

void installHelpKey() {
  static HelpKeyFilter filter;
  qApp->installEventFilter(&filter);
}
