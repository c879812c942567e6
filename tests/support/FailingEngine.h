#pragma once

#include <functional>
#include <memory>

#include "store/Engine.h"
#include "store/StoreError.h"

namespace support {

/// The usual engine, with failures on demand: whatever `failsOn` says yes to fails as a full disk does. It is
/// asked before each step of a statement, with the statement's text. Installed as long as it lives, for the
/// databases that are opened meanwhile.
class FailingEngine : public store::Engine {
 public:
  FailingEngine() : m_before(store::installEngine(nullptr)), m_usual(store::engine()) {
    store::installEngine(this);
  }
  ~FailingEngine() override { store::installEngine(m_before); }

  [[nodiscard]] std::shared_ptr<store::Database> open(const QString& path, const QString& password) override {
    requireWorking(QStringLiteral("open"));
    return std::make_shared<Database>(*this, m_usual.open(path, password));
  }
  void create(const QString& path, const QString& password, const QStringList& statements) override {
    requireWorking(QStringLiteral("create"));
    m_usual.create(path, password, statements);
  }

  /// Asked with "open", "create", "copy", "check" or the text of the statement that is about to step.
  std::function<bool(const QString&)> failsOn = [](const QString&) { return false; };

 private:
  class Statement : public store::Statement {
   public:
    Statement(FailingEngine& owner, QString sql, std::shared_ptr<store::Statement> real)
        : m_owner(owner), m_sql(std::move(sql)), m_real(std::move(real)) {}
    void bind(int position, const QVariant& value) override { m_real->bind(position, value); }
    bool step() override {
      m_owner.requireWorking(m_sql);
      return m_real->step();
    }
    void reset() noexcept override { m_real->reset(); }
    [[nodiscard]] int columnCount() const override { return m_real->columnCount(); }
    [[nodiscard]] store::ColumnInfo column(int index) const override { return m_real->column(index); }
    [[nodiscard]] QVariant value(int index) const override { return m_real->value(index); }

   private:
    FailingEngine& m_owner;
    QString m_sql;
    std::shared_ptr<store::Statement> m_real;
  };

  class Database : public store::Database {
   public:
    Database(FailingEngine& owner, std::shared_ptr<store::Database> real)
        : m_owner(owner), m_real(std::move(real)) {}
    ~Database() override { forgetStatements(); }
    [[nodiscard]] qint64 lastInsertedKey() const override { return m_real->lastInsertedKey(); }
    [[nodiscard]] qint64 totalChanges() const override { return m_real->totalChanges(); }
    [[nodiscard]] bool inTransaction() const override { return m_real->inTransaction(); }
    void copyTo(const QString& path) override {
      m_owner.requireWorking(QStringLiteral("copy"));
      m_real->copyTo(path);
    }
    [[nodiscard]] QStringList checkPages() override {
      m_owner.requireWorking(QStringLiteral("check"));
      return m_real->checkPages();
    }

   protected:
    std::shared_ptr<store::Statement> prepare(const QString& sql) override {
      return std::make_shared<Statement>(m_owner, sql, m_real->statement(sql));
    }

   private:
    FailingEngine& m_owner;
    std::shared_ptr<store::Database> m_real;
  };

  void requireWorking(const QString& what) const {
    if (!failsOn(what)) return;
    throw store::StoreError(static_cast<int>(store::StoreCode::Full),
                            QStringLiteral("磁盘已满（failed on demand: %1）").arg(what));
  }

  store::Engine* m_before;
  store::Engine& m_usual;
};

}  // namespace support
