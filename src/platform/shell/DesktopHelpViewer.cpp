#include "shell/DesktopHelpViewer.h"

#include <algorithm>
#include <array>

#include <QProcess>

namespace shell {

namespace {

constexpr int patienceMs = 3'000;
// The type's name and those that programs announce themselves under as well.
constexpr std::array typeNames = {QLatin1String("application/vnd.ms-htmlhelp"),
                                  QLatin1String("application/x-chm")};

bool hasDefault(const QString& type) {
  QProcess query;
  query.start(QStringLiteral("xdg-mime"), {QStringLiteral("query"), QStringLiteral("default"), type});
  return query.waitForFinished(patienceMs) && !query.readAllStandardOutput().trimmed().isEmpty();
}

}  // namespace

bool desktopHasHelpViewer() {
  return std::any_of(typeNames.begin(), typeNames.end(), hasDefault);
}

}  // namespace shell
