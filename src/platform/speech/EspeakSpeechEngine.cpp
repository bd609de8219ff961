#include "platform/speech/EspeakSpeechEngine.h"

#include <espeak-ng/speak_lib.h>

#include <algorithm>
#include <chrono>
#include <future>

#include "core/sound/AudioFormat.h"
#include "core/sound/StreamResampler.h"

namespace sonalyx {

namespace {

// Words a minute, espeak-ng's pitch and its volume in percent of normal.
constexpr SpeechRanges kRanges{{espeakRATE_MINIMUM, espeakRATE_MAXIMUM}, {0, 100}, {0, 200}};
// Small synthesis buffers hand the first sound over sooner.
constexpr int kBufferMs = 10;
// Enough for a long sentence; the synthesiser waits when the listener lags behind.
constexpr std::size_t kStreamFrames = static_cast<std::size_t>(kSampleRate) * 4;

// espeak-ng keeps its state in globals: one initialisation for the process, and
// every call made under one lock.
struct EspeakLibrary {
  std::mutex lock;
  int sampleRate = -1;
  std::string version;
  std::vector<std::string> voiceNames;
  std::vector<std::string> voiceFiles;
  std::vector<std::string> voiceLanguages;
  std::size_t defaultVoice = 0;
  const void* configuredFor = nullptr;  // the engine whose voice and settings are loaded

  static EspeakLibrary& get() {
    static EspeakLibrary library;
    return library;
  }

