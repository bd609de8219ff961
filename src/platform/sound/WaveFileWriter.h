#pragma once

#include <span>
#include <string>

struct sf_private_tag;

namespace sonalyx {

// A 16-bit PCM RIFF wave at kSampleRate, written from interleaved float samples (-1..1,
// `channels` of them a frame, 1 or 2); louder samples are clipped, not wrapped.
// The file appears complete or not at all: the sound goes to a hidden temporary file in
// the same folder, renamed over the path by commit(), so a failure, or a writer dropped
// before commit(), leaves the folder (and any file already at the path) as it was.
// Every failure throws std::runtime_error with the reason.
class WaveFileWriter {
 public:
  WaveFileWriter(std::string path, int channels);
  ~WaveFileWriter();
  WaveFileWriter(const WaveFileWriter&) = delete;
  WaveFileWriter& operator=(const WaveFileWriter&) = delete;

  // Appends whole frames.
  void write(std::span<const float> interleaved);
  void commit();

 private:
  void discard();

  std::string m_path;
  std::string m_temporary;
  int m_channels;
  sf_private_tag* m_file = nullptr;
};

// The whole sound at once.
void writeWaveFile(const std::string& path, std::span<const float> interleaved, int channels);

}  // namespace sonalyx
