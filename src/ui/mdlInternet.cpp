#include "ui/mdlInternet.h"

#include "foundation/GlobalDefine.h"
#include "shell/Shell.h"

bool OpenDocument(const QString& target) {
  return shell::openTarget(target);
}

QString homePage() {
  return QStringLiteral("http://") + gHomeAddress;
}
