#include "platform/speech/SpeechWaveFile.h"

#include <sndfile.h>

#include <stdexcept>

namespace sonalyx {

void writeSpeechWave(const std::string& path, const RenderedSpeech& speech) {
  SF_INFO info{};
  info.samplerate = speech.sampleRate;
  info.channels = 1;
  info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
  SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &info);
  if (file == nullptr) throw std::runtime_error(sf_strerror(nullptr));
  // Samples beyond full scale are clipped rather than wrapped around.
  sf_command(file, SFC_SET_CLIPPING, nullptr, SF_TRUE);
  const auto count = static_cast<sf_count_t>(speech.samples.size());
  const sf_count_t written = sf_write_float(file, speech.samples.data(), count);
  const std::string error = written == count ? std::string() : sf_strerror(file);
  if (sf_close(file) != 0 && error.empty()) throw std::runtime_error("the file could not be closed");
  if (!error.empty()) throw std::runtime_error(error);
}

}  // namespace sonalyx
