#include <chrono>
#include <functional>
#include <gtest/gtest.h>
#include <thread>

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include "sound/AlsaHost.h"
#include "sound/Samples.h"

namespace {

/// Names a device `tape` that keeps in a file what it is given, and no other.
class AlsaHost : public ::testing::Test {
 protected:
  AlsaHost() {
    QFile settings(directory.filePath(QStringLiteral("asound.conf")));
    EXPECT_TRUE(settings.open(QIODevice::WriteOnly));
    settings.write("pcm.silence { type null }\npcm.tape { type file slave.pcm silence file \"" +
                   QFile::encodeName(tapeFile()) + "\" format raw }\n");
    qputenv("ALSA_CONFIG_PATH", QFile::encodeName(settings.fileName()));
  }
  void TearDown() override { qunsetenv("ALSA_CONFIG_PATH"); }

  [[nodiscard]] QString tapeFile() const { return directory.filePath(QStringLiteral("tape.raw")); }
  [[nodiscard]] QByteArray tape() const {
    QFile file(tapeFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  QTemporaryDir directory;
};

QByteArray bytesOf(const sound::Signal& signal) {
  const auto samples = sound::samplesOf(signal, sound::AlsaHost::rate);
  return {reinterpret_cast<const char*>(samples.data()), static_cast<qsizetype>(samples.size() * 2)};
}

bool comesTrue(const std::function<bool()>& condition) {
  QElapsedTimer waited;
  for (waited.start(); waited.elapsed() < 5000; std::this_thread::sleep_for(std::chrono::milliseconds(5))) {
    if (condition()) return true;
  }
  return false;
}

const sound::Signal rising{{880, 60}, {1320, 90}};

TEST_F(AlsaHost, HandsEverySampleToTheDevice) {
  sound::AlsaHost host("tape");
  host.play(rising);
  EXPECT_TRUE(comesTrue([this] { return tape().startsWith(bytesOf(rising)); }));
}

TEST_F(AlsaHost, WithoutADeviceItGoesOnSilently) {
  ::testing::internal::CaptureStderr();
  {
    sound::AlsaHost host("missing");
    host.play(rising);
    host.play(rising);
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
  }
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

TEST_F(AlsaHost, IsHeardThroughTheSeamWhileInstalled) {
  sound::play(rising);
  {
    sound::AlsaHost host("tape");
    EXPECT_EQ(sound::installHost(&host), nullptr);
    sound::play(rising);
    EXPECT_TRUE(comesTrue([this] { return !tape().isEmpty(); }));
    EXPECT_EQ(sound::installHost(nullptr), &host);
  }
  sound::play(rising);
}

}  // namespace
