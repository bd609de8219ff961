#pragma once

#include <span>
#include <string>

namespace sonalyx {

// Writes interleaved float samples (-1..1, `channels` of them a frame, 1 or 2) as a
// 16-bit PCM RIFF wave at kSampleRate; louder samples are clipped, not wrapped.
// The file appears complete or not at all: the sound goes to a hidden temporary file in
// the same folder, renamed over `path` at the end, so a failure leaves the folder (and
// any file already at `path`) as it was. Throws std::runtime_error with the reason.
void writeWaveFile(const std::string& path, std::span<const float> interleaved, int channels);

}  // namespace sonalyx
