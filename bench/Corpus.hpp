// The benchmark corpus: replies generated from a fixed seed when the benchmark starts, so every run
// measures the same bytes and nothing large is kept in the repository.
//
// A domain adds its replies by writing one generator (see UserCorpus.cpp) and listing it in Corpus.cpp;
// each reply names its shape, the record it decodes as, which the benchmark tables look up.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qb::bench {

struct Reply {
  std::string shape;   // the record it decodes as, e.g. "get_faq"
  std::string name;    // shape and size, e.g. "get_faq/100000"
  bool large = false;  // one of the collection-sized replies the headline ratios are taken from
  std::string json;
  // Too large to time in every run: only its peak memory is measured (the headline memory figure).
  bool memoryOnly = false;
};

// Every reply of the corpus, generated on first use.
const std::vector<Reply>& corpus();

// Deterministic pseudo-random numbers (splitmix64): the same sequence with every compiler and library.
class Rng {
 public:
  explicit Rng(std::uint64_t seed) : state_(seed) {}
  std::uint64_t next() {
    std::uint64_t z = (state_ += 0x9e3779b97f4a7c15ull);
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ull;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebull;
    return z ^ (z >> 31);
  }
  // A number in [low, high].
  std::int64_t between(std::int64_t low, std::int64_t high) {
    return low + static_cast<std::int64_t>(next() % static_cast<std::uint64_t>(high - low + 1));
  }
  // True one time in `n`.
  bool oneIn(std::uint64_t n) { return next() % n == 0; }

 private:
  std::uint64_t state_;
};

// Writes JSON text. Strings are passed already escaped, so the corpus controls which escapes appear.
class JsonText {
 public:
  JsonText& beginObject() { return open('{'); }
  JsonText& endObject() { return close('}'); }
  JsonText& beginArray() { return open('['); }
  JsonText& endArray() { return close(']'); }
  JsonText& key(std::string_view name);
  JsonText& string(std::string_view escaped);
  JsonText& number(std::int64_t value);
  // A literal token as written: true, false, null, 1700000000.125.
  JsonText& literal(std::string_view token);
  std::string take() { return std::move(out_); }

 private:
  JsonText& open(char bracket);
  JsonText& close(char bracket);
  void separate();

  std::string out_;
  bool first_ = true;
};

// Words of running text, as JSON-escaped string content: mostly ASCII, with non-ASCII words (Latin
// accents, Cyrillic, CJK, emoji) and escapes (\" \\ \n \t \/ \u00e9 and a surrogate pair) mixed in.
std::string text(Rng& rng, int minWords, int maxWords);

// The generators of each domain.
std::vector<Reply> userReplies();
std::vector<Reply> cmsReplies();
std::vector<Reply> itemReplies();

}  // namespace qb::bench
