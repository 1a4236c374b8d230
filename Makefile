# Entry points for people and CI. Every target installs what is missing first,
# so a fresh Debian 12 machine needs nothing but `make` (as root).
BUILD      ?= build
ASAN_BUILD ?= build-asan
FUZZ_BUILD ?= build-fuzz
FUZZ_SECONDS ?= 60
FUZZ_TARGETS = ResultDecoderFuzz JsonExportFuzz CsvExportFuzz FolderSizesDecoderFuzz \
               ImportDecoderFuzz
DIR        ?= $(CURDIR)
JOBS       ?= $(shell nproc)
CMAKE_GEN   = cmake -G Ninja -Wno-dev

.PHONY: deps deps-fuzz deps-package build run scan screenshots test test-fast test-asan fuzz package \
        package-test bench format clean

deps:
	@bash scripts/install-deps.sh

$(BUILD)/build.ninja:
	$(CMAKE_GEN) -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=Release

build: deps $(BUILD)/build.ninja
	bash scripts/build-without-warnings.sh $(BUILD) $(JOBS)

run: build
	$(BUILD)/src/shell/tessarine

scan: build
	$(BUILD)/tools/tessarine-cli scan "$(DIR)"

# Renders the main window in its characteristic states to $(BUILD)/screenshots/.
screenshots: build
	cd $(BUILD) && ctest --output-on-failure -L screenshots
	@ls -1 $(BUILD)/screenshots/*.png

test-fast: build
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

$(ASAN_BUILD)/build.ninja:
	$(CMAKE_GEN) -S . -B $(ASAN_BUILD) -DCMAKE_BUILD_TYPE=Debug \
	    -DTESSARINE_CORE_ONLY=ON -DTESSARINE_SANITIZE=ON

test-asan: deps $(ASAN_BUILD)/build.ninja
	cmake --build $(ASAN_BUILD) -j $(JOBS)
	cd $(ASAN_BUILD) && ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
	    ctest --output-on-failure -j $(JOBS)

test: test-fast test-asan

deps-fuzz:
	@bash scripts/install-deps.sh fuzz

$(FUZZ_BUILD)/build.ninja:
	$(CMAKE_GEN) -S . -B $(FUZZ_BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	    -DCMAKE_CXX_COMPILER=clang++ -DTESSARINE_CORE_ONLY=ON -DTESSARINE_FUZZ=ON

# Runs each fuzz target for FUZZ_SECONDS, starting from the seeds in fuzz/corpus/. New inputs are
# kept in $(FUZZ_BUILD)/corpus/, a crashing one in $(FUZZ_BUILD)/ (crash-*, leak-*, timeout-*).
fuzz: deps-fuzz $(FUZZ_BUILD)/build.ninja
	cmake --build $(FUZZ_BUILD) -j $(JOBS) --target $(FUZZ_TARGETS)
	@for target in $(FUZZ_TARGETS); do \
	    mkdir -p $(FUZZ_BUILD)/corpus/$$target && \
	    echo "== $$target, $(FUZZ_SECONDS) s" && \
	    ( cd $(FUZZ_BUILD) && ./fuzz/$$target -max_total_time=$(FUZZ_SECONDS) -print_final_stats=1 \
	        -timeout=10 -rss_limit_mb=4096 corpus/$$target $(CURDIR)/fuzz/corpus/$$target ) \
	    || exit 1; \
	done

deps-package:
	@bash scripts/install-deps.sh package

# $(BUILD)/tessarine_<version>_<arch>.deb, from a build configured once rsvg-convert is there
# (it renders the icon's bitmaps).
package: deps deps-package $(BUILD)/build.ninja
	cmake -Wno-dev $(BUILD)
	cmake --build $(BUILD) -j $(JOBS) --target tessarine tessarine-cli tessarine_packaging_files
	cd $(BUILD) && cpack

# Installs the package on this machine as a user would, checks it, then removes it (as root).
package-test: package
	bash scripts/test-package.sh $(BUILD)

bench: build
	bash bench/run.sh $(BUILD)

format:
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

clean:
	rm -rf $(BUILD) $(ASAN_BUILD) $(FUZZ_BUILD)
