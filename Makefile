# Thin wrapper over the CMake presets. `make demo` and `make test` are the two set-up commands.
SHELL := /bin/bash
JOBS ?= $(shell nproc)
# The main job: a scripted session through both faces against the built-in mock service.
DEMO_CMD ?= build/default/cli/qbapi demo

DEBIAN_PACKAGES := cmake ninja-build g++ clang libclang-rt-14-dev ccache pkg-config python3 \
  libboost-json1.81-dev libsimdjson-dev libgtest-dev libgmock-dev libbenchmark-dev \
  libcurl4-openssl-dev libcpp-httplib-dev libcli11-dev nlohmann-json3-dev rapidjson-dev

# The API reference's tools, installed by `make docs` only: the browser is large and nothing else needs it.
DOCS_PACKAGES := doxygen chromium

.PHONY: deps build test demo package clang asan tsan bench fuzz docs format clean

# Installs only those of the given Debian packages that are missing; quick and silent when all are there.
define install_missing
	@missing=""; \
	for p in $(1); do \
	  dpkg-query -W -f='$${Status}' $$p 2>/dev/null | grep -q "install ok installed" || missing="$$missing $$p"; \
	done; \
	if [ -n "$$missing" ]; then \
	  echo "Installing:$$missing"; \
	  sudo=""; [ "$$(id -u)" -ne 0 ] && command -v sudo >/dev/null && sudo=sudo; \
	  $$sudo env DEBIAN_FRONTEND=noninteractive apt-get update -qq && \
	  $$sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $$missing; \
	fi
endef

deps:
	$(call install_missing,$(DEBIAN_PACKAGES))

build: deps
	cmake --preset default
	cmake --build --preset default -j $(JOBS)

test: build
	ctest --preset default

demo: build
	$(DEMO_CMD)

# The Debian package of the default build: build/default/libqbcomponentapi-dev_<version>_<arch>.deb.
package: build
	cd build/default && cpack -G DEB

clang: deps
	cmake --preset clang
	cmake --build --preset clang -j $(JOBS)
	ctest --preset clang

asan: deps
	cmake --preset asan
	cmake --build --preset asan -j $(JOBS)
	ctest --preset asan

tsan: deps
	cmake --preset tsan
	cmake --build --preset tsan -j $(JOBS)
	ctest --preset tsan

# Benchmarks: a short minimum time per benchmark and the fastest of a few repetitions keep the whole
# run (build included) within a few minutes on two cores; the table and the `qb-bench:` line come last.
BENCH_MIN_TIME ?= 0.2
BENCH_REPETITIONS ?= 3
# The host against the mock service: calls made by 8 threads (qb_load).
LOAD_CALLS ?= 4000
bench: deps
	cmake --preset bench
	cmake --build --preset bench -j $(JOBS)
	build/bench/bench/qb_bench --benchmark_min_time=$(BENCH_MIN_TIME) \
	  --benchmark_repetitions=$(BENCH_REPETITIONS) --benchmark_display_aggregates_only=true \
	  --benchmark_out=build/bench/results.json --benchmark_out_format=json
	python3 bench/report.py build/bench/results.json
	build/bench/bench/qb_load $(LOAD_CALLS)

FUZZ_SECONDS ?= 20
fuzz: deps
	cmake --preset fuzz
	cmake --build --preset fuzz -j $(JOBS)
	fuzz/run.sh build/fuzz $(FUZZ_SECONDS)

# The API reference in build/default/docs/html, built without a single Doxygen warning, then its checks
# (the pages as a headless browser renders them, every record on the records page).
docs: deps
	$(call install_missing,$(DOCS_PACKAGES))
	cmake --preset default
	cmake --build --preset default --target docs -j $(JOBS)
	ctest --preset docs

format:
	find Classes host mock cli tests bench fuzz examples -name '*.[ch]pp' 2>/dev/null | xargs -r clang-format -i

clean:
	rm -rf build
