# The door: each target installs the Debian packages that it misses, then builds and runs what it names.
#   make demo [IMAGE=photo.png]   builds the library and runs the demo, which writes build/demo/index.html
#   make test                     builds and runs the tests
#   make bench [BENCH=words]      times the library against its peers; without words, writes docs/performance.md
#   make check                    format, floors, warnings, static analysis
#   make fuzz [SECONDS=60 SEED=0] calls all functions with arguments that a fuzzer makes up, under AddressSanitizer
#   make race                     calls all functions from many threads at once, under ThreadSanitizer
#   make docs                     the reference, as build/docs/html/index.html
#   make install [PREFIX=...]     installs the library for all 64-bit processor levels; root by sudo where it must
# PRESET picks another build of CMakePresets.json for demo, test and bench; processors without AVX2, and ARM, have theirs.
MACHINE := $(shell uname -m)
PRESET ?= $(if $(filter aarch64,$(MACHINE)),armv8-a,$(if $(shell grep -m 1 -w avx2 /proc/cpuinfo),x86-64-v3,x86-64-v2))
PREFIX ?= /usr/local
IMAGE ?=
SECONDS ?= 60
SEED ?= 0

BUILD := build/$(PRESET)
JOBS := $(shell nproc)
BUILD_PACKAGES := g++ cmake ninja-build pkg-config libhwy-dev libpng-dev libgtest-dev
IA32_PACKAGES := g++-12-multilib googletest
ARM64_PACKAGES := g++-12-aarch64-linux-gnu qemu-user-static googletest
CLANG_PACKAGES := clang libclang-rt-dev libomp-dev
PEER_PACKAGES := libopencv-core-dev libopencv-imgproc-dev libyuv-dev libpixman-1-dev libfftw3-dev libjpeg62-turbo-dev
ifeq ($(PRESET),ia32)
BUILD_PACKAGES += $(IA32_PACKAGES)
endif
ifeq ($(PRESET)/$(filter aarch64,$(MACHINE)),armv8-a/)
BUILD_PACKAGES += $(ARM64_PACKAGES)
endif

.PHONY: all demo test fuzz race bench peers bench-build check docs install exports digests statuses format build configure clean

all: build

configure:
	@tools/need.sh $(BUILD_PACKAGES)
	@mkdir -p build
	@cmake --preset $(PRESET) >$(BUILD).log 2>&1 || { cat $(BUILD).log; exit 1; }

build: configure
	cmake --build $(BUILD) -j $(JOBS)

demo: configure
	@cmake -DVEMI_BUILD_EXAMPLES=ON $(BUILD) >/dev/null
	cmake --build $(BUILD) -j $(JOBS) --target vemi_demo
	$(BUILD)/examples/vemi_demo $(if $(IMAGE),"$(IMAGE)") --out build/demo

test: build
	ctest --preset $(PRESET)

# What the fuzzer found worth keeping stays in the build folder, and the next run begins with it.
fuzz:
	@tools/need.sh $(BUILD_PACKAGES) $(CLANG_PACKAGES)
	@cmake --preset fuzz >/dev/null
	cmake --build build/fuzz -j $(JOBS) --target vemi_fuzz
	@mkdir -p build/fuzz/corpus
	build/fuzz/tests/vemi_fuzz -seed=$(SEED) -max_total_time=$(SECONDS) -max_len=512 -verbosity=0 -print_final_stats=1 \
	  -artifact_prefix=build/fuzz/ build/fuzz/corpus

# Twice, because libarcher, which tells the sanitizer where the threads of a team wait for each other, hides races
# between callers: the threads of teams with it, then eight callers without it and without teams.
race: export OMP_WAIT_POLICY = passive
race: export TSAN_OPTIONS = halt_on_error=1 ignore_noninstrumented_modules=1
race:
	@tools/need.sh $(BUILD_PACKAGES) $(CLANG_PACKAGES)
	@cmake --preset race >/dev/null
	cmake --build build/race -j $(JOBS) --target vemi_driver
	OMP_TOOL_LIBRARIES=$$(dirname $$(readlink -f $$(command -v clang)))/../lib/libarcher.so \
	  build/race/tests/vemi_driver --callers 1
	OMP_TOOL=disabled OMP_THREAD_LIMIT=1 KMP_WARNINGS=0 build/race/tests/vemi_driver --callers 8

# A whole table goes into docs/performance.md.
bench: SHELL := /bin/bash -o pipefail
bench: peers bench-build
	OMP_NUM_THREADS=1 $(BUILD)/bench/vemi_bench $(BENCH) | tee $(BUILD)/bench.txt
	$(if $(filter-out --quick,$(BENCH)),,tools/write-performance.sh $(BUILD)/bench.txt)

peers:
	@tools/need.sh $(PEER_PACKAGES)

# With the peers that happen to be installed.
bench-build: configure
	@cmake -DVEMI_BUILD_BENCHMARKS=ON $(BUILD) | grep '^-- Benchmarks'
	cmake --build $(BUILD) -j $(JOBS) --target vemi_bench

# The build of the presets has warnings as errors.
check: build
	@tools/need.sh clang-format clang-tidy libomp-dev
	tools/format.sh --check
	tools/check-floors.sh
	tools/tidy.sh $(BUILD)

docs:
	@tools/need.sh doxygen
	@mkdir -p build
	tools/find-functions.sh include tools/statuses.txt >build/find.md
	doxygen docs/Doxyfile
	@echo "open build/docs/html/index.html"

install:
	@tools/need.sh $(BUILD_PACKAGES)
	tools/install-levels.sh "$(PREFIX)"

# After a function was added: the committed lists of names and prototypes.
exports:
	tools/list-exports.sh include >tools/exports.txt
	tools/list-exports.sh include --prototypes >tools/prototypes.txt

# After a function was added or gives other bytes on purpose: the committed digests.
digests: configure
	cmake --build $(BUILD) -j $(JOBS) --target vemi_digest
	$(BUILD)/tests/vemi_digest >tests/digest/digests.txt

# After a function was added or returns another status: the committed list of who returns which.
statuses: configure
	cmake --build $(BUILD) -j $(JOBS) --target vemi_statuses
	$(BUILD)/tests/vemi_statuses >$(BUILD)/statuses.txt
	tools/list-statuses.sh include $(BUILD)/statuses.txt >tools/statuses.txt

format:
	@tools/need.sh clang-format
	tools/format.sh

clean:
	rm -rf build
