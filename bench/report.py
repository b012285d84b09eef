#!/usr/bin/env python3
"""Turns qb_bench's JSON output into the ratio tables and the closing `qb-bench:` line.

Usage: report.py RESULTS.json [--markdown]

Each benchmark is named <group>/<variant>/<reply>. With repetitions, the fastest repetition counts
(noise from other processes only ever adds time). Ratios are of throughput: above 1 means the
library is faster. The headline ratios are geometric means over the large (collection-sized) replies.
"""
import json
import math
import sys
from collections import defaultdict

UNIT_NS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}
TYPED = ["ceiling", "qb", "handwritten", "boost", "nlohmann", "rapidjson"]
DICT = ["qb", "qb_bytes", "qb_monotonic", "boost_parse", "boost_parse_monotonic", "nlohmann_parse"]
ENCODE = ["qb", "boost", "nlohmann"]
MEMORY = ["qb", "qb_wire", "handwritten", "boost", "nlohmann", "rapidjson", "dict_qb", "dict_qb_wire", "dict_qb_monotonic"]


def load(path):
    with open(path) as f:
        data = json.load(f)
    times = {}     # (group, variant, reply) -> fastest ns per iteration
    sizes = {}     # (group, variant, reply) -> bytes
    counters = {}  # (group, variant, reply) -> counters of memory runs
    errors = []
    for b in data["benchmarks"]:
        if b.get("run_type") != "iteration":
            continue
        name = b.get("run_name", b["name"])
        if "/iterations:" in name:
            name = name.split("/iterations:")[0]
        group, variant, reply = name.split("/", 2)
        key = (group, variant, reply)
        if b.get("error_occurred"):
            errors.append(f"{name}: {b.get('error_message')}")
            continue
        ns = b["cpu_time"] * UNIT_NS[b["time_unit"]]
        times[key] = min(ns, times.get(key, math.inf))
        sizes[key] = b.get("bytes", 0)
        counters[key] = b
    return data.get("context", {}), times, sizes, counters, errors


def replies_of(times, group):
    seen = []
    for (g, _, reply) in times:
        if g == group and reply not in seen:
            seen.append(reply)
    return seen


def mbps(times, sizes, key):
    return sizes[key] / times[key] * 1e3 if key in times else None  # bytes per ns * 1e3 = MB/s


def ratio(times, group, reply, ours, theirs):
    a, b = times.get((group, ours, reply)), times.get((group, theirs, reply))
    return b / a if a and b else None


def fmt(x, digits=2):
    return "-" if x is None else f"{x:.{digits}f}"


def table(title, header, rows):
    widths = [max(len(str(r[i])) for r in [header] + rows) for i in range(len(header))]
    lines = [title, "| " + " | ".join(h.ljust(w) for h, w in zip(header, widths)) + " |",
             "|" + "|".join("-" * (w + 2) for w in widths) + "|"]
    for r in rows:
        lines.append("| " + " | ".join(str(c).ljust(w) for c, w in zip(r, widths)) + " |")
    return "\n".join(lines)


def geomean(values):
    values = [v for v in values if v]
    return math.exp(sum(math.log(v) for v in values) / len(values)) if values else None


