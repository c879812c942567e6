#include "ui/HelpMenu.h"

#include "runtime/ProgramDirectory.h"
#include "ui/frmAbout.h"
#include "ui/frmMain.h"
#include "ui/mdlInternet.h"

namespace {

void open(const QString& target, frmMain& window) {
  if (!OpenDocument(target)) window.Status().note(QStringLiteral("未能打开：") + target);
}

}  // namespace

void mnuHelpFile_Click(frmMain& window) {
  open(runtime::appFile(QStringLiteral("HELP.CHM")), window);
}

void mnuVistHomePage_Click(frmMain& window) {
  open(homePage(), window);
}

void mnuAbout_Click(frmMain& window) {
  frmAbout(&window).exec();
}
