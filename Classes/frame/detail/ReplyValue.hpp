// A value of a parsed reply, read where the parser laid it out: the Dictionary face reads its models from
// these straight away, instead of building the whole reply as JSON values first and taking the models'
// values out of those. Holds no simdjson type, so that the engine's headers stay light.
#pragma once

#include <QBComponentAPI/frame/Json.hpp>
#include <cstddef>
#include <string_view>

namespace qb::detail {

class ReplyValue {
 public:
  ReplyValue() = default;

  bool isNull() const noexcept;
  bool isObject() const noexcept;
  bool isArray() const noexcept;
  /// The value built as parseJson builds it (keys repeated in an object: the last one wins).
  JsonValue value() const;
  /// The number of elements of an array.
  std::size_t size() const noexcept;

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

  // The parser's handle of the value (its document and the value's place in it), copied as one block.
  struct Handle {
    const void* document = nullptr;
    std::size_t index = 0;
  };
  Handle handle_;
};

/// Parses `bytes` with the thread's parser and returns the root object, which stays readable until the
/// thread parses again. Throws as parseJsonMap does.
ReplyValue parseReplyObject(JsonText bytes);

}  // namespace qb::detail
