#pragma once

#include <cstdint>

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace cli {

class DemoRandom;

/// What an invented person looks like. The numbers choose from the painter's tables.
struct Face {
  bool woman = false;
  int skin = 0;
  int hairColor = 0;
  int hairStyle = 0;
  int clothes = 0;
  int collar = 0;
  int backdrop = 0;
  bool glasses = false;
  /// Percent around 100: how wide and how long the head is.
  int headWidth = 100;
  int headHeight = 100;
  /// Start of the film grain; no two people share it.
  std::uint64_t grain = 0;

  [[nodiscard]] static Face drawn(DemoRandom& random);
};

/// The face painted head and shoulders.
[[nodiscard]] QImage paintFace(const Face& face, const QSize& size);

/// Takes the photos: JPEG files of about the same size.
class PortraitStudio {
 public:
  /// Photos of about `kilobytes` each; 0 leaves the size to what a plain 240 by 320 picture needs.
  explicit PortraitStudio(int kilobytes);

  /// The JPEG file of `face`, always the same bytes.
  [[nodiscard]] QByteArray portrait(const Face& face) const;

 private:
  QSize m_size{240, 320};
};

}  // namespace cli
