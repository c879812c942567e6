#include "ui/mdlInternet.h"

#include "shell/Shell.h"

bool OpenDocument(const QString& target) {
  return shell::openTarget(target);
}
