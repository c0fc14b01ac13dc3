# The door: each target installs the Debian packages that it misses, then builds and runs what it names.
#   make demo [IMAGE=photo.png]   builds the library and runs the demo, which writes build/demo/index.html
#   make test                     builds and runs the tests
#   make bench [BENCH=words]      times the library against its peers
#   make check                    format, warnings, static analysis
#   make docs                     the reference, as build/docs/html/index.html
#   make install [PREFIX=...]     installs the library for every 64-bit processor level
# PRESET picks another build of CMakePresets.json for demo, test and bench.
PRESET ?= x86-64-v3
PREFIX ?= /usr/local
IMAGE ?=

BUILD := build/$(PRESET)
JOBS := $(shell nproc)
BUILD_PACKAGES := g++ cmake ninja-build pkg-config libhwy-dev libpng-dev libgtest-dev
IA32_PACKAGES := g++-multilib googletest
PEER_PACKAGES := libopencv-core-dev libopencv-imgproc-dev libyuv-dev libpixman-1-dev
ifeq ($(PRESET),ia32)
BUILD_PACKAGES += $(IA32_PACKAGES)
endif

.PHONY: all demo test bench peers bench-build check docs install exports format build configure clean

all: build

configure:
	@tools/need.sh $(BUILD_PACKAGES)
	@mkdir -p build
	@cmake --preset $(PRESET) >$(BUILD).log 2>&1 || { cat $(BUILD).log; exit 1; }

build: configure
	cmake --build $(BUILD) -j $(JOBS)

demo: configure
	cmake --build $(BUILD) -j $(JOBS) --target vemi_demo
	$(BUILD)/examples/vemi_demo $(IMAGE) --out build/demo

test: build
	ctest --preset $(PRESET)

bench: peers bench-build
	OMP_NUM_THREADS=1 $(BUILD)/bench/vemi_bench $(BENCH)

peers:
	@tools/need.sh $(PEER_PACKAGES)

# With the peers that happen to be installed.
bench-build: configure
	@cmake -DVEMI_BUILD_BENCHMARKS=ON $(BUILD) | grep '^-- Benchmarks'
	cmake --build $(BUILD) -j $(JOBS) --target vemi_bench

# The build of the presets has warnings as errors.
check: build
	@tools/need.sh clang-format clang-tidy
	tools/format.sh --check
	tools/tidy.sh $(BUILD)

docs:
	@tools/need.sh doxygen
	@mkdir -p build
	doxygen docs/Doxyfile
	@echo "open build/docs/html/index.html"

install:
	@tools/need.sh $(BUILD_PACKAGES)
	tools/install-levels.sh $(PREFIX)

# After a function was added: the committed list of exports.
exports:
	tools/list-exports.sh include >tools/exports.txt

format:
	@tools/need.sh clang-format
	tools/format.sh

clean:
	rm -rf build
