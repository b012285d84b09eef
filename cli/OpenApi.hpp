// The wire reference: an OpenAPI 3.1 document of every endpoint of the catalogues, generated from the same
// declarations the library encodes and decodes with (the Typed records' coding keys and member types, the
// Dictionary face's field tables), so that it cannot drift from them.
#pragma once

#include <QBComponentAPI/frame/Json.hpp>
#include <string>

namespace qb::cli {

// The document: one operation per path (a path that two Dictionary-face messages share is one operation),
// records and enumerations under components/schemas by their Typed-face names. Keys come in a fixed order
// (paths in catalogue order, components by name), so the same declarations give the same document.
JsonMap openApiDocument();

// The document as indented JSON text ending in a newline: what `qbapi openapi` writes.
std::string openApiText();

}  // namespace qb::cli
