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

WaveFileWriter::WaveFileWriter(std::string path, int channels)
    : m_path(std::move(path)), m_channels(channels) {
  if (channels != 1 && channels != 2) throw writeError(m_path, "a wave file has one or two channels");
  if (std::filesystem::path(m_path).filename().empty()) throw writeError(m_path, "no file name");

  int fd = -1;
  for (int attempt = 0; fd < 0; ++attempt) {
    m_temporary = temporaryName(m_path, attempt);
    // 0666 lets the umask decide, as for any file the user saves.
    fd = ::open(m_temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd < 0 && (errno != EEXIST || attempt >= 100)) throw writeError(m_path, std::strerror(errno));
  }

  SF_INFO info{};
  info.samplerate = kSampleRate;
  info.channels = channels;
  info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
  m_file = sf_open_fd(fd, SFM_WRITE, &info, SF_TRUE);
  if (m_file == nullptr) {
    const std::string reason = sf_strerror(nullptr);
    ::close(fd);
    ::unlink(m_temporary.c_str());
    throw writeError(m_path, reason);
  }
  sf_command(m_file, SFC_SET_CLIPPING, nullptr, SF_TRUE);
}

WaveFileWriter::~WaveFileWriter() {
  discard();
}

void WaveFileWriter::discard() {
  if (m_file == nullptr) return;
  sf_close(m_file);
  m_file = nullptr;
  ::unlink(m_temporary.c_str());
}

void WaveFileWriter::write(std::span<const float> interleaved) {
  if (m_file == nullptr) throw writeError(m_path, "the file is already closed");
  const auto frames = static_cast<sf_count_t>(interleaved.size() / static_cast<std::size_t>(m_channels));
  if (sf_writef_float(m_file, interleaved.data(), frames) != frames) {
    const std::string reason = sf_strerror(m_file);
    discard();
    throw writeError(m_path, reason);
  }
}

void WaveFileWriter::commit() {
  if (m_file == nullptr) throw writeError(m_path, "the file is already closed");
  const int closed = sf_close(m_file);  // writes the header's final lengths
  m_file = nullptr;
  if (closed != 0) {
    ::unlink(m_temporary.c_str());
    throw writeError(m_path, sf_error_number(closed));
  }
  if (std::rename(m_temporary.c_str(), m_path.c_str()) != 0) {
    const std::string reason = std::strerror(errno);
    ::unlink(m_temporary.c_str());
    throw writeError(m_path, reason);
  }
}

void writeWaveFile(const std::string& path, std::span<const float> interleaved, int channels) {
  WaveFileWriter writer(path, channels);
  writer.write(interleaved);
  writer.commit();
}

}  // namespace sonalyx
