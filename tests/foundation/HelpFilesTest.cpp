#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "foundation/HelpFiles.h"
#include "runtime/RuntimeError.h"
#include "support/Files.h"

namespace {

const QString compiled = QStringLiteral("HELP.CHM");
const QString page = QStringLiteral("help/index.html");

class Help : public testing::Test {
 protected:
  Help() {
    for (const QString& name : {QStringLiteral("first/help"), QStringLiteral("second/help"), home()}) {
      QDir(m_above.path()).mkpath(name);
    }
  }
  void ship(const QString& place, const QString& name, const QByteArray& content) const {
    support::writeFile(m_above.filePath(place + u'/' + name), content);
  }
  [[nodiscard]] HelpFiles shipped() const {
    return HelpFiles({m_above.filePath(QStringLiteral("first")), m_above.filePath(QStringLiteral("second"))});
  }
  [[nodiscard]] QString home() const { return m_above.filePath(QStringLiteral("home")); }
  [[nodiscard]] QByteArray inHome(const QString& name) const {
    return support::contentOf(home() + u'/' + name);
  }

  QTemporaryDir m_above;
};

TEST_F(Help, ComesFromTheFirstPlaceThatHasAnyAndTellsWhatLacks) {
  EXPECT_TRUE(shipped().names().isEmpty());
  EXPECT_TRUE(shipped().missing().contains(QStringLiteral("没有帮助")));
  shipped().refresh(home());
  EXPECT_TRUE(QDir(home()).isEmpty());

  ship(QStringLiteral("second"), compiled, "second");
  ship(QStringLiteral("second"), page, "second");
  EXPECT_EQ(shipped().missing(), QString());
  ship(QStringLiteral("first"), page, "first");
  ship(QStringLiteral("first"), QStringLiteral("help/notes.txt"), "no help");
  EXPECT_EQ(shipped().names(), QStringList(page));
  EXPECT_TRUE(shipped().missing().contains(compiled));
}

TEST_F(Help, RefreshBringsAnOlderHomeUpToDateAndWritesNothingElse) {
  ship(QStringLiteral("first"), compiled, "chm 1");
  ship(QStringLiteral("first"), page, "page 1");
  shipped().refresh(home());
  EXPECT_EQ(inHome(compiled), "chm 1");
  EXPECT_EQ(inHome(page), "page 1");

  // Of the same length: the content decides.
  ship(QStringLiteral("first"), page, "page 2");
  shipped().refresh(home());
  EXPECT_EQ(inHome(page), "page 2");

  const auto everything = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
  QFile::setPermissions(home(), QFile::ReadOwner | QFile::ExeOwner);
  EXPECT_NO_THROW(shipped().refresh(home())) << "all of it is there already";
  ship(QStringLiteral("first"), compiled, "chm 3");
  EXPECT_THROW(shipped().refresh(home()), runtime::RuntimeError);
  QFile::setPermissions(home(), everything);
  EXPECT_EQ(inHome(compiled), "chm 1");
}

}  // namespace
