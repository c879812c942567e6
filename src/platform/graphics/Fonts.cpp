#include "graphics/Fonts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include <QCoreApplication>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHash>
#include <QStringList>

#include "graphics/Twips.h"

namespace graphics {
namespace {

constexpr int clericalStretch = 130;

const QString& songFace() {
  static const QString name = QStringLiteral("AR PL UMing CN");
  return name;
}

const QString& gothicFace() {
  static const QString name = QStringLiteral("WenQuanYi Micro Hei");
  return name;
}

/// What stands in for a family whose name contains the first text; the first that this system has is taken.
struct StandIn {
  QString part;
  QStringList families;
};

const std::array<StandIn, 16>& standIns() {
  static const QString kai = QStringLiteral("AR PL UKai CN");
  static const std::array<StandIn, 16> table{{
      {QStringLiteral("仿宋"), {QStringLiteral("FandolFang"), QStringLiteral("FandolFang R"), songFace()}},
      {QStringLiteral("FangSong"),
       {QStringLiteral("FandolFang"), QStringLiteral("FandolFang R"), songFace()}},
      {QStringLiteral("宋"), {songFace()}},
      {QStringLiteral("SimSun"), {songFace()}},
      {QStringLiteral("楷"), {kai}},
      {QStringLiteral("KaiTi"), {kai}},
      {QStringLiteral("隶"), {kai}},
      {QStringLiteral("LiSu"), {kai}},
      {QStringLiteral("黑"), {gothicFace()}},
      {QStringLiteral("SimHei"), {gothicFace()}},
      {QStringLiteral("YaHei"), {gothicFace()}},
      {QStringLiteral("圆"), {gothicFace()}},
      {QStringLiteral("Arial"), {QStringLiteral("Liberation Sans")}},
      {QStringLiteral("Helvetica"), {QStringLiteral("Liberation Sans")}},
      {QStringLiteral("Times"), {QStringLiteral("Liberation Serif")}},
      {QStringLiteral("Courier"), {QStringLiteral("Liberation Mono")}},
  }};
  return table;
}

bool isClerical(const QString& name) {
  return name.contains(QStringLiteral("隶")) || name.contains(QStringLiteral("LiSu"), Qt::CaseInsensitive);
}

QString findFamily(const QString& name) {
  if (QFontDatabase::hasFamily(name)) return name;
  for (const StandIn& standIn : standIns()) {
    if (!name.contains(standIn.part, Qt::CaseInsensitive)) continue;
    for (const QString& family : standIn.families) {
      if (QFontDatabase::hasFamily(family)) return family;
    }
  }
  return songFace();
}

QFont makeFont(const FontDescription& description) {
  const QString family = substituteFamily(description.name);
  QFont font;
  // A Latin family lacks Chinese, and left to itself the system picks whatever face comes first.
  font.setFamilies({family, songFace(), gothicFace()});
  font.setPixelSize(static_cast<int>(std::lround(description.size * twipsPerPoint)));
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setBold(description.bold);
  font.setItalic(description.italic);
  if (isClerical(description.name) && family != description.name) font.setStretch(clericalStretch);
  return font;
}

using FontKey = std::pair<QString, std::pair<double, int>>;

/// Emptied before the application object goes, because a font must not outlive it.
template <typename Key, typename Value>
QHash<Key, Value>& cacheOf() {
  static QHash<Key, Value> cache;
  static const bool emptiedInTime = [] {
    qAddPostRoutine([] { cache.clear(); });
    return true;
  }();
  Q_UNUSED(emptiedInTime);
  return cache;
}

}  // namespace

double drawableSize(double points) {
  constexpr double standard = 10;
  if (!std::isfinite(points) || points <= 0) return standard;
  return std::clamp(points, 1.0, 500.0);
}

QFont twipFont(const FontDescription& description) {
  FontDescription drawable = description;
  drawable.size = drawableSize(description.size);
  const FontKey key{drawable.name, {drawable.size, (drawable.bold ? 1 : 0) + (drawable.italic ? 2 : 0)}};
  auto& cache = cacheOf<FontKey, QFont>();
  const auto found = cache.constFind(key);
  return found != cache.constEnd() ? *found : *cache.insert(key, makeFont(drawable));
}

QString substituteFamily(const QString& name) {
  auto& cache = cacheOf<QString, QString>();
  const auto found = cache.constFind(name);
  return found != cache.constEnd() ? *found : *cache.insert(name, findFamily(name));
}

QFont userInterfaceFont() {
  QFont font = QGuiApplication::font();
  font.setFamilies({gothicFace(), font.family()});
  return font;
}

}  // namespace graphics
