// The one way the library includes simdjson. Included only by .cpp files (and by JSONDecoderImpl.hpp).
#pragma once

// The parser's on-demand objects pass between the library and every file that includes this header, so
// their layout must not follow each file's own flags: simdjson turns its development checks on in
// unoptimised builds and its thread support on with -pthread (or through its CMake package).
#ifdef SIMDJSON_H
#if SIMDJSON_DEVELOPMENT_CHECKS || !defined(SIMDJSON_THREADS_ENABLED)
#error "include frame/detail/Simdjson.hpp (or JSONDecoderImpl.hpp) before <simdjson.h>"
#endif
#endif
#undef SIMDJSON_DEVELOPMENT_CHECKS
#define SIMDJSON_DEVELOPMENT_CHECKS 0
#ifndef SIMDJSON_THREADS_ENABLED
#define SIMDJSON_THREADS_ENABLED 1
#endif
#include <simdjson.h>
