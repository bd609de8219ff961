#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <filesystem>
#include <thread>
#include <vector>

#include "core/sound/AudioFormat.h"
#include "platform/sound/AudioOutput.h"
#include "platform/sound/CSNControl.h"

namespace {

using sonalyx::AudioChannel;
using sonalyx::AudioOutput;
using sonalyx::CSNControl;

// The Data pages' default: 501 points of a curve, played over the default 4 seconds.
void loadCurve(CSNControl& engine) {
  engine.Reset();
  for (int i = 0; i < 501; ++i) {
    const float x = -10.0f + 0.04f * static_cast<float>(i);
    engine.AppendPoint(x, std::sin(x) * x);
  }
  engine.SetPlayTime(4);
  engine.EnableYThreshold(true, 0.0f);
  engine.SetNumVerticalTicks(10);
  engine.SetDataVolume(50);
  engine.SetTickVolume(40);
  engine.SetFreqMin(60);
  engine.SetFreqMax(2000);
}

// From Play to the sweep's first buffer mixed and handed on: building the sweep, the
// hand-over to the audio thread and one buffer of rendering and mixing. The device's
// own buffer comes on top and is not ours to shorten.
void BM_PlayToFirstSample(benchmark::State& state) {
  AudioOutput output(AudioOutput::Mode::Null, {}, AudioOutput::Pacing::Manual);
  CSNControl engine(output);
  loadCurve(engine);
  const double bufferMs = static_cast<double>(output.bufferFrames()) * 1000.0 / sonalyx::kSampleRate;
  for (auto _ : state) {
    engine.Play(true, true, false, false, 0, 0);
    output.advance(bufferMs);
    state.PauseTiming();
    output.stop(AudioChannel::Graph);
    output.advance(bufferMs);
    state.ResumeTiming();
  }
}
BENCHMARK(BM_PlayToFirstSample)->Unit(benchmark::kMillisecond);

// From Reset to silence at the speaker. The capture records what the mixer handed on, on
// the device's pace: the frames after the last one handed on before Reset, up to the
// last one that still sounds, are the mixer's reaction; the device's own buffer, which
// was already full, plays out on top of that.
void BM_ResetToSilence(benchmark::State& state) {
  AudioOutput output(AudioOutput::Mode::Capture);
  CSNControl engine(output);
  const double deviceBufferMs = static_cast<double>(output.bufferFrames()) * 1000.0 / sonalyx::kSampleRate;
  for (auto _ : state) {
    loadCurve(engine);
    engine.Play(true, true, false, false, 0, 0);
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    const auto handedOn = sonalyx::framesForMilliseconds(output.nowMs());
    engine.Reset();
    std::this_thread::sleep_for(std::chrono::milliseconds(60));
    const std::vector<float> samples = output.capturedSamples();
    std::size_t silentFrom = handedOn;
    for (std::size_t i = handedOn * sonalyx::kChannels; i < samples.size(); ++i) {
      if (samples[i] != 0.0f) silentFrom = i / sonalyx::kChannels + 1;
    }
    if (silentFrom == handedOn || samples.size() <= silentFrom * sonalyx::kChannels) {
      state.SkipWithError("the sweep was not sounding, or did not stop within 60 ms");
      break;
    }
    const double reactionMs = static_cast<double>(silentFrom - handedOn) * 1000.0 / sonalyx::kSampleRate;
    state.SetIterationTime((reactionMs + deviceBufferMs) / 1000.0);
  }
}
BENCHMARK(BM_ResetToSilence)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(40);

// The wave export of the default graph: 4 seconds, stereo, with ticks.
void BM_WriteWaveFile(benchmark::State& state) {
  AudioOutput output(AudioOutput::Mode::Null, {}, AudioOutput::Pacing::Manual);
  CSNControl engine(output);
  loadCurve(engine);
  const std::string path = (std::filesystem::temp_directory_path() / "sonalyx-bench.wav").string();
  for (auto _ : state) {
    engine.WriteWaveToFile(path, true, true);
    if (!engine.lastWriteError().empty()) state.SkipWithError(engine.lastWriteError().c_str());
  }
  std::filesystem::remove(path);
}
BENCHMARK(BM_WriteWaveFile)->Unit(benchmark::kMillisecond);

}  // namespace
