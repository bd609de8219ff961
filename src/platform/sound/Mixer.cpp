#include "platform/sound/Mixer.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/sound/AudioFormat.h"

namespace sonalyx {

namespace {

// A fade this long (about 6 ms) is too short to hear as a gap and long enough not to click.
constexpr std::size_t kFadeFrames = 256;
// Room enough that the queues never grow in ordinary use; they grow only on the program's side.
constexpr std::size_t kQueueRoom = 64;

std::size_t index(AudioChannel channel) {
  return static_cast<std::size_t>(channel);
}

float clipped(float sample) {
  if (std::isnan(sample)) return 0.0f;
  return std::clamp(sample, -1.0f, 1.0f);
}

}  // namespace

Mixer::Mixer(std::size_t maxFrames, bool recordEvents)
    : m_maxFrames(std::max<std::size_t>(maxFrames, 1)),
      m_fadeFrames(std::min(kFadeFrames, m_maxFrames)),
      m_recordEvents(recordEvents),
      m_scratch(m_maxFrames * kChannels) {
  m_pending.reserve(kQueueRoom);
  m_working.reserve(kQueueRoom);
  m_retired.reserve(kQueueRoom + kMaxVoices);
  for (auto& busy : m_busy) busy.store(false);
}

Mixer::~Mixer() = default;

void Mixer::pushCommand(Command command) {
  {
    std::lock_guard lock(m_queueMutex);
    if (command.source) ++m_sourcesHeld;
    m_pending.push_back(std::move(command));
    // Every source the audio thread holds or will hold must fit into the retired list
    // without the audio thread growing it. Ordinary use stays within the first room.
    const std::size_t needed = m_retired.size() + m_sourcesHeld;
    if (m_retired.capacity() < needed) m_retired.reserve(needed + kQueueRoom);
  }
  releaseFinished();
}

void Mixer::play(AudioChannel channel, std::shared_ptr<AudioSource> source, double delayMs,
                 std::string label) {
  if (!source) return;
  Command command;
  command.action = Action::Play;
  command.channel = channel;
  command.source = std::move(source);
  command.startFrame = framesMixed() + framesForMilliseconds(std::max(delayMs, 0.0));
  // Labels only travel when they are recorded, so the audio thread frees no text.
  if (m_recordEvents) command.label = std::move(label);
  pushCommand(std::move(command));
}

void Mixer::stop(AudioChannel channel) {
  Command command;
  command.action = Action::Stop;
  command.channel = channel;
  pushCommand(std::move(command));
}

bool Mixer::isActive(AudioChannel channel) const {
  std::lock_guard lock(m_queueMutex);
  for (auto it = m_pending.rbegin(); it != m_pending.rend(); ++it) {
    if (it->channel == channel) return it->action == Action::Play;
  }
  return m_busy[index(channel)].load(std::memory_order_acquire);
}

bool Mixer::anyActive() const {
  for (std::size_t c = 0; c < kChannelCount; ++c) {
    if (isActive(static_cast<AudioChannel>(c))) return true;
  }
  return false;
}

std::vector<AudioOutput::Event> Mixer::events() const {
  std::lock_guard lock(m_eventMutex);
  return m_events;
}

void Mixer::releaseFinished() {
  std::size_t room = 0;
  {
    std::lock_guard lock(m_queueMutex);
    if (m_retired.empty()) return;
    room = m_retired.capacity();
  }
  // The empty list that takes the retired one's place gets the same room, allocated here
  // rather than under the lock; the finished sources are freed when `finished` goes.
  std::vector<std::shared_ptr<AudioSource>> finished;
  finished.reserve(room);
  std::lock_guard lock(m_queueMutex);
  if (finished.capacity() >= m_retired.capacity()) finished.swap(m_retired);
}

void Mixer::takeCommands() {
  std::lock_guard lock(m_queueMutex);
  m_working.swap(m_pending);
  // Until this buffer has mixed them, a channel with a new source counts as busy.
  for (const Command& command : m_working) {
    if (command.action == Action::Play) m_busy[index(command.channel)].store(true, std::memory_order_release);
  }
}

void Mixer::retire(std::shared_ptr<AudioSource>& source) {
  if (!source) return;
  std::lock_guard lock(m_queueMutex);
  m_retired.push_back(std::move(source));  // within the reserved room: no allocation
  --m_sourcesHeld;
}

void Mixer::silenceChannel(AudioChannel channel) {
  for (Voice& voice : m_voices) {
    if (!voice.source || voice.channel != channel) continue;
    if (!voice.started) {
      // Nothing of it was heard yet: drop it.
      retire(voice.source);
    } else if (!voice.fading) {
      voice.fading = true;
      voice.fadeLeft = m_fadeFrames;
      voice.source->fadeOut();
    }
  }
}

void Mixer::apply(Command& command, std::uint64_t bufferStart) {
  silenceChannel(command.channel);
  if (command.action != Action::Play) return;
  auto slot = std::find_if(m_voices.begin(), m_voices.end(), [](const Voice& v) { return !v.source; });
  if (slot == m_voices.end()) {
    // Only a storm of replacements fills every voice; cut the fade closest to its end.
    slot = std::min_element(m_voices.begin(), m_voices.end(), [](const Voice& a, const Voice& b) {
      return (a.fading ? a.fadeLeft : SIZE_MAX) < (b.fading ? b.fadeLeft : SIZE_MAX);
    });
    if (!slot->fading) {
      retire(command.source);
      return;
    }
    retire(slot->source);
  }
  slot->source = std::move(command.source);
  slot->channel = command.channel;
  slot->startFrame = std::max(command.startFrame, bufferStart);
  slot->started = false;
  slot->fading = false;
  slot->fadeLeft = 0;
  slot->label = std::move(command.label);
}

void Mixer::mix(float* interleaved, std::size_t frames) {
  while (frames > 0) {
    const std::size_t chunk = std::min(frames, m_maxFrames);
    mixChunk(interleaved, chunk);
    interleaved += chunk * kChannels;
    frames -= chunk;
  }
}

void Mixer::mixChunk(float* out, std::size_t frames) {
  const std::uint64_t bufferStart = m_framesMixed.load(std::memory_order_relaxed);
  takeCommands();
  for (Command& command : m_working) apply(command, bufferStart);
  m_working.clear();  // only emptied commands are left: nothing to free

  std::fill(out, out + frames * kChannels, 0.0f);
  std::array<bool, kChannelCount> busy{};
  for (Voice& voice : m_voices) {
    if (!voice.source) continue;
    if (voice.startFrame >= bufferStart + frames) {
      busy[index(voice.channel)] = true;  // still waiting
      continue;
    }
    const auto offset =
        static_cast<std::size_t>(voice.startFrame > bufferStart ? voice.startFrame - bufferStart : 0);
    if (!voice.started) {
      voice.started = true;
      if (m_recordEvents) {
        std::lock_guard lock(m_eventMutex);
        m_events.push_back({static_cast<double>(bufferStart + offset) * 1000.0 / kSampleRate, voice.channel,
                            std::move(voice.label)});
      }
    }
    const std::size_t wanted = frames - offset;
    float* scratch = m_scratch.data();
    std::fill(scratch, scratch + wanted * kChannels, 0.0f);
    std::size_t produced = std::min(voice.source->render(scratch, wanted), wanted);
    bool ended = produced < wanted;
    if (voice.fading) {
      const std::size_t ramp = std::min(produced, voice.fadeLeft);
      for (std::size_t i = 0; i < ramp; ++i) {
        const float gain = static_cast<float>(voice.fadeLeft - i) / static_cast<float>(m_fadeFrames + 1);
        for (int c = 0; c < kChannels; ++c) scratch[i * kChannels + c] *= gain;
      }
      voice.fadeLeft -= ramp;
      if (voice.fadeLeft == 0) {
        produced = ramp;
        ended = true;
      }
    }
    float* target = out + offset * kChannels;
    for (std::size_t i = 0; i < produced * kChannels; ++i) target[i] += scratch[i];
    if (ended) retire(voice.source);
    if (voice.source) busy[index(voice.channel)] = true;
  }
  for (std::size_t i = 0; i < frames * kChannels; ++i) out[i] = clipped(out[i]);

  {
    // Under the queue lock, so that isActive() never sees a taken command as neither
    // pending nor busy.
    std::lock_guard lock(m_queueMutex);
    for (std::size_t c = 0; c < kChannelCount; ++c) m_busy[c].store(busy[c], std::memory_order_release);
  }
  m_framesMixed.store(bufferStart + frames, std::memory_order_release);
}

}  // namespace sonalyx
