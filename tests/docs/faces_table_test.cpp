// docs/faces.md shows, between its asymmetries markers, every difference of keys between the two faces
// of a record or an endpoint. The rows are computed here from the declarations and compared with the
// table, so that a declaration changed without the table (or the table without a declaration) fails.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "catalogue/Facts.hpp"

namespace qb {
namespace {

// One row of the table: where (the Dictionary-face class, with "parameters" or "reply" for a message, and
// the Typed-face class) and the keys that differ.
struct Row {
  std::string dictionary, typed;
  std::vector<std::string> onlyDictionary, onlyTyped, requiredOnlyByDictionary, requiredOnlyByTyped;
  bool operator==(const Row&) const = default;
  bool empty() const {
    return onlyDictionary.empty() && onlyTyped.empty() && requiredOnlyByDictionary.empty() &&
           requiredOnlyByTyped.empty();
  }
};

std::string keyCell(const std::vector<std::string>& keys) {
  if (keys.empty()) return "-";
  std::string out;
  for (const auto& key : keys) out += (out.empty() ? "`" : ", `") + key + "`";
  return out;
}

// The row as the table spells it, so that a failure shows the line to put in docs/faces.md.
std::string markdown(const Row& row) {
  const auto name = [](const std::string& cell) {
    const auto space = cell.find(' ');
    return space == std::string::npos ? "`" + cell + "`" : "`" + cell.substr(0, space) + "`" + cell.substr(space);
  };
  return "| " + name(row.dictionary) + " | " + name(row.typed) + " | " + keyCell(row.onlyDictionary) + " | " +
         keyCell(row.onlyTyped) + " | " + keyCell(row.requiredOnlyByDictionary) + " | " +
         keyCell(row.requiredOnlyByTyped) + " |";
}

std::vector<std::string> sorted(std::vector<std::string> keys) {
  std::sort(keys.begin(), keys.end());
  return keys;
}

bool contains(const std::vector<std::string>& keys, const std::string& key) {
  return std::find(keys.begin(), keys.end(), key) != keys.end();
}

// The keys of `a` that `b` lacks, in the order of `a`.
std::vector<std::string> minus(const std::vector<std::string>& a, const std::vector<std::string>& b) {
  std::vector<std::string> out;
  for (const auto& key : a)
    if (!contains(b, key)) out.push_back(key);
  return out;
}

// `required` restricted to the keys both faces have.
std::vector<std::string> shared(const std::vector<std::string>& required, const std::vector<std::string>& other) {
  std::vector<std::string> out;
  for (const auto& key : required)
    if (contains(other, key)) out.push_back(key);
  return out;
}

Row difference(std::string dictionary, std::string typed, const std::vector<std::string>& dictionaryKeys,
               const std::vector<std::string>& typedKeys, const std::vector<std::string>& dictionaryRequired,
               const std::vector<std::string>& typedRequired) {
  const auto requiredByDictionary = shared(dictionaryRequired, typedKeys);
  const auto requiredByTyped = shared(typedRequired, dictionaryKeys);
  return {std::move(dictionary),
          std::move(typed),
          sorted(minus(dictionaryKeys, typedKeys)),
          sorted(minus(typedKeys, dictionaryKeys)),
          sorted(minus(requiredByDictionary, requiredByTyped)),
          sorted(minus(requiredByTyped, requiredByDictionary))};
}

// Records: required is what decoding a reply insists on. Parameters: what the request always carries (the
// Dictionary face sends an integer as 0 when the app set none). Replies: keys only, since the Dictionary
// face requires no reply key (checked below).
std::map<std::string, Row> declaredRows() {
  std::map<std::string, Row> rows;
  const auto add = [&](Row row) {
    if (!row.empty()) rows.emplace(row.dictionary, std::move(row));
  };
  for (const auto* record : test::allRecords()) {
    const auto& d = record->dictionary;
    const auto& t = record->typed;
    if (d.present && t.present) {
      add(difference(d.className, t.className, d.keys.all, t.keys.all, d.keys.required, t.keys.required));
    }
  }
  for (const auto* line : test::allEndpoints()) {
    const auto& m = line->message;
    const auto& q = line->request;
    if (m.present && q.present) {
      add(difference(m.className + " parameters", q.className, m.keys.all, q.keys.all, m.keys.alwaysSent,
                     q.keys.required));
      add(difference(m.className + " reply", line->response.className, line->results.keys.all, line->response.keys.all,
                     {}, {}));
    }
  }
  return rows;
}

std::string trimmed(std::string text) {
  std::erase(text, '`');
  const auto first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string> keysOf(const std::string& cell) {
  std::vector<std::string> keys;
  if (trimmed(cell) == "-") return keys;
  std::stringstream in(cell);
  for (std::string key; std::getline(in, key, ',');) keys.push_back(trimmed(key));
  return sorted(keys);
}

// The table between the markers: its rows after the header and the separator line.
std::vector<Row> documentedRows(const std::string& text) {
  const auto begin = text.find("<!-- asymmetries:begin -->");
  const auto end = text.find("<!-- asymmetries:end -->");
  if (begin == std::string::npos || end == std::string::npos || end < begin) return {};
  std::stringstream in(text.substr(begin, end - begin));
  std::vector<Row> rows;
  int tableLine = 0;
  for (std::string line; std::getline(in, line);) {
    if (!line.starts_with("|") || ++tableLine <= 2) continue;
    std::vector<std::string> cells;
    std::stringstream cellsIn(line.substr(1));
    for (std::string cell; std::getline(cellsIn, cell, '|');) cells.push_back(cell);
    if (cells.size() != 6) {
      ADD_FAILURE() << "a row without six cells: " << line;
      continue;
    }
    rows.push_back(
        {trimmed(cells[0]), trimmed(cells[1]), keysOf(cells[2]), keysOf(cells[3]), keysOf(cells[4]), keysOf(cells[5])});
  }
  return rows;
}

TEST(FacesTable, ShowsEveryDifferenceOfKeysTheDeclarationsHave) {
  std::ifstream file(std::string(QB_SOURCE_DIR) + "/docs/faces.md");
  ASSERT_TRUE(file) << "docs/faces.md cannot be read";
  const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  const std::vector<Row> documented = documentedRows(text);
  ASSERT_FALSE(documented.empty()) << "no table between <!-- asymmetries:begin --> and <!-- asymmetries:end -->";

  std::map<std::string, Row> declared = declaredRows();
  for (const Row& row : documented) {
    const auto found = declared.find(row.dictionary);
    if (found == declared.end()) {
      ADD_FAILURE() << "the table shows a difference the declarations do not have (or shows it twice):\n"
                    << markdown(row);
      continue;
    }
    EXPECT_EQ(markdown(row), markdown(found->second)) << "the table's row differs from the declarations";
    declared.erase(found);
  }
  for (const auto& [where, row] : declared) {
    ADD_FAILURE() << "the table lacks a difference of " << where << ":\n" << markdown(row);
  }
}

// The faces table shows no required-ness for replies because the Dictionary face insists on no reply key:
// a message keeps whatever the reply has. A required result would make that claim wrong.
TEST(FacesTable, TheDictionaryFaceRequiresNoReplyKey) {
  for (const auto* line : test::allEndpoints()) {
    if (line->results.present) {
      EXPECT_EQ(line->results.keys.required, std::vector<std::string>{}) << line->results.className;
    }
  }
}

}  // namespace
}  // namespace qb
