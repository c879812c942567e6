#pragma once

#include <memory>

#include <QByteArrayView>
#include <QString>

namespace persisted {

/// An attribute of an element. Views are valid while the element is told.
struct XmlAttribute {
  /// Empty for an attribute in no namespace.
  QByteArrayView space;
  QByteArrayView name;
  QByteArrayView value;
};

/// The attributes of one element, in UTF-8 whatever the file's encoding.
class XmlAttributes {
 public:
  /// Pairs of name and value, ended by a null pointer.
  explicit XmlAttributes(const char* const* pairs) : m_pairs(pairs) {}

  /// The value of an attribute; a null view when it is not there.
  [[nodiscard]] QByteArrayView value(QByteArrayView space, QByteArrayView name) const;
  /// Calls `visit` with each.
  template <typename Visit>
  void each(Visit&& visit) const {
    for (const char* const* pair = m_pairs; *pair != nullptr; pair += 2) visit(attribute(pair));
  }

 private:
  [[nodiscard]] static XmlAttribute attribute(const char* const* pair);

  const char* const* m_pairs;
};

/// Takes the elements of an XML document as they come. What it throws ends the parsing and reaches the
/// caller.
class XmlHandler {
 public:
  XmlHandler() = default;
  XmlHandler(const XmlHandler&) = delete;
  XmlHandler& operator=(const XmlHandler&) = delete;
  virtual ~XmlHandler() = default;

  virtual void startElement(QByteArrayView space, QByteArrayView name, const XmlAttributes& attributes) = 0;
  virtual void endElement() = 0;
};

/// Parses an XML document that nobody vouches for, piece by piece: no document type, so no entity of its own
/// and none from outside; depth, number and size of attributes are bounded. Every failure is a RuntimeError,
/// in the user's language.
class XmlParser {
 public:
  static constexpr int deepest = 64;
  static constexpr int mostAttributes = 2048;
  /// Bytes of one value.
  static constexpr qsizetype longestValue = qsizetype{256} << 20;

  explicit XmlParser(XmlHandler& handler);
  ~XmlParser();
  XmlParser(const XmlParser&) = delete;
  XmlParser& operator=(const XmlParser&) = delete;

  /// How many bytes the next piece should have: more the longer an element goes on, which is scanned from its
  /// start again with every piece.
  [[nodiscard]] qsizetype wanted() const;
  /// Room for a piece of `size` bytes, valid until it is parsed.
  [[nodiscard]] char* room(qsizetype size);
  /// Parses `size` bytes put into the room; `last` for the end of the document.
  void parse(qsizetype size, bool last);

 private:
  class Events;
  std::unique_ptr<Events> m_events;
};

}  // namespace persisted
