#pragma once

#include <map>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "ado/TextOrder.h"

/// The pictures of a folder, found by employee number: NUMBER.jpg, .jpeg or .png, case aside.
class RosterPhotos {
 public:
  /// Lists the folder itself, not what lies below. Throws runtime::RuntimeError when it is none, or when it
  /// is the program directory: there the program makes and deletes photo files of its own, and would delete
  /// these.
  explicit RosterPhotos(const QString& folder);

  /// The one picture of that number.
  struct Found {
    QString path{};
    /// Why there is not just one; empty when there is.
    QString fault{};
  };
  [[nodiscard]] Found find(const QString& number) const;

 private:
  QString m_folder;
  std::map<QString, QStringList, ado::TextOrder> m_files;
};

/// Throws runtime::RuntimeError, naming the file, unless it is a whole picture of a kind that a card can
/// show, of at most 64 million pixels.
void checkRosterPhoto(const QString& path);

/// What is to be stored of the picture: its bytes as they are when they are at most 512 KB, else a JPEG of at
/// most 1200 pixels a side, turned as it is to be seen. A card's photo is an inch or so, while the photos of
/// a telephone would make the database grow by gigabytes. Throws as checkRosterPhoto does.
[[nodiscard]] QByteArray loadRosterPhoto(const QString& path);
