// Time and heap allocations of evaluateScalar on typical value texts.
//
// Allocations are counted by interposing the C allocator, which operator
// new also goes through; the counter is read around the timed loop only.

#include <benchmark/benchmark.h>

#include <atomic>
#include <cstddef>

#include "core/QvContext.h"
#include "expr/Evaluation.h"
#include "expr/Term.h"
#include "expr/TermArena.h"
#include "scene/FieldExpression.h"

extern "C" {
void* __libc_malloc(size_t size);
void* __libc_calloc(size_t count, size_t size);
void* __libc_realloc(void* block, size_t size);
}

namespace {

std::atomic<long> allocationCount{0};

}  // namespace

extern "C" void* malloc(size_t size) {
  allocationCount.fetch_add(1, std::memory_order_relaxed);
  return __libc_malloc(size);
}

extern "C" void* calloc(size_t count, size_t size) {
  allocationCount.fetch_add(1, std::memory_order_relaxed);
  return __libc_calloc(count, size);
}

extern "C" void* realloc(void* block, size_t size) {
  allocationCount.fetch_add(1, std::memory_order_relaxed);
  return __libc_realloc(block, size);
}

namespace {

// Times `evaluate` on the expression holding `text` and counts the heap
// allocations of the timed loop.
template <typename Evaluate>
void measure(benchmark::State& state, const char* text, Evaluate evaluate) {
  // Messages (the unknown name) are formatted and dropped.
  lumeric::theContext.setView(nullptr);
  lumeric::FieldExpression expression;
  expression.setText(text);
  // A run always has live terms; start from an arena that has its chunk.
  lumeric::ScalarTerm::make(0.0);
  // One evaluation outside the count builds what is built once per process
  // (the function index).
  evaluate(&expression);
  const long before = allocationCount.load();
  for (auto _ : state) evaluate(&expression);
  const long allocations = allocationCount.load() - before;
  state.counters["allocs/eval"] =
      benchmark::Counter(static_cast<double>(allocations) / static_cast<double>(state.iterations()));
  lumeric::freeAllTerms();
}

void evaluateScalarOf(benchmark::State& state, const char* text) {
  measure(state, text, [](lumeric::FieldExpression* expression) {
    double value = 0.0;
    lumeric::evaluateScalar(expression, &value);
    benchmark::DoNotOptimize(value);
  });
}

// Results that are not scalars; the terms of each evaluation are released
// after it, as they would be at the end of a run.
void evaluateTermOf(benchmark::State& state, const char* text) {
  measure(state, text, [](lumeric::FieldExpression* expression) {
    lumeric::TermScope scope;
    benchmark::DoNotOptimize(lumeric::evaluateTerm(expression));
  });
}

BENCHMARK_CAPTURE(evaluateScalarOf, plainNumber, "1.5");
BENCHMARK_CAPTURE(evaluateScalarOf, signedExponent, "-0.25e3");
// The same number through the parser: parentheses keep it off the fast path.
BENCHMARK_CAPTURE(evaluateScalarOf, parsedNumber, "(1.5)");
BENCHMARK_CAPTURE(evaluateScalarOf, arithmetic, "(1+2)*3");
BENCHMARK_CAPTURE(evaluateScalarOf, unknownName, "radius");
// A one-argument call against the same expression with a number in its place.
BENCHMARK_CAPTURE(evaluateScalarOf, callInProduct, "sin(0.5)*2");
BENCHMARK_CAPTURE(evaluateScalarOf, numberInProduct, "0.5*2");

BENCHMARK_CAPTURE(evaluateTermOf, translate, "Translate(1,2,3)");
BENCHMARK_CAPTURE(evaluateTermOf, rotateSixArguments, "Rotate(1,0,0,0,1,0)");

}  // namespace

BENCHMARK_MAIN();
