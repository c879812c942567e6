#pragma once

#include <QString>

namespace store {

/// A file that takes its name only when it is complete, and never in the place of another. It is written
/// under a name of its own beside the target; dropped without commit() nothing is left.
class NewFile {
 public:
  /// Makes the empty file aside. Throws StoreError when the target exists or its directory takes no file.
  explicit NewFile(const QString& target);
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile();

  /// The path to write to. Nobody may hold it open at commit().
  [[nodiscard]] const QString& asidePath() const { return m_aside; }
  /// Syncs the file and gives it its name. Throws StoreError when the name has been taken meanwhile.
  void commit();

 private:
  QString m_target;
  QString m_aside;
  bool m_committed = false;
};

}  // namespace store
