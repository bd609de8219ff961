#include "platform/sound/AudioOutput.h"

#include <SDL.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <iostream>
#include <mutex>
#include <stdexcept>
#include <thread>

#include "core/sound/AudioFormat.h"
#include "platform/sound/AudioSetting.h"
#include "platform/sound/Mixer.h"
#include "platform/sound/WaveFileWriter.h"

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>

// libpulse, which SDL loads for the sound server, leaks a sink-information request when
// SDL's hot-plug thread stops during a query; libspeechd, behind Qt's speech engine,
// keeps the text of its error when the speech service cannot be reached. Neither is
// ours to free.
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libpulse.so\nleak:libspeechd.so\n";
}
#endif

namespace sonalyx {

namespace {

// About 11.6 ms at 44,100 Hz: short enough for a stop to be heard at once, long enough
// for a loaded machine to keep up.
constexpr std::size_t kBufferFrames = 512;

}  // namespace

struct AudioOutput::Impl {
  Impl(Mode mode, std::string file, Pacing pacing)
      : mode(mode),
        pacing(pacing),
        captureFile(std::move(file)),
        mixer(kBufferFrames, mode == Mode::Capture) {}

  Mode mode;
  Pacing pacing;
  std::string captureFile;
  Mixer mixer;
  std::string driver;

  SDL_AudioDeviceID device = 0;

  // The null output's clock.
  std::thread thread;
  std::mutex threadMutex;
  std::condition_variable wake;
  bool quit = false;

  mutable std::mutex captureMutex;
  std::vector<float> captured;

  static void deviceCallback(void* userdata, Uint8* stream, int length) {
    auto* self = static_cast<Impl*>(userdata);
    const auto frames = static_cast<std::size_t>(length) / (sizeof(float) * kChannels);
    self->mixer.mix(reinterpret_cast<float*>(stream), frames);
  }

  bool openDevice() {
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Sonalyx");
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return false;
    SDL_AudioSpec wanted{};
    wanted.freq = kSampleRate;
    wanted.format = AUDIO_F32SYS;
    wanted.channels = kChannels;
    wanted.samples = kBufferFrames;
    wanted.callback = &Impl::deviceCallback;
    wanted.userdata = this;
    SDL_AudioSpec obtained{};
    // No changes allowed: SDL converts to whatever the card wants, so the mixer always
    // sees its own format and buffer size.
    device = SDL_OpenAudioDevice(nullptr, 0, &wanted, &obtained, 0);
    if (device == 0) {
      SDL_QuitSubSystem(SDL_INIT_AUDIO);
      return false;
    }
    const char* name = SDL_GetCurrentAudioDriver();
    driver = name != nullptr ? name : "";
    SDL_PauseAudioDevice(device, 0);
    return true;
  }

  void closeDevice() {
    if (device == 0) return;
    SDL_CloseAudioDevice(device);
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    device = 0;
  }

  void mixBuffer(float* buffer, std::size_t frames) {
    mixer.mix(buffer, frames);
    if (mode == Mode::Capture) {
      std::lock_guard lock(captureMutex);
      captured.insert(captured.end(), buffer, buffer + frames * kChannels);
    }
  }

  // Pulls a buffer each time a device would, so that sounds last as long as on a card.
  void runClock() {
    using Clock = std::chrono::steady_clock;
    const auto period = std::chrono::duration_cast<Clock::duration>(
        std::chrono::duration<double>(static_cast<double>(kBufferFrames) / kSampleRate));
    std::vector<float> buffer(kBufferFrames * kChannels);
    auto next = Clock::now();
    std::unique_lock lock(threadMutex);
    while (!quit) {
      lock.unlock();
      mixBuffer(buffer.data(), kBufferFrames);
      // Not the audio callback of a card: this thread may free what has finished.
      mixer.releaseFinished();
      lock.lock();
      next += period;
      // After a long stall (a suspended machine) carry on from now instead of racing.
      if (Clock::now() - next > std::chrono::seconds(1)) next = Clock::now();
      wake.wait_until(lock, next, [this] { return quit; });
    }
  }