def main():
    context, times, sizes, counters, errors = load(sys.argv[1])
    # The replies the corpus marks large (the "large" counter); results written before the counter
    # existed fall back to the replies of a megabyte and more. The memory runs carry no such counter.
    large = {reply for (g, _, reply), b in counters.items()
             if g != "memory" and b.get("large", 1 if b.get("bytes", 0) >= 1_000_000 else 0) >= 1}
    out = []

    def throughput_rows(group, variants, base, peers):
        rows = []
        for reply in replies_of(times, group):
            small = reply not in large and sizes.get((group, base, reply), 0) < 100_000
            cells = []
            for v in variants:
                key = (group, v, reply)
                if small:
                    cells.append(fmt(times.get(key), 0) + " ns" if key in times else "-")
                else:
                    cells.append(fmt(mbps(times, sizes, key), 0))
            rows.append([reply] + cells + [fmt(ratio(times, group, reply, base, p)) for p in peers])
        return rows

    typed_peers = ["ceiling", "handwritten", "boost", "nlohmann", "rapidjson"]
    out.append(table("Typed face: qb::JSONDecoder into records (MB/s of input; ns per reply for small ones); "
                     "ratios qb / peer",
                     ["reply"] + TYPED + [f"vs {p}" for p in typed_peers],
                     throughput_rows("typed", TYPED, "qb", typed_peers)))
    dict_pairs = [("qb", "boost_parse"), ("qb_bytes", "boost_parse"), ("qb_monotonic", "boost_parse_monotonic"), ("qb", "nlohmann_parse")]
    rows = []
    for reply in replies_of(times, "dict"):
        small = reply not in large and sizes.get(("dict", "qb", reply), 0) < 100_000
        cells = [(fmt(times.get(("dict", v, reply)), 0) + " ns") if small else fmt(mbps(times, sizes, ("dict", v, reply)), 0)
                 for v in DICT]
        rows.append([reply] + cells + [fmt(ratio(times, "dict", reply, a, b)) for a, b in dict_pairs])
    out.append(table("Dictionary face: parseJsonMap + parseResponse (initWithJsonObject), and parseResponseBytes (qb_bytes, the host's reading) vs parse alone; ratios qb / peer",
                     ["reply"] + DICT + [f"{a} vs {b}" for a, b in dict_pairs], rows))
    out.append(table("Encoding: qb::JSONEncoder vs Boost.JSON serialize vs nlohmann dump (MB/s of output); ratios qb / peer",
                     ["reply"] + ENCODE + ["vs boost", "vs nlohmann"],
                     throughput_rows("encode", ENCODE, "qb", ["boost", "nlohmann"])))
    memory = [(reply, v, b) for (g, v, reply), b in counters.items() if g == "memory"]
    # The largest reply first: it is generated for this table alone and gives the headline figure.
    by_size = sorted({(b.get("bytes", 0), reply) for reply, _, b in memory}, reverse=True)
    place = {reply: i for i, (_, reply) in enumerate(by_size)}
    memory.sort(key=lambda m: (place[m[0]], MEMORY.index(m[1]) if m[1] in MEMORY else 99))
    rows = [[f"{v} ({reply}, {b['bytes'] / 1e6:.1f} MB)", fmt(b.get("peak_x")), fmt(b.get("resident_peak_x")),
             fmt(b.get("result_x")), fmt(b.get("kept_x"))] for reply, v, b in memory]
    out.append(table("Memory of one decode, in multiples of the reply's size (the largest reply first, then the "
                     "largest timed one): allocated (operator new) and resident peak while decoding, held by the "
                     "result, still allocated for the thread after its next (small) reply",
                     ["variant", "allocated peak", "resident peak", "result", "kept by the thread"], rows))

    def headline(group, ours, theirs):
        return geomean([ratio(times, group, r, ours, theirs) for r in replies_of(times, group) if r in large])

    line = {
        "typed_vs_handwritten": headline("typed", "qb", "handwritten"),
        "typed_vs_ceiling": headline("typed", "qb", "ceiling"),
        "typed_vs_boost": headline("typed", "qb", "boost"),
        "typed_vs_nlohmann": headline("typed", "qb", "nlohmann"),
        "typed_vs_rapidjson": headline("typed", "qb", "rapidjson"),
        "dict_vs_boost_parse": headline("dict", "qb", "boost_parse"),
        "dict_bytes_vs_boost_parse": headline("dict", "qb_bytes", "boost_parse"),
        "dict_monotonic_vs_boost_parse_monotonic": headline("dict", "qb_monotonic", "boost_parse_monotonic"),
        "encode_vs_boost": headline("encode", "qb", "boost"),
    }
    host = context.get("host_name", "?")
    out.append(f"Headline ratios: geometric mean over the large replies ({', '.join(sorted(large))}); "
               f"{context.get('num_cpus', '?')} CPUs at {context.get('mhz_per_cpu', '?')} MHz on {host}.")
    for e in errors:
        out.append("ERROR " + e)
    print("\n\n".join(out))
    print("qb-bench: " + " ".join(f"{k}={fmt(v)}" for k, v in line.items()))
    return 1 if errors else 0


if __name__ == "__main__":
    sys.exit(main())
