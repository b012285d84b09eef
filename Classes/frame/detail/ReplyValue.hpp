// A value of a reply as the parser reaches it: the Dictionary face reads its models from these straight
// away, in the reply's order, instead of building the whole reply as JSON values first and taking the
// models' values out of those. Holds no simdjson type, so that the engine's headers stay light.
//
// Reading goes forward only. Each value is read at most once, by isNull() (when it is null), value() or
// forEachMember()/forEachElement(); isNull(), isObject() and isArray() otherwise only look. A value its
// reader leaves unread is checked as JSON and passed over once the reader returns, so that a reply read
// this way is accepted only when all of it is valid JSON.
//
// Any doubt ends the reading (throwReplyRetry()): the text is not valid JSON, the value has another shape than
// the reader needs, a key repeats, the nesting comes near the parser's limit. readReplyObject() then
// answers false and the caller reads the reply again from a full parse, which decides the outcome exactly
// (the last of repeated keys, the error a fault gets).
#pragma once

#include <QBComponentAPI/frame/Json.hpp>
#include <cstddef>
#include <string_view>

namespace qb::detail {

/// Ends the reading of a reply in order, to have it read again from a full parse.
[[noreturn]] void throwReplyRetry();

class ReplyValue {
 public:
  ReplyValue() = default;

  /// Whether the value is null (then it has been read).
  bool isNull() const;
  bool isObject() const;
  bool isArray() const;
  /// The value built as parseJson builds it.
  JsonValue value() const;

  /// Calls f(key, value) for each member of an object, in the reply's order.
  template <class F>
  void forEachMember(F&& f) const {
    members(
        [](void* context, std::string_view key, const ReplyValue& value) { (*static_cast<F*>(context))(key, value); },
        &f);
  }
  /// Calls f(value) for each element of an array.
  template <class F>
  void forEachElement(F&& f) const {
    elements([](void* context, const ReplyValue& value) { (*static_cast<F*>(context))(value); }, &f);
  }

 private:
  friend struct ReplyValueAccess;
  using MemberFn = void (*)(void*, std::string_view, const ReplyValue&);
  using ElementFn = void (*)(void*, const ReplyValue&);
  void members(MemberFn f, void* context) const;
  void elements(ElementFn f, void* context) const;

  // The parser's value, copied as one block, and the number of objects and arrays around it.
  struct Handle {
    const void* words[3] = {};
  };
  Handle handle_;
  std::size_t level_ = 0;
};

/// Reads `bytes` with the thread's parser and calls read(root) with its root object, which stays
/// readable until read returns. Returns true when the whole reply was read, and false, having read what
/// it may, when it must be read again from a full parse (see throwReplyRetry): read then discards what it
/// read. Any other exception read throws counts as the same doubt.
template <class Read>
bool readReplyObject(JsonText bytes, Read&& read);

bool readReplyObject(JsonText bytes, void (*read)(void*, const ReplyValue&), void* context);

template <class Read>
bool readReplyObject(JsonText bytes, Read&& read) {
  return readReplyObject(
      bytes, [](void* context, const ReplyValue& root) { (*static_cast<Read*>(context))(root); }, &read);
}

}  // namespace qb::detail
