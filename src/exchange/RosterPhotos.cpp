#include "exchange/RosterPhotos.h"

#include <QBuffer>
#include <QDir>
#include <QPainter>

#include "graphics/Picture.h"
#include "runtime/ProgramDirectory.h"
#include "runtime/RuntimeError.h"

namespace {

constexpr qint64 mostPixels = 64'000'000;
constexpr qsizetype largestKept = 512 * 1024;
constexpr int longestSide = 1200;
constexpr int jpegQuality = 90;
constexpr int provingSide = 64;

[[noreturn]] void refuse(const QString& path, const QString& why) {
  throw runtime::RuntimeError(runtime::ErrorNumber::InvalidPicture,
                              QStringLiteral("照片“%1”%2").arg(path, why));
}

graphics::PicturePointer loadBounded(const QString& path) {
  graphics::PicturePointer picture = graphics::LoadPicture(path);
  const QSize size = picture->size();
  if (qint64{size.width()} * size.height() > mostPixels) {
    refuse(path, QStringLiteral("有 %1×%2 个像素，太大了").arg(size.width()).arg(size.height()));
  }
  // Readers of JPEG fill up what is missing with gray and say nothing.
  if (picture->jpeg() && !picture->jpeg()->complete) refuse(path, QStringLiteral("不完整"));
  return picture;
}

QImage decoded(const graphics::Picture& picture, const QString& path, int side) {
  QImage image = picture.decode({side, side});
  if (image.isNull()) refuse(path, QStringLiteral("已损坏，或大得无法读取"));
  return image;
}

/// JPEG knows no transparency.
QImage onWhite(const QImage& image) {
  if (!image.hasAlphaChannel()) return image;
  QImage paper(image.size(), QImage::Format_RGB32);
  paper.fill(Qt::white);
  QPainter(&paper).drawImage(0, 0, image);
  return paper;
}

QByteArray scaledJpeg(const graphics::Picture& picture, const QString& path) {
  QImage image = decoded(picture, path, longestSide);
  if (image.width() > longestSide || image.height() > longestSide) {
    image = image.scaled(longestSide, longestSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  }
  QBuffer jpeg;
  if (!onWhite(image).save(&jpeg, "JPEG", jpegQuality)) refuse(path, QStringLiteral("无法缩小"));
  return jpeg.data();
}

}  // namespace

RosterPhotos::RosterPhotos(const QString& folder) : m_folder(folder) {
  const QDir directory(folder);
  if (!directory.exists() || !directory.isReadable()) {
    throw runtime::RuntimeError(runtime::ErrorNumber::FileNotFound,
                                QStringLiteral("照片文件夹“%1”不存在或无法读取").arg(folder));
  }
  if (directory.canonicalPath() == QDir(runtime::AppPath()).canonicalPath()) {
    throw runtime::RuntimeError(
        runtime::ErrorNumber::FileAccess,
        QStringLiteral("“%1”是程序目录，程序会删除其中的照片文件；请把照片放到别的文件夹").arg(folder));
  }
  const QStringList patterns{QStringLiteral("*.jpg"), QStringLiteral("*.jpeg"), QStringLiteral("*.png")};
  for (const QFileInfo& file : directory.entryInfoList(patterns, QDir::Files | QDir::Hidden, QDir::Name)) {
    m_files[file.completeBaseName()].append(file.filePath());
  }
}

RosterPhotos::Found RosterPhotos::find(const QString& number) const {
  const auto files = m_files.find(number);
  if (files == m_files.end()) {
    return {.fault = QStringLiteral("没有照片 %1.jpg（或 .jpeg、.png）").arg(number)};
  }
  if (files->second.size() == 1) return {.path = files->second.first()};
  QStringList names;
  for (const QString& path : files->second) names.append(QFileInfo(path).fileName());
  return {.fault = QStringLiteral("有不止一张照片：") + names.join(QStringLiteral("、"))};
}

void checkRosterPhoto(const QString& path) {
  decoded(*loadBounded(path), path, provingSide);
}

QByteArray loadRosterPhoto(const QString& path) {
  const graphics::PicturePointer picture = loadBounded(path);
  return picture->bytes().size() > largestKept ? scaledJpeg(*picture, path) : picture->bytes();
}
