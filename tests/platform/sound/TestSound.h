#pragma once

#include <sndfile.h>
#include <stdlib.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "core/sound/AudioFormat.h"
#include "core/sound/AudioSource.h"

namespace sonalyx::test {

// A steady level on each side for a number of frames: any change in what the mixer
// hands on is then the mixer's doing.
class ConstantSource : public AudioSource {
 public:
  ConstantSource(float left, float right, std::size_t frames)
      : m_left(left), m_right(right), m_frames(frames) {}

  std::size_t render(float* interleaved, std::size_t frames) override {
    const std::size_t n = std::min(frames, m_frames);
    for (std::size_t i = 0; i < n; ++i) {
      interleaved[i * kChannels] += m_left;
      interleaved[i * kChannels + 1] += m_right;
    }
    m_frames -= n;
    return n;
  }
  // The mixer fades on its own; the source keeps its level so that tests see that fade.
  void fadeOut() override {}

 private:
  float m_left;
  float m_right;
  std::size_t m_frames;
};

// A wave file as read back through libsndfile.
struct WaveContents {
  bool opened = false;
  int format = 0;
  int sampleRate = 0;
  int channels = 0;
  std::vector<float> samples;  // interleaved
};

inline WaveContents readWave(const std::string& path) {
  WaveContents contents;
  SF_INFO info{};
  SNDFILE* file = sf_open(path.c_str(), SFM_READ, &info);
  if (file == nullptr) return contents;
  contents.opened = true;
  contents.format = info.format;
  contents.sampleRate = info.samplerate;
  contents.channels = info.channels;
  contents.samples.resize(static_cast<std::size_t>(info.frames * info.channels));
  sf_readf_float(file, contents.samples.data(), info.frames);
  sf_close(file);
  return contents;
}

// A fresh folder, removed with everything in it at the end of the test.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "sonalyx-sound-XXXXXX").string();
    if (const char* made = ::mkdtemp(pattern.data())) m_path = made;
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  bool exists() const { return !m_path.empty(); }
  std::string file(const std::string& name) const { return (m_path / name).string(); }
  std::set<std::string> names() const {
    std::set<std::string> result;
    for (const auto& entry : std::filesystem::directory_iterator(m_path))
      result.insert(entry.path().filename());
    return result;
  }

 private:
  std::filesystem::path m_path;
};

}  // namespace sonalyx::test
