#include <benchmark/benchmark.h>

#include <chrono>
#include <thread>

#include "platform/sound/AudioOutput.h"
#include "platform/speech/EspeakSpeechEngine.h"

namespace sonalyx {
namespace {

// From the call that speaks to the first sample of speech waiting in the output.
// Each utterance cuts off the one before, as when the user steps through points.
void BM_SpeakToFirstSampleQueued(benchmark::State& state) {
  AudioOutput output(AudioOutput::Mode::Null);
  EspeakSpeechEngine engine(output);
  if (!engine.isAvailable()) {
    state.SkipWithError("espeak-ng or its data is missing");
    return;
  }
  for (auto _ : state) {
    const auto queuedBefore = engine.framesQueued();
    const auto start = std::chrono::steady_clock::now();
    engine.speak("x = 2, y = 0.333", 0.0);
    while (engine.framesQueued() == queuedBefore) std::this_thread::yield();
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    state.SetIterationTime(took.count());
  }
  engine.stop();
}
BENCHMARK(BM_SpeakToFirstSampleQueued)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace sonalyx
