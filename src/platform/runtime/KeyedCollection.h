#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include <QHash>
#include <QString>

#include "runtime/RuntimeError.h"

namespace runtime {

/// An ordered collection of shared members, each under an optional text key. Positions start at 1; keys are
/// looked up without regard to letter case. Adding costs the same at any size.
template <typename Member>
class KeyedCollection {
 public:
  using Pointer = std::shared_ptr<Member>;
  using const_iterator = typename std::vector<Pointer>::const_iterator;

  /// Appends `member` under `key`, without one when `key` is empty. Throws DuplicateKey when the key is
  /// taken.
  void Add(Pointer member, const QString& key = {}) {
    const QString folded = key.toCaseFolded();
    if (!folded.isEmpty()) {
      if (m_positions.contains(folded)) {
        throw RuntimeError(ErrorNumber::DuplicateKey, QStringLiteral("该键值“%1”已经存在于集合中").arg(key));
      }
      m_positions.insert(folded, m_members.size());
    }
    m_members.push_back(std::move(member));
    m_keys.push_back(folded);
  }

  /// Throws SubscriptOutOfRange for a position that is not between 1 and Count.
  [[nodiscard]] const Pointer& Item(int position) const { return m_members[index(position)]; }
  /// Throws InvalidCall when no member has that key.
  [[nodiscard]] const Pointer& Item(const QString& key) const { return m_members[index(key)]; }
  /// The member under `key`, or an empty pointer.
  [[nodiscard]] Pointer find(const QString& key) const {
    const auto found = m_positions.constFind(key.toCaseFolded());
    return found == m_positions.constEnd() ? Pointer() : m_members[*found];
  }

  [[nodiscard]] int Count() const { return static_cast<int>(m_members.size()); }

  void Remove(int position) { removeAt(index(position)); }
  void Remove(const QString& key) { removeAt(index(key)); }

  [[nodiscard]] const_iterator begin() const { return m_members.begin(); }
  [[nodiscard]] const_iterator end() const { return m_members.end(); }

 private:
  [[nodiscard]] std::size_t index(int position) const {
    if (position < 1 || position > Count()) {
      throw RuntimeError(ErrorNumber::SubscriptOutOfRange, QStringLiteral("下标越界：%1").arg(position));
    }
    return static_cast<std::size_t>(position) - 1;
  }

  [[nodiscard]] std::size_t index(const QString& key) const {
    const auto found = m_positions.constFind(key.toCaseFolded());
    if (found == m_positions.constEnd()) {
      throw RuntimeError(ErrorNumber::InvalidCall, QStringLiteral("集合中没有键值“%1”").arg(key));
    }
    return *found;
  }

  void removeAt(std::size_t at) {
    if (!m_keys[at].isEmpty()) m_positions.remove(m_keys[at]);
    m_members.erase(m_members.begin() + static_cast<std::ptrdiff_t>(at));
    m_keys.erase(m_keys.begin() + static_cast<std::ptrdiff_t>(at));
    for (auto& position : m_positions) {
      if (position > at) --position;
    }
  }

  std::vector<Pointer> m_members;
  std::vector<QString> m_keys;
  QHash<QString, std::size_t> m_positions;
};

}  // namespace runtime
