#pragma once

#include <gtest/gtest.h>
#include <vector>

#include <QTemporaryDir>

#include "profile/Profile.h"
#include "support/Files.h"

/// A profile file in a directory of its own.
class ProfileTest : public ::testing::Test {
 protected:
  [[nodiscard]] QString path() const { return m_directory.filePath(QStringLiteral("a.ini")); }

  void fill(const QByteArray& content) const { support::writeFile(path(), content); }
  [[nodiscard]] QByteArray content() const { return support::contentOf(path()); }

  [[nodiscard]] std::string get(const QByteArray& section, const QByteArray& key, int size = 255) const {
    std::vector<char> buffer(static_cast<std::size_t>(size), '!');
    const int count =
        profile::GetPrivateProfileStringA(section, key, "<default>", buffer.data(), size, path());
    EXPECT_EQ(buffer.at(static_cast<std::size_t>(count)), '\0');
    return std::string(buffer.data(), static_cast<std::size_t>(count));
  }

  [[nodiscard]] bool set(const QByteArray& section, const QByteArray& key, const QByteArray& value) const {
    return profile::WritePrivateProfileStringA(section, key, value, path());
  }

  QTemporaryDir m_directory;
};
