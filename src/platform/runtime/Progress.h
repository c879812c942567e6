#pragma once

namespace runtime {

/// Somebody who shows how far a long operation is: the window, while it loads thousands of photos.
class ProgressListener {
 public:
  ProgressListener() = default;
  ProgressListener(const ProgressListener&) = delete;
  ProgressListener& operator=(const ProgressListener&) = delete;
  virtual ~ProgressListener() = default;

  /// `done` steps are behind; `total` is 0 when it is not known. Called for every step: a listener paints
  /// only as often as it likes. Must not let the user change what the operation works on.
  virtual void progress(int done, int total) = 0;
  /// Whether the user wants the operation to end without effect. Only operations that say so ask for it.
  [[nodiscard]] virtual bool isCancelled() const { return false; }
};

/// Tells the installed listener, if there is one.
void reportProgress(int done, int total);

/// Tells the installed listener and gives whether it wants the operation to go on.
[[nodiscard]] bool goesOn(int done, int total);

/// Installs a listener for its own lifetime and gives way to the one before when it goes.
class ProgressScope {
 public:
  explicit ProgressScope(ProgressListener& listener);
  ~ProgressScope();
  ProgressScope(const ProgressScope&) = delete;
  ProgressScope& operator=(const ProgressScope&) = delete;

 private:
  ProgressListener* m_before;
};

}  // namespace runtime
