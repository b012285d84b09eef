#include "Corpus.hpp"

#include <array>
#include <charconv>

namespace qb::bench {

const std::vector<Reply>& corpus() {
  static const std::vector<Reply> replies = [] {
    std::vector<Reply> all;
    // Each domain adds its generator to this list.
    for (auto generate : {userReplies, cmsReplies, itemReplies}) {
      for (Reply& r : generate()) all.push_back(std::move(r));
    }
    return all;
  }();
  return replies;
}

JsonText& JsonText::open(char bracket) {
  separate();
  out_ += bracket;
  first_ = true;
  return *this;
}

JsonText& JsonText::close(char bracket) {
  out_ += bracket;
  first_ = false;
  return *this;
}

void JsonText::separate() {
  if (!first_ && out_.back() != ':') out_ += ',';
  first_ = false;
}

JsonText& JsonText::key(std::string_view name) {
  separate();
  out_ += '"';
  out_ += name;
  out_ += "\":";
  return *this;
}

JsonText& JsonText::string(std::string_view escaped) {
  separate();
  out_ += '"';
  out_ += escaped;
  out_ += '"';
  return *this;
}

JsonText& JsonText::number(std::int64_t value) {
  separate();
  char buffer[24];
  out_.append(buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr);
  return *this;
}

JsonText& JsonText::literal(std::string_view token) {
  separate();
  out_ += token;
  return *this;
}

std::string text(Rng& rng, int minWords, int maxWords) {
  static constexpr std::array<std::string_view, 48> kWords = {
      "leaf",    "water",   "soil",    "light",   "root",   "stem",   "flower", "repot",  "drainage", "humid",
      "indoor",  "bright",  "shade",   "weekly",  "prune",  "fungus", "spots",  "yellow", "brown",    "tips",
      "the",     "and",     "your",    "plant",   "should", "after",  "before", "winter", "summer",   "cutting",
      "seed",    "fertile", "account", "premium", "refund", "scan",   "photo",  "result", "species",  "sync",
      "restore", "cloud",   "offline", "device",  "reset",  "email",  "code",   "expires"};
  static constexpr std::array<std::string_view, 10> kForeign = {
      "Blattläuse", "naïve", "Rosé", "Gießkanne", "кактус", "полив", "多肉植物", "水やり", "수국", "🌱🌵"};
  static constexpr std::array<std::string_view, 7> kEscapes = {R"(\"quoted\")",  R"(back\\slash)", R"(line\nbreak)",
                                                               R"(tab\tstop)",   R"(a\/b)",        R"(caf\u00e9)",
                                                               R"(\ud83c\udf3f)"};
  std::string out;
  const auto count = rng.between(minWords, maxWords);
  for (std::int64_t i = 0; i < count; ++i) {
    if (i > 0) out += ' ';
    if (rng.oneIn(40)) {
      out += kEscapes[rng.next() % kEscapes.size()];
    } else if (rng.oneIn(12)) {
      out += kForeign[rng.next() % kForeign.size()];
    } else {
      out += kWords[rng.next() % kWords.size()];
    }
  }
  return out;
}

}  // namespace qb::bench
