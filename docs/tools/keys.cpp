// Writes the API reference's pages of JSON keys, from the declarations alone: for every record of the
// catalogues (qb::AllRecords) the keys of each face and whether that face requires them, and for every
// endpoint (qb::AllEndpoints) the same of its parameters and of its reply. Each table appears on a page
// of its own (records, endpoint_keys) and on the pages of the classes it describes.
//
// A Dictionary-face key is required when its field table says so (QB_REQUIRED); an integer that is not
// required reads, and is sent, as 0 when absent. A Typed-face key is required unless its member is a
// std::optional; a file key travels as a multipart part, never under its key.
//
//   qb_doc_keys OUTPUT.dox
#include <QBComponentAPI/QBComponentAPI.hpp>
#include <QBComponentAPI/frame/Declarations.hpp>
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using namespace qb;

// "qb::QBAPIUser" for qb::QBAPIUser, as g++ ("[with T = qb::QBAPIUser; ...]") and clang ("[T = qb::QBAPIUser]")
// spell it in the function's name.
template <class T>
std::string typeName() {
  const std::string_view function = __PRETTY_FUNCTION__;
  const auto start = function.find("T = ") + 4;
  return std::string(function.substr(start, function.find_first_of(";]", start) - start));
}

enum class Need { absent, required, optional, zeroWhenAbsent, filePart };

const char* describe(Need need) {
  switch (need) {
    case Need::absent: return "—";
    case Need::required: return "required";
    case Need::optional: return "optional";
    case Need::zeroWhenAbsent: return "optional, 0 when absent";
    case Need::filePart: return "optional, a multipart part";
  }
  return "?";
}

struct Row {
  std::string key;
  Need dictionary = Need::absent;
  Need typed = Need::absent;
};

// One table: the keys of one face's class beside those of the other face's (either may be absent).
struct Table {
  std::string dictionaryClass;  // empty when the face is missing
  std::string typedClass;
  std::vector<Row> rows;  // Dictionary-face order, then the keys only the Typed face has

  Row& row(std::string_view key) {
    for (Row& r : rows) {
      if (r.key == key) return r;
    }
    return rows.emplace_back(Row{std::string(key)});
  }
};

// What a face's need reads as in a table.
Need needOf(KeyNeed need) {
  switch (need) {
    case KeyNeed::required: return Need::required;
    case KeyNeed::zeroWhenAbsent: return Need::zeroWhenAbsent;
    case KeyNeed::optional: break;
  }
  return Need::optional;
}

// A Dictionary-face field table (qbFields, qbParams or qbResults).
template <class Fields>
void addDictionary(Table& table, const Fields& fields) {
  forEachDictionaryKey(fields,
                       [&](std::string_view key, KeyNeed need, auto) { table.row(key).dictionary = needOf(need); });
}

// A Typed-face record's, request's or response's coding keys.
template <class T>
void addTyped(Table& table) {
  forEachCodingKey<T>([&](std::string_view key, KeyNeed need, auto, bool isFile) {
    table.row(key).typed = isFile ? Need::filePart : needOf(need);
  });
}

template <class Dictionary, class Typed, class FieldsOf>
Table tableOf(FieldsOf fieldsOf) {
  Table table;
  if constexpr (hasFace<Dictionary>) {
    table.dictionaryClass = typeName<Dictionary>();
    addDictionary(table, fieldsOf.template operator()<Dictionary>());
  }
  if constexpr (hasFace<Typed>) {
    table.typedClass = typeName<Typed>();
    addTyped<Typed>(table);
  }
  return table;
}

// The classes are named above the table rather than in its header, where links would not stand out.
void writeTable(std::ostream& out, const Table& table) {
  const auto name = [](const std::string& className) { return className.empty() ? "none" : className; };
  out << "\nDictionary face: " << name(table.dictionaryClass) << "; Typed face: " << name(table.typedClass)
      << ".\n\n| JSON key | Dictionary face | Typed face |\n|---|---|---|\n";
  if (table.rows.empty()) out << "| (none) | | |\n";
  for (const Row& row : table.rows) {
    out << "| `" << row.key << "` | " << describe(row.dictionary) << " | " << describe(row.typed) << " |\n";
  }
  out << "\n";
}

std::string label(std::string name) {
  for (char& c : name) {
    if (c == ':') c = '_';
  }
  return name;
}

