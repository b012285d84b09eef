// The benchmarks: every reply of the corpus through the Typed face, the Dictionary face and the
// encoder, each against its peers on the same bytes; and the peak memory of decoding the largest replies.
// Names are <group>/<variant>/<reply>; report.py turns the JSON output into the ratio table.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <QBComponentAPI/frame/JSONEncoder.hpp>
#include <QBComponentAPI/frame/Json.hpp>
#include <boost/json/monotonic_resource.hpp>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <thread>

#include "Checksum.hpp"
#include "Corpus.hpp"
#include "Memory.hpp"
#include "Records.hpp"
#include "peers/Peers.hpp"

namespace qb::bench {
namespace {

// Each benchmark checks its variant once, on its first run, before measuring: true the first time.
bool firstRun(const Reply& reply, std::string_view variant) {
  static std::map<std::string, bool> seen;
  return seen.emplace(std::string(variant) + "/" + reply.name, true).second;
}

template <class Decode, class Check>
void measure(benchmark::State& state, const Reply& reply, std::string_view variant, std::size_t bytes, Decode decode,
             Check check) {
  if (firstRun(reply, variant)) {
    std::string problem;
    try {
      problem = check(decode(reply.json));
    } catch (const std::exception& e) {
      problem = std::string("failed: ") + e.what();
    }
    if (!problem.empty()) {
      state.SkipWithError(problem.c_str());
      return;
    }
  }
  // Every benchmark starts from a heap with nothing free, so none inherits the free lists that the one
  // before it left (they change what the allocator costs).
  malloc_trim(0);
  for (auto _ : state) {
    auto result = decode(reply.json);
    benchmark::DoNotOptimize(result);
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes));
  state.counters["bytes"] = static_cast<double>(bytes);
  // Tells report.py which replies its headline ratios are taken over.
  state.counters["large"] = reply.large ? 1 : 0;
}

std::string compare(std::uint64_t got, std::uint64_t expected) {
  return got == expected
             ? std::string()
             : "checksum " + std::to_string(got) + " differs from the reference " + std::to_string(expected);
}

// The reference checksum of a reply's records, from a decoder other than the library's.
template <class T>
std::uint64_t referenceChecksum(const Reply& reply) {
  static std::map<std::string, std::uint64_t> cache;
  auto [at, fresh] = cache.try_emplace(reply.name, 0);
  if (fresh) at->second = checksumOf(peers::decodeBoost<T>(reply.json));
  return at->second;
}

// What --profile=NAME runs: the benchmark's work alone, for perf and callgrind.
std::map<std::string, std::function<void()>>& profileTargets() {
  static std::map<std::string, std::function<void()>> targets;
  return targets;
}

template <class Decode>
void addProfileTarget(const std::string& name, const Reply& reply, Decode decode) {
  profileTargets()[name] = [&reply, decode] { benchmark::DoNotOptimize(decode(reply.json)); };
}

template <class T, class Decode>
void registerDecoder(const std::string& group, const std::string& variant, const Reply& reply, Decode decode) {
  auto* b = benchmark::RegisterBenchmark(
      (group + "/" + variant + "/" + reply.name).c_str(), [&reply, variant, decode](benchmark::State& state) {
        measure(state, reply, "typed/" + variant, reply.json.size(), decode,
                [&](const T& result) { return compare(checksumOf(result), referenceChecksum<T>(reply)); });
      });
  b->Unit(reply.large ? benchmark::kMillisecond : benchmark::kNanosecond);
  addProfileTarget(group + "/" + variant + "/" + reply.name, reply, decode);
}

template <class T>
void registerTyped(const Reply& reply) {
  auto* ceiling =
      benchmark::RegisterBenchmark(("typed/ceiling/" + reply.name).c_str(), [&reply](benchmark::State& state) {
        measure(state, reply, "typed/ceiling", reply.json.size(), peers::simdjsonWalk,
                [&](std::uint64_t sum) { return compare(sum, hashJson(parseJson(reply.json))); });
      });
  ceiling->Unit(reply.large ? benchmark::kMillisecond : benchmark::kNanosecond);
  registerDecoder<T>("typed", "qb", reply, [](std::string_view json) { return JSONDecoder().decode<T>(json); });
  registerDecoder<T>("typed", "handwritten", reply, peers::decodeHandWritten<T>);
  registerDecoder<T>("typed", "boost", reply, peers::decodeBoost<T>);
  registerDecoder<T>("typed", "nlohmann", reply, peers::decodeNlohmann<T>);
  registerDecoder<T>("typed", "rapidjson", reply, peers::decodeRapidjson<T>);
}

// The Dictionary face: parse into a qb::JsonMap, then the message reads its results from it.
template <class T, class Message>
std::shared_ptr<Message> decodeDictionary(std::string_view json, boost::json::storage_ptr storage) {
  auto message = std::make_shared<Message>();
  message->parseResponse(parseJsonMap(json, std::move(storage)));
  return message;
}

// The same as the host reads a reply: from its bytes, the models read from the parsed reply itself.
template <class T, class Message>
std::shared_ptr<Message> decodeDictionaryBytes(qb::JsonText json) {
  auto message = std::make_shared<Message>();
  message->parseResponseBytes(json);
  return message;
}

// A reply as the host hands it over: received into PaddedBytes, which the parser reads in place. Made on
// the first decode of the reply and kept, as the host's receiving buffer is there before decoding starts.
const PaddedBytes& asReceived(std::string_view json) {
  static std::map<const char*, PaddedBytes> received;
  PaddedBytes& bytes = received[json.data()];
  if (bytes.empty()) bytes = PaddedBytes(json);
  return bytes;
}

boost::json::storage_ptr monotonic() { return boost::json::make_shared_resource<boost::json::monotonic_resource>(); }

// `count` tells how many records a message read, to be checked against the Typed face's count.
template <class T, class Message>
void registerDictionary(const Reply& reply, std::size_t (*count)(const Message&), std::size_t (*expected)(const T&)) {
  const auto unit = reply.large ? benchmark::kMillisecond : benchmark::kNanosecond;
  // Each way of reading a reply: timed, checked against the Typed face's count of records, and profiled.
  const auto add = [&](const std::string& variant, auto decode) {
    benchmark::RegisterBenchmark(("dict/" + variant + "/" + reply.name).c_str(), [=, &reply](benchmark::State& state) {
      measure(state, reply, "dict/" + variant, reply.json.size(), decode, [&](const std::shared_ptr<Message>& message) {
        const std::size_t want = expected(JSONDecoder().decode<T>(reply.json));
        return count(*message) == want
                   ? std::string()
                   : "read " + std::to_string(count(*message)) + " records, expected " + std::to_string(want);
      });
    })->Unit(unit);
    addProfileTarget("dict/" + variant + "/" + reply.name, reply, decode);
  };
  add("qb", [](std::string_view json) { return decodeDictionary<T, Message>(json, {}); });
  add("qb_monotonic", [](std::string_view json) { return decodeDictionary<T, Message>(json, monotonic()); });
  add("qb_bytes", [](std::string_view json) { return decodeDictionaryBytes<T, Message>(json); });
  auto members = [&reply](std::size_t n) {
    return n == parseJsonMap(reply.json).size() ? std::string() : std::string("wrong member count");
  };
  benchmark::RegisterBenchmark(("dict/boost_parse/" + reply.name).c_str(), [=, &reply](benchmark::State& state) {
    measure(
        state, reply, "dict/boost_parse", reply.json.size(),
        [](std::string_view json) { return peers::parseBoost(json); }, members);
  })->Unit(unit);
  benchmark::RegisterBenchmark(("dict/boost_parse_monotonic/" + reply.name).c_str(), [=,
                                                                                      &reply](benchmark::State& state) {
    measure(
        state, reply, "dict/boost_parse_monotonic", reply.json.size(),
        [](std::string_view json) { return peers::parseBoost(json, monotonic()); }, members);
  })->Unit(unit);
  benchmark::RegisterBenchmark(("dict/nlohmann_parse/" + reply.name).c_str(), [=, &reply](benchmark::State& state) {
    measure(state, reply, "dict/nlohmann_parse", reply.json.size(), peers::parseNlohmann, members);
  })->Unit(unit);
}

// Encoding the reply's records; every peer writes the same value, and every output must decode back to
// the same records.
template <class T>
void registerEncoding(const Reply& reply) {
  struct Inputs {
    T records;
    std::string text;
    peers::BoostWriter boost;
    peers::NlohmannWriter nlohmann;
    explicit Inputs(T r) : records(std::move(r)), text(JSONEncoder().encode(records)), boost(text), nlohmann(text) {}
  };
  auto inputs = std::make_shared<std::optional<Inputs>>();
  auto prepared = [inputs, &reply]() -> const Inputs& {
    if (!*inputs) inputs->emplace(JSONDecoder().decode<T>(reply.json));
    return **inputs;
  };
  auto roundTrip = [&reply](const std::string& text) {
    return compare(checksumOf(JSONDecoder().decode<T>(text)), referenceChecksum<T>(reply));
  };
  const auto unit = reply.large ? benchmark::kMillisecond : benchmark::kNanosecond;
  benchmark::RegisterBenchmark(("encode/qb/" + reply.name).c_str(), [=, &reply](benchmark::State& state) {
    const Inputs& in = prepared();
    measure(
        state, reply, "encode/qb", in.text.size(), [&](std::string_view) { return JSONEncoder().encode(in.records); },
        roundTrip);
  })->Unit(unit);
  addProfileTarget("encode/qb/" + reply.name, reply,
                   [prepared](std::string_view) { return JSONEncoder().encode(prepared().records); });
  benchmark::RegisterBenchmark(("encode/boost/" + reply.name).c_str(), [=, &reply](benchmark::State& state) {
    const Inputs& in = prepared();
    measure(
        state, reply, "encode/boost", in.text.size(), [&](std::string_view) { return in.boost.write(); }, roundTrip);
  })->Unit(unit);
  benchmark::RegisterBenchmark(("encode/nlohmann/" + reply.name).c_str(), [=, &reply](benchmark::State& state) {
    const Inputs& in = prepared();
    measure(
        state, reply, "encode/nlohmann", in.text.size(), [&](std::string_view) { return in.nlohmann.write(); },
        roundTrip);
  })->Unit(unit);
}

// Peak memory: one decode on a fresh thread (so per-thread parser buffers start empty), counted by
// operator new and by the process's resident set. Reported relative to the reply's size: the peak while
// decoding, what the result holds, and what the decoder still keeps for the thread once the result is
// gone and the thread has decoded a small reply. Allocated bytes overstate what a parser's large, mostly untouched
// buffers cost; the resident peak shows what the machine gave.
template <class Decode>
void registerMemory(const std::string& variant, const Reply& reply, const Reply& small, Decode decode) {
  benchmark::RegisterBenchmark(("memory/" + variant + "/" + reply.name).c_str(),
                               [&reply, &small, decode](benchmark::State& state) {
                                 memory::Usage during, atRest, after;
                                 std::int64_t residentBefore = 0, residentPeak = 0;
                                 // Large blocks always come fresh from the system here, so no variant finds pages that
                                 // an earlier one left behind (glibc otherwise raises its mmap threshold after the
                                 // first large free).
                                 mallopt(M_MMAP_THRESHOLD, 128 * 1024);
                                 for (auto _ : state) {
                                   // Twice, keeping the second: the process's first large decode on a new thread
                                   // touches more pages (arena and page tables) than any later one, whichever variant
                                   // it is.
                                   for (int run = 0; run < 2; ++run)
                                     std::thread([&] {
                                       memory::resetResidentPeak();
                                       residentBefore = memory::resident();
                                       memory::start();
                                       {
                                         auto result = decode(reply.json);
                                         during = memory::usage();
                                         residentPeak = memory::residentPeak();
                                       }
                                       atRest = memory::usage();
                                       // What stays allocated once the thread has decoded a small reply after the large
                                       // one.
                                       benchmark::DoNotOptimize(decode(small.json));
                                       after = memory::usage();
                                       memory::stop();
                                     }).join();
                                 }
                                 const auto size = static_cast<double>(reply.json.size());
                                 state.counters["peak_x"] = static_cast<double>(during.peak) / size;
                                 state.counters["result_x"] = static_cast<double>(during.now - atRest.now) / size;
                                 state.counters["kept_x"] = static_cast<double>(after.now) / size;
                                 state.counters["resident_peak_x"] =
                                     static_cast<double>(residentPeak - residentBefore) / size;
                                 state.counters["bytes"] = size;
                               })
      ->Iterations(1)
      ->Repetitions(1)
      ->Unit(benchmark::kMillisecond);
}

template <class T, class Message>
void registerMemoryAll(const Reply& reply, const Reply& small) {
  registerMemory("qb", reply, small, [](std::string_view json) { return JSONDecoder().decode<T>(json); });
  registerMemory("qb_wire", reply, small,
                 [](std::string_view json) { return JSONDecoder().decode<T>(asReceived(json)); });
  registerMemory("handwritten", reply, small, peers::decodeHandWritten<T>);
  registerMemory("boost", reply, small, peers::decodeBoost<T>);
  registerMemory("nlohmann", reply, small, peers::decodeNlohmann<T>);
  registerMemory("rapidjson", reply, small, peers::decodeRapidjson<T>);
  registerMemory("dict_qb", reply, small, [](std::string_view json) { return decodeDictionary<T, Message>(json, {}); });
  registerMemory("dict_qb_monotonic", reply, small,
                 [](std::string_view json) { return decodeDictionary<T, Message>(json, monotonic()); });
  // The Dictionary face as the host reads a reply.
  registerMemory("dict_qb_wire", reply, small,
                 [](std::string_view json) { return decodeDictionaryBytes<T, Message>(asReceived(json)); });
}

// What the benchmarks do with each shape of reply: a domain adds its shapes here.
struct Shape {
  std::string_view name;
  void (*registerTimed)(const Reply& reply);
  // The memory figures of `reply`, with `small` (the smallest reply of its shape) as the reply after it.
  void (*registerMemory)(const Reply& reply, const Reply& small);
};

template <class T, class Message, auto count, auto expected>
Shape shape(std::string_view name) {
  return {name,
          [](const Reply& reply) {
            registerTyped<T>(reply);
            registerDictionary<T, Message>(reply, count, expected);
            if (reply.large) registerEncoding<T>(reply);
          },
          registerMemoryAll<T, Message>};
}

std::size_t faqCount(const QBUserGetFaqMessage& m) { return m.faqs() ? m.faqs()->size() : 0; }
std::size_t faqRecords(const UserGetFaqResponse& r) { return r.faqs.size(); }
std::size_t userCount(const QBBenchUserListMessage& m) { return m.users() ? m.users()->size() : 0; }
std::size_t userRecords(const UserList& r) { return r.users.size(); }
// A content page: its tags, layouts and similar images.
std::size_t cmsNameCount(const QBCmsGetCmsNameMessage& m) {
  const auto& name = m.cmsName();
  if (!name) return 0;
  return (name->tags() ? name->tags()->size() : 0) + (name->layouts() ? name->layouts()->size() : 0) +
         (name->matchedSimilarImages() ? name->matchedSimilarImages()->size() : 0);
}
std::size_t cmsNameRecords(const CmsGetCmsNameResponse& r) {
  return (r.cmsName.tags ? r.cmsName.tags->size() : 0) + (r.cmsName.layouts ? r.cmsName.layouts->size() : 0) +
         r.cmsName.matchedSimilarImages.size();
}
std::size_t cmsNameListCount(const QBCmsGetCmsNameListMessage& m) {
  return m.cmsNameList() ? m.cmsNameList()->size() : 0;
}
std::size_t cmsNameListRecords(const CmsGetCmsNameListResponse& r) { return r.cmsNameList.size(); }
std::size_t itemCount(const QBItemListMyCollectionsMessage& m) { return m.items() ? m.items()->size() : 0; }
std::size_t itemRecords(const ItemListMyCollectionsResponse& r) { return r.items.size(); }
std::size_t configCount(const QBUserGetConfigMessage& m) { return m.config() ? 1 : 0; }
std::size_t initialiseCount(const QBUserInitialiseMessage& m) { return m.config() && m.user() ? 1 : 0; }
template <class T>
std::size_t one(const T&) {
  return 1;
}

const Shape kShapes[] = {
    shape<UserGetFaqResponse, QBUserGetFaqMessage, faqCount, faqRecords>("get_faq"),
    shape<UserList, QBBenchUserListMessage, userCount, userRecords>("user_list"),
    shape<UserGetConfigResponse, QBUserGetConfigMessage, configCount, one<UserGetConfigResponse>>("get_config"),
    shape<UserInitialiseResponse, QBUserInitialiseMessage, initialiseCount, one<UserInitialiseResponse>>("initialise"),
    shape<CmsGetCmsNameResponse, QBCmsGetCmsNameMessage, cmsNameCount, cmsNameRecords>("get_cms_name"),
    shape<CmsGetCmsNameListResponse, QBCmsGetCmsNameListMessage, cmsNameListCount, cmsNameListRecords>(
        "get_cms_name_list"),
    shape<ItemListMyCollectionsResponse, QBItemListMyCollectionsMessage, itemCount, itemRecords>("list_my_collections"),
};

const Shape& shapeOf(const Reply& reply) {
  for (const Shape& shape : kShapes) {
    if (shape.name == reply.shape) return shape;
  }
  throw std::logic_error("no benchmarks for replies of shape " + reply.shape);
}

void registerAll() {
  // Every reply is timed but those generated for the memory figures alone.
  const Reply* largestTimed = nullptr;
  for (const Reply& reply : corpus()) {
    if (reply.memoryOnly) continue;
    shapeOf(reply).registerTimed(reply);
    if (!largestTimed || reply.json.size() > largestTimed->json.size()) largestTimed = &reply;
  }
  // Memory: the replies generated for it (the headline figure), then the largest timed reply. They come
  // after every timed benchmark because they fix glibc's mmap threshold for the rest of the process.
  auto addMemory = [](const Reply& reply) {
    const Reply* small = &reply;
    for (const Reply& other : corpus()) {
      if (other.shape == reply.shape && other.json.size() < small->json.size()) small = &other;
    }
    shapeOf(reply).registerMemory(reply, *small);
  };
  for (const Reply& reply : corpus()) {
    if (reply.memoryOnly) addMemory(reply);
  }
  if (largestTimed) addMemory(*largestTimed);
}

// --dump-corpus=DIR writes every reply to DIR/<name>.json, for profilers and other tools.
bool dumpCorpus(int argc, char** argv) {
  constexpr std::string_view kFlag = "--dump-corpus=";
  for (int i = 1; i < argc; ++i) {
    const std::string_view arg = argv[i];
    if (arg.substr(0, kFlag.size()) != kFlag) continue;
    const std::filesystem::path dir(arg.substr(kFlag.size()));
    std::filesystem::create_directories(dir);
    for (const Reply& reply : corpus()) {
      std::string file = reply.name;
      for (char& c : file) c = c == '/' ? '_' : c;
      std::ofstream(dir / (file + ".json"), std::ios::binary) << reply.json;
      std::cout << (dir / (file + ".json")).string() << "  " << reply.json.size() << " bytes\n";
    }
    return true;
  }
  return false;
}

// --profile=NAME[:TIMES] runs one benchmark's work TIMES times (default 20) without the harness, for
// `perf record` or `valgrind --tool=callgrind`.
bool profile(int argc, char** argv) {
  constexpr std::string_view kFlag = "--profile=";
  for (int i = 1; i < argc; ++i) {
    const std::string_view arg = argv[i];
    if (arg.substr(0, kFlag.size()) != kFlag) continue;
    std::string name(arg.substr(kFlag.size()));
    int times = 20;
    if (const auto colon = name.rfind(':'); colon != std::string::npos) {
      times = std::stoi(name.substr(colon + 1));
      name.resize(colon);
    }
    registerAll();
    const auto target = profileTargets().find(name);
    if (target == profileTargets().end()) throw std::invalid_argument("nothing to profile called " + name);
    for (int n = 0; n < times; ++n) target->second();
    return true;
  }
  return false;
}

// The fastest of 40 runs of decode alone and of destroying its result, in milliseconds.
template <class T, class Decode>
void printSplit(const char* variant, const Reply& reply, Decode decode) {
  double bestDecode = 1e300, bestDestroy = 1e300;
  for (int i = 0; i < 40; ++i) {
    const auto start = std::chrono::steady_clock::now();
    auto result = std::make_unique<T>(decode(reply.json));
    const auto decoded = std::chrono::steady_clock::now();
    result.reset();
    const auto destroyed = std::chrono::steady_clock::now();
    bestDecode = std::min(bestDecode, std::chrono::duration<double, std::milli>(decoded - start).count());
    bestDestroy = std::min(bestDestroy, std::chrono::duration<double, std::milli>(destroyed - decoded).count());
  }
  std::printf("%-12s %-25s decode %7.3f ms  destroy %7.3f ms\n", variant, reply.name.c_str(), bestDecode, bestDestroy);
}

template <class T>
void printSplits(const Reply& reply) {
  printSplit<T>("qb", reply, [](std::string_view json) { return JSONDecoder().decode<T>(json); });
  // From the buffer the host receives into: no padded copy before parsing.
  const PaddedBytes wire(reply.json);
  printSplit<T>("qb_wire", reply, [&](std::string_view) { return JSONDecoder().decode<T>(wire); });
  printSplit<T>("handwritten", reply, peers::decodeHandWritten<T>);
}

// --split times the Typed face's decoding and the destruction of its result apart, for the large
// replies: the benchmarks measure both, as an app pays both.
bool split(int argc, char** argv) {
  if (argc < 2 || std::string_view(argv[1]) != "--split") return false;
  for (const Reply& reply : corpus()) {
    if (reply.name == "get_faq/100000") printSplits<UserGetFaqResponse>(reply);
    if (reply.name == "user_list/20000") printSplits<UserList>(reply);
    if (reply.shape == "get_cms_name") printSplits<CmsGetCmsNameResponse>(reply);
    if (reply.shape == "get_cms_name_list") printSplits<CmsGetCmsNameListResponse>(reply);
    if (reply.name == "list_my_collections/10000") printSplits<ItemListMyCollectionsResponse>(reply);
  }
  return true;
}

}  // namespace
}  // namespace qb::bench

int main(int argc, char** argv) {
  if (qb::bench::dumpCorpus(argc, argv) || qb::bench::profile(argc, argv) || qb::bench::split(argc, argv)) return 0;
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  qb::bench::registerAll();
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
