#pragma once

#include <array>
#include <cstdint>

#include "core/math/DataSet.h"
#include "core/settings/SettingsStore.h"
#include "core/sound/CursorMove.h"
#include "core/sound/PlaybackAction.h"
#include "core/sound/PlaybackCommand.h"
#include "core/speech/Translator.h"

namespace sonalyx {

// The playback and stepping keys of the graph. Every command works on the set the
// Plot page's source selects (setType), reads the settings at the moment of use,
// and maps point indices to the engine's positions through the same range filter
// as the engine load, so what is heard is the point the cursor is on. The spoken
// coordinates are those drawn: x and the y, derivative or integral plotted.
class GraphPlayback {
 public:
  GraphPlayback(std::array<DataSet, 4>& slots, const SettingsStore& store, Translator translate = {});

  PlaybackAction run(PlaybackCommand command, std::int32_t cursor);

 private:
  PlaybackAction stepped(std::int32_t cursor, bool sound, const char* endMessage);
  PlaybackAction swept(const CursorMove& move, bool ticks, const char* noneMessage, std::int32_t from);
  PlaybackAction pointAt(std::int32_t index);
  std::string coordinates(std::int32_t index) const;
  std::string say(const char* english) const;

  std::array<DataSet, 4>& m_slots;
  const SettingsStore& m_store;
  Translator m_translate;
  DataSet* m_source = nullptr;
};

}  // namespace sonalyx
