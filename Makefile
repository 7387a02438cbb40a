# pensja: the two commands (make run, make test) set everything up on a fresh Debian machine.
BUILD      ?= build
ASAN_BUILD ?= build-asan
JOBS       ?= $(shell nproc 2>/dev/null || echo 2)
RUN_DIR    ?= $(BUILD)/run

# Debian packages the build, the tests and the program need.
PACKAGES = cmake ninja-build g++ pkg-config qt6-base-dev qt6-base-dev-tools libgl-dev \
           libgtest-dev libgmock-dev libbenchmark-dev fonts-liberation fontconfig \
           xvfb xauth imagemagick poppler-utils

SUDO := $(shell [ "$$(id -u)" = 0 ] || echo sudo)

FUZZ_BUILD ?= build-fuzz
FUZZ_TIME  ?= 600
FUZZ_TARGETS = codec instalka mojafirma instal dane person pay karta dodatkowe urlopy sumy specyfikacja dates numbers

.PHONY: all deps configure build run test test-asan bench package fuzz clean

all: build

deps:
	@missing=""; for p in $(PACKAGES); do \
	  dpkg-query -W -f='$${Status}' $$p 2>/dev/null | grep -q "install ok installed" || missing="$$missing $$p"; \
	done; \
	if [ -n "$$missing" ]; then \
	  echo "Instaluję brakujące pakiety:$$missing"; \
	  $(SUDO) apt-get update -qq && DEBIAN_FRONTEND=noninteractive $(SUDO) apt-get install -y -qq --no-install-recommends $$missing; \
	fi

configure: deps
	@[ -f $(BUILD)/build.ninja ] || cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo

build: configure
	cmake --build $(BUILD) -j $(JOBS)

# Opens the program on a fresh copy of the demo data (password: demo).
run: build
	rm -rf $(RUN_DIR) && cp -r demo $(RUN_DIR)
	cd $(RUN_DIR) && $(CURDIR)/$(BUILD)/src/gui/pensja

# Every test: the engine, the command line and the screens (offscreen).
test: build
	cd $(BUILD) && LANG=C.UTF-8 TZ=Europe/Warsaw QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

# The engine's tests under AddressSanitizer and UndefinedBehaviorSanitizer.
test-asan: deps
	@[ -f $(ASAN_BUILD)/build.ninja ] || cmake -S . -B $(ASAN_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=Debug \
	  -DPENSJA_SANITIZE=ON -DPENSJA_GUI=OFF -DPENSJA_BENCH=OFF
	cmake --build $(ASAN_BUILD) -j $(JOBS)
	cd $(ASAN_BUILD) && LANG=C.UTF-8 TZ=Europe/Warsaw ctest --output-on-failure -j $(JOBS)

# Every reader under libFuzzer (needs clang), FUZZ_TIME seconds a target (make fuzz FUZZ_TIME=60):
# the executions and crashes of each; a crash leaves its input in build-fuzz/crashes/<target>/,
# which goes to tests/fuzz/corpus/<target>/ once fixed.
fuzz:
	@command -v clang++ >/dev/null || { echo "make fuzz: brak kompilatora clang++ (apt-get install clang)"; exit 1; }
	@[ -f $(FUZZ_BUILD)/build.ninja ] || CC=clang CXX=clang++ cmake -S . -B $(FUZZ_BUILD) -G Ninja \
	  -DCMAKE_BUILD_TYPE=RelWithDebInfo -DPENSJA_FUZZ=ON
	cmake --build $(FUZZ_BUILD) -j $(JOBS)
	fuzz/run.sh $(FUZZ_BUILD) $(FUZZ_TIME) $(FUZZ_TARGETS)

# The Debian package pensja_<version>_<arch>.deb in the build folder.
package: build
	cd $(BUILD) && cpack -G DEB

# Benchmarks on generated data: the month's commands of lists of 2,500 and 25,000 people against
# a lean baseline (time and peak memory), then the engine's own benchmarks.
bench: build
	$(BUILD)/bench/pensja-bench-cli
	@[ ! -x $(BUILD)/bench/pensja-bench ] || $(BUILD)/bench/pensja-bench

clean:
	rm -rf $(BUILD) $(ASAN_BUILD) $(FUZZ_BUILD)
