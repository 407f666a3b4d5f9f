# The checks, as jobs of make: each starts when what it needs is built, as many at once as make is told to run.
# scripts/test runs them all, or those that it is given, on a machine that scripts/setup has prepared.
SHELL := /bin/bash
.SHELLFLAGS := -euo pipefail -c
.SUFFIXES:
MAKEFLAGS += --no-builtin-rules --no-print-directory

# The tests' objects, alike in all builds of a width, are compiled once.
export CCACHE_DIR := $(CURDIR)/build/ccache
export CCACHE_NOHASHDIR := 1
export CCACHE_DEPEND := 1
export CMAKE_C_COMPILER_LAUNCHER := ccache
export CMAKE_CXX_COMPILER_LAUNCHER := ccache

builds := 32 32-sanitized 64 64-sanitized
fuzz_targets := $(patsubst fuzz/%/,%,$(wildcard fuzz/*/))
tidy := $(addprefix tidy/,$(shell git ls-files '*.cpp'))
.PHONY: all
all: $(builds:%=test-%) fuzz valgrind helgrind abi tidy cppcheck format

# i386: the libraries, and programs that can be run

.PHONY: i386
i386:
	@scripts/i386-sysroot
	@scripts/i386-emulation

# Builds and their tests

sanitized := -DDST_SANITIZE=ON -DCMAKE_BUILD_TYPE=Debug '-DCMAKE_CXX_FLAGS_DEBUG=-O1 -g1'
options-32 := -DDST_TESTS=ON --toolchain cmake/i386.cmake
options-32-sanitized := $(options-32) $(sanitized)
options-64 := -DDST_TESTS=ON -DDST_BENCH=ON
options-64-sanitized := -DDST_TESTS=ON $(sanitized)
options-fuzz := -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ -DDST_FUZZ=ON $(sanitized)
built-fuzz := fuzz_targets

build_jobs := $(patsubst %,build-%,$(builds) fuzz)
.PHONY: $(build_jobs) $(builds:%=test-%)
$(build_jobs): build-%:
	@echo "== build/$*"
	@cmake -S . -B build/$* -DDST_WERROR=ON -DCMAKE_RULE_MESSAGES=OFF -DCMAKE_TARGET_MESSAGES=OFF $(options-$*) >/dev/null
	+@$(MAKE) -s -C build/$* $(built-$*)
build-32 build-32-sanitized: i386
build-32-sanitized: build-32
build-64-sanitized: build-64

# Under emulation, the sanitizer's shadow wants the address space of a 32-bit process, its search for leaks hangs, and
# large documents take long.
emulated := export QEMU_RESERVED_VA=0xBFFFF000 ASAN_OPTIONS=detect_leaks=0 GTEST_FILTER='-*Large*'
$(builds:%=test-%): test-%: build-%
	@echo "== test-$*"
	@$(if $(filter 32%,$*),[[ $$(scripts/i386-emulation) == native ]] || $(emulated);) \
	ctest --test-dir build/$* --output-on-failure

# Memory, races, the binary interface

valgrind_programs := tests/library_tests tests/internal_tests platform/brio_config/tests/brio_config_tests
.PHONY: valgrind helgrind abi $(valgrind_programs:%=valgrind/%)
valgrind: $(valgrind_programs:%=valgrind/%)
$(valgrind_programs:%=valgrind/%): valgrind/%: build-64
	@echo "== $@"
	@valgrind --quiet --leak-check=full --errors-for-leak-kinds=definite,possible --error-exitcode=1 \
	    build/64/$* --gtest_brief=1 --gtest_filter='-*Large*'
helgrind: build-64
	@echo "== $@"
	@valgrind --tool=helgrind --quiet --error-exitcode=1 build/64/tests/library_tests --gtest_brief=1 \
	    --gtest_filter='*FourThreads*'
abi: build-64 build-32
	@echo "== $@"
	@scripts/abi

# Fuzzing; seconds: for each target

seconds := 60
.PHONY: fuzz $(fuzz_targets:%=fuzz/%)
fuzz: $(fuzz_targets:%=fuzz/%)
$(fuzz_targets:%=fuzz/%): fuzz/%: build-fuzz
	@scripts/fuzz $(seconds) $*

# Sources

.PHONY: tidy $(tidy) cppcheck format
tidy: $(tidy)
$(tidy): tidy/%: build-64
	@clang-tidy --quiet -p build/64 $* 2>/dev/null
cppcheck:
	@echo "== $@"
	@cppcheck --quiet --std=c++20 --library=posix --enable=warning,style,performance,portability --inconclusive \
	    --error-exitcode=1 --suppressions-list=.cppcheck-suppressions -I. -Iplatform/brio_config -D_GNU_SOURCE \
	    '-DDST_BIN_TO_DATA=""' -i platform/brio_config/tests chsinfo platform tools
format:
	@echo "== $@"
	@git ls-files '*.cpp' '*.h' '*.hpp' '*.c' | xargs clang-format --dry-run --Werror

# In a full run, all builds come first: the longest checks wait for them. The short ones fill up at the end.
ifeq ($(or $(MAKECMDGOALS),all),all)
$(fuzz_targets:%=fuzz/%) $(valgrind_programs:%=valgrind/%) helgrind abi $(tidy) cppcheck format: | $(build_jobs)
endif
