# Entry points for people and CI.  `make demo` builds the release tool and
# translates a bundled example; `make test` builds under the sanitizers and
# runs the whole suite.

JOBS ?= $(shell nproc 2>/dev/null || echo 2)
RELEASE_DIR := build/release
TEST_DIR := build/test
DEMO_SCENE ?= examples/expressions.vlm

.PHONY: all deps test-deps web-deps release release-bench demo test web serve bench bench-generators gallery fuzz clean

all: release

# What building needs, and what the test suite (and the gallery) add.
deps:
	@scripts/install-deps.sh build

test-deps:
	@scripts/install-deps.sh test

web-deps:
	@scripts/install-deps.sh web

RELEASE_CONFIGURE := cmake -S . -B $(RELEASE_DIR) -DCMAKE_BUILD_TYPE=Release -DLUMERIC_TESTS=OFF

# The release build leaves the command in build/release/lumeric; the
# benchmarks (and the Google Benchmark library) are only for `make bench`.
release: deps
	$(RELEASE_CONFIGURE) -DLUMERIC_BENCH=OFF >/dev/null
	cmake --build $(RELEASE_DIR) -j $(JOBS)

# The release build with the benchmark programs in build/release/bench/.
release-bench:
	scripts/install-deps.sh bench
	$(RELEASE_CONFIGURE) -DLUMERIC_BENCH=ON >/dev/null
	cmake --build $(RELEASE_DIR) -j $(JOBS)

demo: release
	$(RELEASE_DIR)/lumeric -o - $(DEMO_SCENE)

# The suite includes the playground's browser test, so the site is built
# first.
test: test-deps web
	cmake -S . -B $(TEST_DIR) -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="-O1 -g" -DLUMERIC_SANITIZE=ON >/dev/null
	cmake --build $(TEST_DIR) -j $(JOBS)
	cd $(TEST_DIR) && ctest --output-on-failure -j $(JOBS)

# The playground: a static site in build/web/ that any static file server
# can serve; `make serve` serves it on http://localhost:$(PORT)/.
PORT ?= 8000
web: web-deps
	scripts/build-web.sh $(JOBS)

serve: web
	cd build/web && python3 -m http.server $(PORT)

# Builds the fuzz targets with clang's libFuzzer in build/fuzz and runs each
# for FUZZ_TIME seconds, FUZZ_PARALLEL targets at a time.
FUZZ_TIME ?= 180
FUZZ_PARALLEL ?= 1
fuzz: deps
	FUZZ_TIME=$(FUZZ_TIME) FUZZ_PARALLEL=$(FUZZ_PARALLEL) scripts/fuzz.sh

bench: release-bench
	bench/run.sh $(RELEASE_DIR)
	bench/generators.py $(RELEASE_DIR)/lumeric
	bench/export.py $(RELEASE_DIR)/lumeric
	bench/copies.py $(RELEASE_DIR)/lumeric

# The generators against OpenSCAD and POV-Ray, and their growth with size.
bench-generators: release
	bench/generators.py $(RELEASE_DIR)/lumeric

# Translates every example scene and renders a picture of each into
# docs/gallery/.
gallery: release test-deps
	scripts/gallery.sh $(RELEASE_DIR)/lumeric

clean:
	rm -rf build