  void advance(double ms) {
    std::size_t frames = framesForMilliseconds(ms);
    std::vector<float> buffer(kBufferFrames * kChannels);
    while (frames > 0) {
      const std::size_t chunk = std::min(frames, kBufferFrames);
      mixBuffer(buffer.data(), chunk);
      frames -= chunk;
    }
    mixer.releaseFinished();
  }

  void startClock() {
    if (pacing == Pacing::RealTime) thread = std::thread([this] { runClock(); });
  }

  void stopClock() {
    {
      std::lock_guard lock(threadMutex);
      quit = true;
    }
    wake.notify_all();
    if (thread.joinable()) thread.join();
  }
};

AudioOutput::AudioOutput(Mode mode, std::string captureFile, Pacing pacing)
    : m_impl(std::make_unique<Impl>(mode, std::move(captureFile), pacing)) {
  if (pacing == Pacing::Manual && mode == Mode::Default)
    throw std::logic_error("a sound card cannot be paced by hand");
  if (mode == Mode::Default && !m_impl->openDevice()) m_impl->mode = Mode::Null;
  if (m_impl->device == 0) m_impl->startClock();
}

AudioOutput::~AudioOutput() {
  m_impl->closeDevice();
  m_impl->stopClock();
  try {
    flushCapture();
  } catch (const std::exception& error) {
    // A destructor cannot report it otherwise, and losing a capture must not go unnoticed.
    std::cerr << error.what() << '\n';
  }
}

AudioOutput& AudioOutput::instance() {
  static AudioOutput output = [] {
    const AudioSetting setting = AudioSetting::fromEnvironment();
    return AudioOutput(setting.mode, setting.captureFile);
  }();
  return output;
}

void AudioOutput::play(AudioChannel channel, std::shared_ptr<AudioSource> source, double delayMs,
                       std::string label) {
  m_impl->mixer.play(channel, std::move(source), delayMs, std::move(label));
}

void AudioOutput::stop(AudioChannel channel) {
  m_impl->mixer.stop(channel);
}

void AudioOutput::stopAll() {
  for (AudioChannel channel : {AudioChannel::Graph, AudioChannel::Effect, AudioChannel::Speech})
    stop(channel);
}

bool AudioOutput::isActive(AudioChannel channel) const {
  m_impl->mixer.releaseFinished();
  return m_impl->mixer.isActive(channel);
}

bool AudioOutput::waitUntilIdle(double timeoutMs) const {
  const auto deadline =
      std::chrono::steady_clock::now() + std::chrono::duration<double, std::milli>(timeoutMs);
  const double manualEnd = nowMs() + timeoutMs;
  for (;;) {
    m_impl->mixer.releaseFinished();
    if (!m_impl->mixer.anyActive()) return true;
    if (m_impl->pacing == Pacing::Manual) {
      // Nothing else moves a hand-paced clock: play the waiting sound out now.
      if (nowMs() >= manualEnd) return false;
      m_impl->advance(static_cast<double>(kBufferFrames) * 1000.0 / kSampleRate);
      continue;
    }
    if (std::chrono::steady_clock::now() >= deadline) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
}

double AudioOutput::nowMs() const {
  return static_cast<double>(m_impl->mixer.framesMixed()) * 1000.0 / kSampleRate;
}

AudioOutput::Mode AudioOutput::mode() const {
  return m_impl->mode;
}

std::string AudioOutput::deviceDriver() const {
  return m_impl->driver;
}

std::size_t AudioOutput::bufferFrames() const {
  return kBufferFrames;
}

void AudioOutput::advance(double ms) {
  if (m_impl->pacing != Pacing::Manual) throw std::logic_error("only a hand-paced output can be advanced");
  m_impl->advance(ms);
}

std::vector<AudioOutput::Event> AudioOutput::events() const {
  return m_impl->mixer.events();
}

std::vector<float> AudioOutput::capturedSamples() const {
  std::lock_guard lock(m_impl->captureMutex);
  return m_impl->captured;
}

void AudioOutput::flushCapture() {
  if (m_impl->mode != Mode::Capture || m_impl->captureFile.empty()) return;
  const std::vector<float> samples = capturedSamples();
  writeWaveFile(m_impl->captureFile, samples, kChannels);
}

}  // namespace sonalyx
