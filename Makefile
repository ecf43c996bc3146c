# Convenience targets; everything is CMake + Ninja underneath.
BUILD   ?= build
ASAN    ?= build-asan
WIN     ?= build-win
JOBS    ?= $(shell nproc)
CMAKE_FLAGS ?=

FUZZ_SECONDS ?= 60
FUZZ_JOBS    ?= 2

.PHONY: all build demo test test-asan test-windows bench fuzz install clean

all: build

$(BUILD)/build.ninja:
	cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo $(CMAKE_FLAGS)

build: $(BUILD)/build.ninja
	cmake --build $(BUILD) -j $(JOBS)

# Builds the tool and shows what it reads from the bundled examples: a
# script, then the tables of the example oil field in English and Chinese,
# one of its statistics template files, its pack, and that the two
# languages hold the same records.
demo: build
	$(BUILD)/tools/mapcfg script examples/wells.cfg
	$(BUILD)/tools/mapcfg check examples/wells.cfg && echo "check: examples/wells.cfg is clean"
	$(BUILD)/examples/read_wells examples/wells.cfg
	$(BUILD)/tools/mapcfg show examples/en/field.cfg --table lith
	$(BUILD)/tools/mapcfg show examples/zh/field.cfg --table status
	$(BUILD)/tools/mapcfg show examples/zh/field.cfg --table textfmts
	$(BUILD)/tools/mapcfg show examples/en/field.cfg --table wellloc
	$(BUILD)/tools/mapcfg show examples/en/field.cfg --table single
	$(BUILD)/tools/mapcfg pack examples -o $(BUILD)/liuhe.pack
	$(BUILD)/tools/mapcfg show --archive $(BUILD)/liuhe.pack --table correl | head -12
	$(BUILD)/tools/mapcfg diff --layout examples/en examples/zh
	$(BUILD)/tools/mapcfg show examples/stat/water_cut.ctp

# Builds and runs every test.
test: build
	ctest --test-dir $(BUILD) --output-on-failure -j $(JOBS)

# The tests again under AddressSanitizer and UndefinedBehaviorSanitizer.
test-asan:
	cmake -S . -B $(ASAN) -G Ninja -DCMAKE_BUILD_TYPE=Debug -DMAPCFG_SANITIZE=ON $(CMAKE_FLAGS)
	cmake --build $(ASAN) -j $(JOBS)
	ctest --test-dir $(ASAN) --output-on-failure -j $(JOBS)

# Cross-builds the library, resource DLLs, tool and tests for 64-bit Windows
# with MinGW-w64 and runs every test under Wine (Debian: g++-mingw-w64-x86-64,
# wine64, googletest).
test-windows:
	cmake -S . -B $(WIN) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	  -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64-x86_64.cmake $(CMAKE_FLAGS)
	cmake --build $(WIN) -j $(JOBS)
	ctest --test-dir $(WIN) --output-on-failure -j $(JOBS)

bench:
	cmake -S . -B build-bench -G Ninja -DCMAKE_BUILD_TYPE=Release -DMAPCFG_BUILD_BENCH=ON -DMAPCFG_BUILD_TESTS=OFF
	cmake --build build-bench -j $(JOBS)
	for b in build-bench/bench/bench_*; do $$b; done

# Runs every libFuzzer target for FUZZ_SECONDS each (FUZZ_JOBS at a time)
# and merges what they found into the checked-in corpus under fuzz/corpus.
fuzz:
	cmake -S . -B build-fuzz -G Ninja -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ \
	  -DCMAKE_BUILD_TYPE=RelWithDebInfo -DMAPCFG_BUILD_FUZZ=ON -DMAPCFG_SANITIZE=ON -DBUILD_SHARED_LIBS=OFF \
	  -DMAPCFG_BUILD_TESTS=OFF -DMAPCFG_BUILD_TOOLS=OFF
	cmake --build build-fuzz -j $(JOBS)
	bash fuzz/run.sh build-fuzz $(FUZZ_SECONDS) $(FUZZ_JOBS)

install: build
	cmake --install $(BUILD) --prefix $(or $(PREFIX),/usr/local)

clean:
	rm -rf $(BUILD) $(ASAN) $(WIN) build-bench build-fuzz
