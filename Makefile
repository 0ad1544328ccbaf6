# qorkit: the two commands are `make run` and `make test`.
BUILD      ?= build
SAN_BUILD  ?= build-sanitize
FUZZ_BUILD ?= build-fuzz
SHARED_BUILD ?= build-shared
# What the shared build compiles and runs beside the install and symbol checks.
SHARED_TESTS ?= base_tests widgets_qttests designer_qttests
JOBS       ?= $(shell nproc)
WERROR     ?= $(or $(QORKIT_WERROR),OFF)
CMAKE_ARGS ?=

.PHONY: all deps configure build run test sanitize bench bench-compare fuzz format format-check install clean \
	designer test-shared docs

all: build

deps:
	@scripts/install-deps

$(BUILD)/build.ninja: | deps
	cmake -S . -B $(BUILD) -G Ninja -DQORKIT_WERROR=$(WERROR) $(CMAKE_ARGS)

configure: deps
	cmake -S . -B $(BUILD) -G Ninja -DQORKIT_WERROR=$(WERROR) $(CMAKE_ARGS)

build: configure
	cmake --build $(BUILD) -j $(JOBS)

# Renders the gallery (a window when a display exists, PNG files otherwise) and shows a short
# qorcalc session.
run: build
	@scripts/demo $(BUILD)

test: build
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS) --timeout 600

# Address and undefined-behaviour sanitizers over the standard-library-only tests.
sanitize: deps
	cmake -S . -B $(SAN_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=Debug -DQORKIT_WERROR=$(WERROR) \
	    -DQORKIT_SANITIZE="address;undefined" -DQORKIT_BUILD_WIDGETS=OFF \
	    -DQORKIT_BUILD_APPS=OFF -DQORKIT_BUILD_BENCH=OFF $(CMAKE_ARGS)
	cmake --build $(SAN_BUILD) -j $(JOBS)
	cd $(SAN_BUILD) && ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
	    ctest --output-on-failure -j $(JOBS) -L core --timeout 900

bench: build
	@for b in $(BUILD)/bench/bench_*; do echo "== $$b"; $$b --benchmark_min_time=0.2; done

# Each speed goal as a ratio to its peer (medians of interleaved repetitions), as a table.
bench-compare: configure
	cmake --build $(BUILD) -j $(JOBS) --target bench_programs
	@scripts/bench-compare $(BUILD)

fuzz:
	QORKIT_WITH_FUZZ=1 scripts/install-deps
	CC=clang CXX=clang++ cmake -S . -B $(FUZZ_BUILD) -G Ninja -DQORKIT_BUILD_FUZZ=ON \
	    -DCMAKE_CXX_FLAGS="-fsanitize=fuzzer-no-link,address,undefined" \
	    -DQORKIT_BUILD_WIDGETS=OFF -DQORKIT_BUILD_APPS=OFF -DQORKIT_BUILD_TESTS=OFF \
	    -DQORKIT_BUILD_BENCH=OFF
	cmake --build $(FUZZ_BUILD) -j $(JOBS)
	@for f in $(FUZZ_BUILD)/fuzz/fuzz_*; do echo "== $$f"; $$f -max_total_time=$${FUZZ_SECONDS:-30} -print_final_stats=1 || exit 1; done

FORMAT_FILES = $(shell git ls-files -- '*.h' '*.cpp')

format:
	clang-format -i $(FORMAT_FILES)

format-check: deps
	clang-format --dry-run --Werror $(FORMAT_FILES)

# Qt Designer with the library's plugin from the build tree (needs a display).
designer: configure
	cmake --build $(BUILD) -j $(JOBS) --target designer

# The shared libraries (-DBUILD_SHARED_LIBS=ON): SONAMEs and exported symbols, the installed
# package's consumer and the installed Designer plugin loaded from the prefix, and a few test
# programs against the .so files. Builds only what these need.
test-shared: deps
	cmake -S . -B $(SHARED_BUILD) -G Ninja -DQORKIT_WERROR=$(WERROR) -DBUILD_SHARED_LIBS=ON \
	    -DQORKIT_BUILD_BENCH=OFF $(CMAKE_ARGS)
	cmake --build $(SHARED_BUILD) -j $(JOBS) --target qorkit_base qorkit_core qorkit_widgets \
	    qorkit_designer qorcalc qorcalc_man qorkit-gallery designer_uic_form $(SHARED_TESTS)
	cd $(SHARED_BUILD) && ctest --output-on-failure -L install -R '^(install|shared)\.' --timeout 600
	cd $(SHARED_BUILD) && ctest --output-on-failure -R '^designer\.' --timeout 600
	@for t in $(SHARED_TESTS); do f=$$(find $(SHARED_BUILD)/tests -name $$t -type f | head -1); \
	    echo "== $$f"; QT_QPA_PLATFORM=offscreen $$f --gtest_brief=1 || exit 1; done

# The API reference: <build>/docs/html/index.html.
docs: configure
	cmake --build $(BUILD) -j $(JOBS) --target docs

install: build
	cmake --install $(BUILD) --prefix $(or $(PREFIX),/usr/local)

clean:
	rm -rf $(BUILD) $(SAN_BUILD) $(FUZZ_BUILD)