 private:
  EspeakLibrary() {
    // Without its data espeak-ng would end the program; with this flag it fails instead.
    sampleRate = espeak_Initialize(AUDIO_OUTPUT_SYNCHRONOUS, kBufferMs, nullptr, espeakINITIALIZE_DONT_EXIT);
    if (sampleRate <= 0) return;
    const char* info = espeak_Info(nullptr);
    version = info != nullptr ? info : "";
    if (const espeak_VOICE** list = espeak_ListVoices(nullptr); list != nullptr) {
      for (; *list != nullptr; ++list) {
        voiceNames.emplace_back((*list)->name != nullptr ? (*list)->name : "");
        voiceFiles.emplace_back((*list)->identifier != nullptr ? (*list)->identifier : "");
        // A priority byte, then the voice's first language tag.
        const char* languages = (*list)->languages;
        voiceLanguages.emplace_back(languages != nullptr && languages[0] != 0 ? languages + 1 : "");
      }
    }
    // espeak-ng's own choice for English is the default voice.
    if (espeak_SetVoiceByName("en") == EE_OK) {
      if (const espeak_VOICE* current = espeak_GetCurrentVoice();
          current != nullptr && current->name != nullptr) {
        const auto found = std::find(voiceNames.begin(), voiceNames.end(), current->name);
        if (found != voiceNames.end()) defaultVoice = static_cast<std::size_t>(found - voiceNames.begin());
      }
    }
  }
};

}  // namespace

struct EspeakSpeechEngine::Job {
  std::string text;
  std::uint64_t generation = 0;
  std::shared_ptr<SpeechStream> stream;              // a spoken utterance
  std::promise<std::optional<RenderedSpeech>> file;  // or one rendered for a file
};

struct EspeakSpeechEngine::Synthesis {
  EspeakSpeechEngine* engine;
  Job* job;
  StreamResampler resampler;
  std::vector<float> samples;    // the buffer just made, as floats
  std::vector<float> resampled;  // the same at the mixer's rate
  std::vector<float> forFile;    // the whole utterance at the engine's rate
  bool abandoned = false;
};

int espeakSynthCallback(short* wav, int count, void* userData) {
  auto* synthesis = static_cast<EspeakSpeechEngine::Synthesis*>(userData);
  if (wav == nullptr || count <= 0) return synthesis->abandoned ? 1 : 0;
  synthesis->samples.resize(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) synthesis->samples[static_cast<std::size_t>(i)] = wav[i] / 32768.0F;
  const bool keepGoing =
      synthesis->engine->deliver(*synthesis, synthesis->samples.data(), synthesis->samples.size());
  synthesis->abandoned = !keepGoing;
  return keepGoing ? 0 : 1;
}

namespace {

int onSynthesised(short* wav, int count, espeak_EVENT* events) {
  return events != nullptr && events->user_data != nullptr
             ? espeakSynthCallback(wav, count, events->user_data)
             : 1;
}

}  // namespace

EspeakSpeechEngine::EspeakSpeechEngine(AudioOutput& output) : m_output(output) {
  EspeakLibrary& library = EspeakLibrary::get();
  m_voice = library.defaultVoice;
  m_rate = espeakRATE_NORMAL;
  m_pitch = 50;
  m_volume = 100;
  if (library.sampleRate > 0) m_worker = std::thread([this] { run(); });
}

EspeakSpeechEngine::~EspeakSpeechEngine() {
  {
    std::lock_guard lock(m_mutex);
    m_quit = true;
    ++m_generation;
  }
  m_wake.notify_all();
  if (m_worker.joinable()) m_worker.join();
  if (m_lastStream) m_lastStream->cutOff();
  EspeakLibrary& library = EspeakLibrary::get();
  std::lock_guard libraryLock(library.lock);
  if (library.configuredFor == this) library.configuredFor = nullptr;
}

bool EspeakSpeechEngine::isAvailable() const {
  return EspeakLibrary::get().sampleRate > 0;
}

std::string EspeakSpeechEngine::name() const {
  return "espeak-ng";
}

std::string EspeakSpeechEngine::description() const {
  return "eSpeak NG " + EspeakLibrary::get().version;
}

void EspeakSpeechEngine::cancelQueuedSpeech() {
  for (auto it = m_jobs.begin(); it != m_jobs.end();) {
    if ((*it)->stream) {
      (*it)->stream->cutOff();
      (*it)->stream->finish();
      it = m_jobs.erase(it);
    } else {
      ++it;
    }
  }
}

void EspeakSpeechEngine::speak(const std::string& text, double delayMs) {
  if (!isAvailable()) return;
  auto stream = std::make_shared<SpeechStream>(kStreamFrames);
  auto job = std::make_unique<Job>();
  job->text = text;
  job->stream = stream;
  {
    std::lock_guard lock(m_mutex);
    cancelQueuedSpeech();
    job->generation = ++m_generation;  // the utterance being made stops at its next buffer
    m_jobs.push_back(std::move(job));
  }
  m_wake.notify_all();
  if (m_lastStream) m_lastStream->cutOff();
  m_lastStream = stream;
  // Playing on the Speech channel fades out whatever it played before.
  m_output.play(AudioChannel::Speech, std::move(stream), delayMs, text);
}

void EspeakSpeechEngine::stop() {
  {
    std::lock_guard lock(m_mutex);
    cancelQueuedSpeech();
    ++m_generation;
  }
  if (m_lastStream) m_lastStream->cutOff();
  m_lastStream.reset();
  m_output.stop(AudioChannel::Speech);
}

bool EspeakSpeechEngine::isSpeaking() const {
  return m_lastStream && !m_lastStream->isDone() && !m_lastStream->isCutOff();
}

std::vector<std::string> EspeakSpeechEngine::voices() const {
  return EspeakLibrary::get().voiceNames;
}

std::vector<std::string> EspeakSpeechEngine::voiceLanguages() const {
  return EspeakLibrary::get().voiceLanguages;
}

std::size_t EspeakSpeechEngine::defaultVoice() const {
  return EspeakLibrary::get().defaultVoice;
}

bool EspeakSpeechEngine::selectVoice(std::size_t index) {
  if (index >= EspeakLibrary::get().voiceNames.size()) return false;
  std::lock_guard lock(m_mutex);
  m_voice = index;
  ++m_settingsVersion;
  return true;
}

std::string EspeakSpeechEngine::currentVoice() const {
  const auto& names = EspeakLibrary::get().voiceNames;
  std::lock_guard lock(m_mutex);
  return m_voice < names.size() ? names[m_voice] : std::string();
}

EngineRange EspeakSpeechEngine::range(SpeechSetting setting) const {
  return kRanges.of(setting);
}

bool EspeakSpeechEngine::set(SpeechSetting setting, int value) {
  const EngineRange span = range(setting);
  value = std::clamp(value, span.minimum, span.maximum);
  std::lock_guard lock(m_mutex);
  (setting == SpeechSetting::Rate ? m_rate : setting == SpeechSetting::Pitch ? m_pitch : m_volume) = value;
  ++m_settingsVersion;
  return true;
}

int EspeakSpeechEngine::get(SpeechSetting setting) const {
  std::lock_guard lock(m_mutex);
  return setting == SpeechSetting::Rate ? m_rate : setting == SpeechSetting::Pitch ? m_pitch : m_volume;
}

std::optional<RenderedSpeech> EspeakSpeechEngine::render(const std::string& text) {
  if (!isAvailable()) return std::nullopt;
  auto job = std::make_unique<Job>();
  job->text = text;
  std::future<std::optional<RenderedSpeech>> result = job->file.get_future();
  {
    std::lock_guard lock(m_mutex);
    m_jobs.push_back(std::move(job));
  }
  m_wake.notify_all();
  return result.get();
}

void EspeakSpeechEngine::run() {
  for (;;) {
    std::unique_ptr<Job> job;
    {
      std::unique_lock lock(m_mutex);
      m_wake.wait(lock, [this] { return m_quit || !m_jobs.empty(); });
      if (m_quit) break;
      job = std::move(m_jobs.front());
      m_jobs.pop_front();
    }
    synthesise(*job);
  }
  // Nobody waits for speech any more, but a file request must be answered.
  std::lock_guard lock(m_mutex);
  for (auto& job : m_jobs) {
    if (job->stream) {
      job->stream->finish();
    } else {
      job->file.set_value(std::nullopt);
    }
  }
  m_jobs.clear();
}

void EspeakSpeechEngine::applySettings() {
  EspeakLibrary& library = EspeakLibrary::get();
  std::size_t voice = 0;
  int rate = 0;
  int pitch = 0;
  int volume = 0;
  std::uint64_t version = 0;
  {
    std::lock_guard lock(m_mutex);
    voice = m_voice;
    rate = m_rate;
    pitch = m_pitch;
    volume = m_volume;
    version = m_settingsVersion;
  }
  if (library.configuredFor == this && m_appliedVersion == version) return;
  // Loading a voice resets its parameters, so the voice comes first.
  if (voice < library.voiceNames.size() &&
      espeak_SetVoiceByName(library.voiceNames[voice].c_str()) != EE_OK) {
    espeak_SetVoiceByFile(library.voiceFiles[voice].c_str());
  }
  espeak_SetParameter(espeakRATE, rate, 0);
  espeak_SetParameter(espeakPITCH, pitch, 0);
  espeak_SetParameter(espeakVOLUME, volume, 0);
  library.configuredFor = this;
  m_appliedVersion = version;
}

bool EspeakSpeechEngine::deliver(Synthesis& synthesis, const float* samples, std::size_t count) {
  Job& job = *synthesis.job;
  if (!job.stream) {
    synthesis.forFile.insert(synthesis.forFile.end(), samples, samples + count);
    return true;
  }
  synthesis.resampled.clear();
  synthesis.resampler.push(samples, count, synthesis.resampled);
  return queue(job, synthesis.resampled.data(), synthesis.resampled.size());
}

bool EspeakSpeechEngine::queue(Job& job, const float* samples, std::size_t count) {
  for (;;) {
    // A newer utterance, a stop, or an output that let the stream go ends this one.
    if (job.generation != m_generation.load() || job.stream->isCutOff() || job.stream.use_count() == 1) {
      return false;
    }
    const std::size_t written = job.stream->write(samples, count);
    m_framesQueued += written;
    samples += written;
    count -= written;
    if (count == 0) return true;
    // Synthesis runs far ahead of real time: wait for the listener to catch up.
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
}

void EspeakSpeechEngine::synthesise(Job& job) {
  EspeakLibrary& library = EspeakLibrary::get();
  Synthesis synthesis{this, &job, StreamResampler(library.sampleRate, kSampleRate), {}, {}, {}};
  {
    std::lock_guard libraryLock(library.lock);
    applySettings();
    espeak_SetSynthCallback(onSynthesised);
    if (!job.stream || job.generation == m_generation.load()) {
      espeak_Synth(job.text.c_str(), job.text.size() + 1, 0, POS_CHARACTER, 0, espeakCHARS_UTF8, nullptr,
                   &synthesis);
    }
  }
  if (!job.stream) {
    job.file.set_value(RenderedSpeech{std::move(synthesis.forFile), library.sampleRate});
    return;
  }
  if (!synthesis.abandoned) {
    synthesis.resampled.clear();
    synthesis.resampler.finish(synthesis.resampled);
    queue(job, synthesis.resampled.data(), synthesis.resampled.size());
  }
  job.stream->finish();
}

}  // namespace sonalyx
