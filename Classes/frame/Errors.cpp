#include <QBComponentAPI/frame/Errors.hpp>

namespace qb {

ParameterCheckFailException ParameterCheckFailException::missing(std::string_view field, std::string_view model) {
  std::string reason;
  reason.reserve(field.size() + model.size() + 21);
  reason.append(field).append(" is missing in model ").append(model);
  return ParameterCheckFailException(std::move(reason));
}

std::string renderCodingPath(const CodingPath& path) {
  std::string out;
  for (const auto& element : path) {
    if (const auto* key = std::get_if<std::string>(&element)) {
      if (!out.empty()) out += '.';
      out += *key;
    } else {
      out += '[';
      out += std::to_string(std::get<std::size_t>(element));
      out += ']';
    }
  }
  return out;
}

SourceLocation SourceLocation::of(std::string_view text, std::size_t offset) noexcept {
  if (offset > text.size()) offset = text.size();
  const std::string_view before = text.substr(0, offset);
  SourceLocation location{.offset = offset};
  std::size_t lineStart = 0;
  for (std::size_t i = before.find('\n'); i != std::string_view::npos; i = before.find('\n', i + 1)) {
    ++location.line;
    lineStart = i + 1;
  }
  location.column = offset - lineStart + 1;
  return location;
}

std::string renderSourceLocation(const SourceLocation& location) {
  return "line " + std::to_string(location.line) + ", column " + std::to_string(location.column) + " (byte " +
         std::to_string(location.offset) + ")";
}

std::string_view kindName(DecodingError::Kind kind) noexcept {
  switch (kind) {
    case DecodingError::Kind::keyNotFound: return "keyNotFound";
    case DecodingError::Kind::valueNotFound: return "valueNotFound";
    case DecodingError::Kind::typeMismatch: return "typeMismatch";
    case DecodingError::Kind::dataCorrupted: return "dataCorrupted";
  }
  return "unknown";
}

namespace {
CodingPath withFront(CodingPathElement element, const CodingPath& rest) {
  CodingPath path;
  path.reserve(rest.size() + 1);
  path.push_back(std::move(element));
  path.insert(path.end(), rest.begin(), rest.end());
  return path;
}

std::string renderError(std::string_view kind, const CodingPath& path, const std::string& description) {
  std::string text(kind);
  text += " at ";
  text += path.empty() ? std::string("<root>") : renderCodingPath(path);
  text += ": ";
  text += description;
  return text;
}
}  // namespace

DecodingError::DecodingError(Kind kind, CodingPath path, std::string debugDescription,
                             std::optional<SourceLocation> location)
    : Error(renderError(kindName(kind), path, debugDescription)),
      kind_(kind),
      path_(std::move(path)),
      description_(std::move(debugDescription)),
      location_(location) {}

DecodingError DecodingError::prefixed(CodingPathElement element) const {
  return DecodingError(kind_, withFront(std::move(element), path_), description_, location_);
}

EncodingError::EncodingError(CodingPath path, std::string debugDescription)
    : Error(renderError("invalidValue", path, debugDescription)),
      path_(std::move(path)),
      description_(std::move(debugDescription)) {}

EncodingError EncodingError::prefixed(CodingPathElement element) const {
  return EncodingError(withFront(std::move(element), path_), description_);
}

}  // namespace qb
