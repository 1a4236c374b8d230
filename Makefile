# Entry points for people and CI. Every target installs what is missing first,
# so a fresh Debian 12 machine needs nothing but `make` (as root).
BUILD      ?= build
ASAN_BUILD ?= build-asan
DIR        ?= $(CURDIR)
JOBS       ?= $(shell nproc)
CMAKE_GEN   = cmake -G Ninja -Wno-dev

.PHONY: deps build run scan screenshots test test-fast test-asan bench format clean

deps:
	@bash scripts/install-deps.sh

$(BUILD)/build.ninja:
	$(CMAKE_GEN) -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=Release

build: deps $(BUILD)/build.ninja
	cmake --build $(BUILD) -j $(JOBS)

run: build
	$(BUILD)/src/app/shell/tessarine

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

bench: build
	bash bench/run.sh $(BUILD)

format:
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

clean:
	rm -rf $(BUILD) $(ASAN_BUILD)