// Extra documentation for a class page: Doxygen adds it to what the header says.
struct ClassSection {
  std::string className;
  bool isStruct;
  std::string body;
};

// Adds the table, under its heading, to the pages of both of its classes.
void addToClassPages(std::vector<ClassSection>& sections, const std::string& heading, const Table& table) {
  std::ostringstream body;
  body << "<h2>" << heading << "</h2>\n";
  writeTable(body, table);
  for (const auto& [face, isStruct] : {std::pair{&table.dictionaryClass, false}, std::pair{&table.typedClass, true}}) {
    const std::string& className = *face;
    if (className.empty()) continue;
    const auto known = std::find_if(sections.begin(), sections.end(),
                                    [&](const ClassSection& section) { return section.className == className; });
    if (known != sections.end()) {
      known->body += body.str();
    } else {
      sections.push_back({className, isStruct, body.str()});
    }
  }
}

void writePages(std::ostream& out) {
  std::vector<ClassSection> classes;
  const auto modelFields = []<class D>() { return D::qbFields(); };
  const auto messageParams = []<class M>() { return M::qbParams(); };
  const auto messageResults = []<class M>() { return M::qbResults(); };

  out << "/** \\page records Records: JSON keys\n\n"
         "Every record of the catalogues (qb::AllRecords), in catalogue order, with the JSON keys of each face "
         "and whether that face requires them. A Dictionary-face model raises qb::ParameterCheckFailException "
         "for a required key that is absent or null, a Typed-face record raises qb::DecodingError. An integer "
         "of the Dictionary face is never absent: it reads as 0. Listed from the declarations when the "
         "reference is built.\n\n";
  std::size_t records = 0;
  forEachType(AllRecords{}, [&]<class R>() {
    using D = typename R::Dictionary;
    using T = typename R::Typed;
    const Table table = tableOf<D, T>(modelFields);
    const std::string& first = table.dictionaryClass.empty() ? table.typedClass : table.dictionaryClass;
    std::string title = table.dictionaryClass;
    if (!table.dictionaryClass.empty() && !table.typedClass.empty()) title += " and ";
    title += table.typedClass;
    out << "\\section record_" << label(first) << " " << title << "\n";
    writeTable(out, table);
    addToClassPages(classes, "JSON keys", table);
    ++records;
  });
  out << "Records listed: " << records << ".\n*/\n\n";

  out << "/** \\page endpoint_keys Endpoints: parameter and reply keys\n\n"
         "Every endpoint of the catalogues (qb::AllEndpoints), with the keys of its parameters and of its "
         "reply in each face and whether that face requires them. A Dictionary-face message raises "
         "qb::ParameterCheckFailException from getParams for a required parameter it does not have, and "
         "sends an integer parameter as 0 when it is not set. Listed from the declarations when the reference "
         "is built.\n\n";
  std::size_t line = 0;
  forEachType(AllEndpoints{}, [&]<class A>() {
    using M = typename A::DictionaryMessage;
    using Q = typename A::TypedRequest;
    Table params = tableOf<M, Q>(messageParams);
    Table results;
    if constexpr (hasFace<Q>) {
      results = tableOf<M, typename Q::Response>(messageResults);
    } else {
      results = tableOf<M, NoFace>(messageResults);
    }
    out << "\\section endpoint_" << line++ << " " << A::endpoint.upperVerb() << " " << A::endpoint.path
        << (repeatsPath<A>(AllEndpoints{}) ? ", its further Dictionary-face message" : "") << "\n"
        << "\n<b>Parameters</b>\n";
    writeTable(out, params);
    out << "<b>Reply keys</b>\n";
    writeTable(out, results);
    addToClassPages(classes, "Parameter keys", params);
    addToClassPages(classes, "Reply keys", results);
  });
  out << "*/\n";

  for (const ClassSection& section : classes) {
    out << "\n/** " << (section.isStruct ? "\\struct " : "\\class ") << section.className << "\n\\details\n"
        << section.body << "See also \\ref records and \\ref endpoint_keys.\n*/\n";
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: " << argv[0] << " OUTPUT.dox\n";
    return 2;
  }
  std::ostringstream pages;
  writePages(pages);
  std::ofstream out(argv[1], std::ios::binary | std::ios::trunc);
  out << pages.str();
  out.close();
  if (!out) {
    std::cerr << argv[0] << ": cannot write " << argv[1] << "\n";
    return 1;
  }
  return EXIT_SUCCESS;
}
