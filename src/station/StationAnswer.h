#pragma once

#include <QDateTime>
#include <QString>

#include "graphics/Picture.h"

/// What the station says to one scan.
struct StationAnswer {
  enum class Kind {
    SignedIn,
    SignedOut,
    AlreadySignedOut,
    RepeatedScan,
    UnknownCard,
    Failed,
    /// The database is missing or another program holds it: the card is to be scanned again.
    Busy,
  };

  Kind kind = Kind::Failed;
  /// What the person is told.
  QString text{};
  QDateTime moment{};
  /// Empty when it is not known whose card it is.
  QString name{};
  QString department{};
  /// Empty when there is none or it cannot be read.
  graphics::PicturePointer photo{};
  /// What went wrong, for whoever looks after the station; empty when nothing did.
  QString failure{};
};
