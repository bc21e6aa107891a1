# Thin wrappers around CMake and dotnet. Everything that is built lands in build/.
#
#   make            build the package
#   make demo       convert examples/drawings into build/demo
#   make test       everything there is, under ctest
#   make fuzz-calls hostile calls of every member for MINUTES=60, from SEED=1 on
#   make fuzz       mutated files for every reader and writer for MINUTES=60, from SEED=1 on, in WORKERS=1 processes
#   make mutants    mutation run over single lines: ONLY=<text of a name or file>
#   make sanitize   the native units under the address and undefined-behaviour sanitizers
#   make bench      measurements beside hand-written baselines
#   make fidelity   rendered drawings beside those of other programs; EZDXF=<checkout> names one of them
#   make catalogue  which of the types of CATALOGUE=<table> stand, module by module
#   make wheel      the package as a wheel, in build/dist
#   make acceptance checks of what is shipped, in bare roots, browsers and clusters: CHECK=<names> selects
#   make docs       the documentation as a site, in build/docs/site
#   make format     put the sources into the code style
#   make lint       the format check, .NET analyzers and clang-tidy
#   make clean      forget what was built
#
# PYTHON=<path> names the CPython 3.12 to build for; else it is looked for on the path, then in pyenv.

PRESET ?= release
CATALOGUE ?= ../shared/catalogue.tsv
SEED ?= 1
ROUNDS ?= 20000
MINUTES ?= 60
WORKERS ?= 1
BUILD := build/$(PRESET)
# A build leaves no servers behind: they would outlive it, hold its pipes open, and mix with other builds.
export MSBUILDDISABLENODEREUSE := 1
export UseSharedCompilation := false
export DOTNET_CLI_TELEMETRY_OPTOUT := 1
export DOTNET_NOLOGO := 1

.PHONY: build demo test fuzz fuzz-calls mutants sanitize bench fidelity catalogue wheel acceptance docs format lint clean packages

build: packages $(BUILD)/build.ninja
	@cmake --build --preset $(PRESET)

packages:
	@tools/ensure-packages.sh build run

$(BUILD)/build.ninja: CMakePresets.json | packages
	@tools/check-dotnet.sh
	@python=$$(tools/find-python.sh) && cmake --preset $(PRESET) -DPython_EXECUTABLE="$$python"

demo: build
	@build/python examples/convert.py

test: test_packages build
	@ctest --preset $(PRESET)

fuzz-calls: build
	@build/python tests/python/hostile_calls.py --seed $(SEED) --rounds $(ROUNDS) --minutes $(MINUTES)

fuzz: build
	@build/python tests/python/fuzz.py --seed $(SEED) --minutes $(MINUTES) --workers $(WORKERS)

mutants: test_packages packages
	@python=$$(tools/find-python.sh) && "$$python" tools/mutants.py --only '$(ONLY)'

sanitize: test_packages packages
	@python=$$(tools/find-python.sh) && cmake --preset asan -DPython_EXECUTABLE="$$python" >/dev/null
	@cmake --build --preset asan
	@ctest --preset asan

bench: bench_packages build
	@cmake --build --preset $(PRESET) --target bench_modules
	@build/python bench/run.py --modules $(BUILD)/bench

fidelity: fidelity_packages build
	@EZDXF='$(EZDXF)' build/python bench/fidelity/run.py

catalogue: build
	@build/python tools/catalogue.py $(CATALOGUE)

wheel: wheel_packages build
	@cmake --build --preset $(PRESET) --target wheel_runtime
	@build/python tools/make_wheel.py --build $(BUILD) --out build/dist

acceptance: wheel
	@build/python tests/acceptance/run.py $(CHECK)

docs: docs_packages build
	@build/python tools/site/make_docs.py --package $(BUILD)/package/korvan

.PHONY: test_packages bench_packages docs_packages fidelity_packages lint_packages wheel_packages
test_packages:
	@tools/ensure-packages.sh test
	@tools/ensure-type-checker.sh
bench_packages:
	@tools/ensure-packages.sh bench
fidelity_packages:
	@tools/ensure-packages.sh fidelity
wheel_packages:
	@tools/ensure-packages.sh wheel
docs_packages:
	@tools/ensure-packages.sh docs
lint_packages:
	@tools/ensure-packages.sh lint

format: lint_packages
	@tools/format.sh

lint: lint_packages $(BUILD)/build.ninja
	@tools/format.sh --check
	@tools/lint-managed.sh
	@tools/lint.sh $(BUILD)

clean:
	@rm -rf build
