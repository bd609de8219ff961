#include "platform/sound/WaveFileWriter.h"

#include <fcntl.h>
#include <sndfile.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <stdexcept>

#include "core/sound/AudioFormat.h"

namespace sonalyx {

namespace {

std::runtime_error writeError(const std::string& path, const std::string& reason) {
  return std::runtime_error("Cannot write the wave file " + path + ": " + reason);
}

// A hidden name beside the target, unique to this process and attempt, so that two
// programs writing the same file never share a temporary.
std::string temporaryName(const std::string& path, int attempt) {
  const std::filesystem::path target(path);
  const std::string name = "." + target.filename().string() + ".part-" + std::to_string(::getpid()) + "-" +
                           std::to_string(attempt);
  return (target.parent_path() / name).string();
}

}  // namespace

void writeWaveFile(const std::string& path, std::span<const float> interleaved, int channels) {
  if (channels != 1 && channels != 2) throw writeError(path, "a wave file has one or two channels");
  if (std::filesystem::path(path).filename().empty()) throw writeError(path, "no file name");

  std::string temporary;
  int fd = -1;
  for (int attempt = 0; fd < 0; ++attempt) {
    temporary = temporaryName(path, attempt);
    // 0666 lets the umask decide, as for any file the user saves.
    fd = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd < 0 && (errno != EEXIST || attempt >= 100)) throw writeError(path, std::strerror(errno));
  }

  SF_INFO info{};
  info.samplerate = kSampleRate;
  info.channels = channels;
  info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
  SNDFILE* file = sf_open_fd(fd, SFM_WRITE, &info, SF_TRUE);
  if (file == nullptr) {
    const std::string reason = sf_strerror(nullptr);
    ::close(fd);
    ::unlink(temporary.c_str());
    throw writeError(path, reason);
  }
  sf_command(file, SFC_SET_CLIPPING, nullptr, SF_TRUE);
  const auto frames = static_cast<sf_count_t>(interleaved.size() / static_cast<std::size_t>(channels));
  const sf_count_t written = sf_writef_float(file, interleaved.data(), frames);
  const std::string reason = written == frames ? std::string() : sf_strerror(file);
  const int closed = sf_close(file);
  if (written != frames || closed != 0) {
    ::unlink(temporary.c_str());
    throw writeError(path, reason.empty() ? sf_error_number(closed) : reason);
  }
  if (std::rename(temporary.c_str(), path.c_str()) != 0) {
    const std::string why = std::strerror(errno);
    ::unlink(temporary.c_str());
    throw writeError(path, why);
  }
}

}  // namespace sonalyx
