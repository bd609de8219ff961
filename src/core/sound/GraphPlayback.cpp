#include "core/sound/GraphPlayback.h"

#include <algorithm>
#include <utility>

#include "core/files/SelectedDataSet.h"
#include "core/math/CurveFeatures.h"
#include "core/sound/EngineLoad.h"
#include "core/sound/PlayTimeLimit.h"
#include "core/sound/PointStepping.h"
#include "core/speech/CoordinatePhrase.h"
#include "core/speech/TranslationMarker.h"

namespace sonalyx {

namespace {

constexpr char kEmpty[] = SLX_TR("The data set is empty.");

}  // namespace

GraphPlayback::GraphPlayback(std::array<DataSet, 4>& slots, const SettingsStore& store, Translator translate)
    : m_slots(slots), m_store(store), m_translate(std::move(translate)) {}

std::string GraphPlayback::say(const char* english) const {
  return translateWith(m_translate, english);
}

std::string GraphPlayback::coordinates(std::int32_t index) const {
  if (!m_store.GetAutoSpeak() || index < 0 || static_cast<std::size_t>(index) >= m_source->count()) return {};
  return pointPhrase(m_source->at(static_cast<std::size_t>(index)), m_store.GetPlotType(),
                     static_cast<int>(std::min<std::uint32_t>(m_store.GetNumDec(), 99)), m_translate);
}

// The tone of the point under the cursor (when it is heard), then its coordinates.
PlaybackAction GraphPlayback::pointAt(std::int32_t index) {
  PlaybackAction action;
  action.cursor = index;
  action.stereo = !m_store.GetIsMono();
  const RangeFilter filter = rangeFilterFromSettings(m_store, *m_source);
  if (isHeardPoint(*m_source, index, filter)) {
    action.pointTone = audiblePosition(audibleList(*m_source, filter), index);
    action.speechDelayMs = kPointToneMs;
  }
  action.speech = coordinates(index);
  return action;
}

PlaybackAction GraphPlayback::stepped(std::int32_t cursor, bool sound, const char* endMessage) {
  if (sound) return pointAt(cursor);
  PlaybackAction action;
  action.cursor = cursor;
  action.speech = say(endMessage);
  return action;
}

PlaybackAction GraphPlayback::swept(const CursorMove& move, bool ticks, const char* noneMessage,
                                    std::int32_t from) {
  PlaybackAction action;
  action.cursor = move.cursor;
  if (!move.sweep) {
    action.speech = say(noneMessage);
    return action;
  }
  if (move.sweep->from == move.sweep->to) return pointAt(move.sweep->to);
  const RangeFilter filter = rangeFilterFromSettings(m_store, *m_source);
  const std::vector<std::int32_t> audible = audibleList(*m_source, filter);
  // From where the cursor stood, even when the search passed over unheard features.
  const SegmentPlay segment = sweepPlay(audible, Sweep{from < 0 ? 0 : from, move.sweep->to});
  action.sweep =
      SweepRequest{!m_store.GetIsMono(), ticks, segment.reverse, true, segment.start, segment.count};
  action.speechDelayMs =
      static_cast<double>(sweepPauseMs(segment, audible.size(), m_store.GetPlayTime()).value_or(0));
  action.speech = coordinates(move.cursor);
  return action;
}

PlaybackAction GraphPlayback::run(PlaybackCommand command, std::int32_t cursor) {
  m_source = &selectedDataSet(m_slots, m_store.GetSetType());
  PlaybackAction action;
  action.cursor = cursor;
  if (command == PlaybackCommand::Stop) {
    action.resetEngine = true;
    return action;
  }
  if (!m_source->hasData()) {
    action.speech = say(kEmpty);
    return action;
  }
  // A sound that would be silent or last for days is refused with the range.
  if (!playTimeAllowed(m_store.GetPlayTime())) {
    action.speech = playTimeLimitText(m_translate);
    return action;
  }
  const RangeFilter filter = rangeFilterFromSettings(m_store, *m_source);
  const auto count = static_cast<std::int32_t>(m_source->count());
  switch (command) {
    case PlaybackCommand::Play:
    case PlaybackCommand::PlayWithTicks:
      action.sweep =
          SweepRequest{!m_store.GetIsMono(), command == PlaybackCommand::PlayWithTicks, false, false, 0, 0};
      return action;
    case PlaybackCommand::NextPoint:
    case PlaybackCommand::PreviousPoint: {
      const bool forward = command == PlaybackCommand::NextPoint;
      const PointStep step =
          singlePointStep(*m_source, cursor, forward ? StepDirection::Forward : StepDirection::Back, filter);
      return stepped(step.cursor, step.sound, forward ? SLX_TR("Last point.") : SLX_TR("First point."));
    }
    case PlaybackCommand::FirstPoint:
      return pointAt(0);
    case PlaybackCommand::LastPoint:
      return pointAt(count - 1);
    case PlaybackCommand::NextMaximum:
    case PlaybackCommand::NextMinimum: {
      const bool maximum = command == PlaybackCommand::NextMaximum;
      const CursorMove move =
          extremumMove(*m_source, cursor, maximum ? Extremum::Maximum : Extremum::Minimum, filter);
      return swept(move, m_store.GetPlayTicks(),
                   maximum ? SLX_TR("No further maximum.") : SLX_TR("No further minimum."), cursor);
    }
    case PlaybackCommand::NextZero:
      return swept(crossingMove(CrossingCommand::NextAxis, *m_source, *m_source, cursor, filter), false,
                   SLX_TR("No further crossing of the x-axis."), cursor);
    case PlaybackCommand::PreviousZero:
      return swept(crossingMove(CrossingCommand::PreviousAxis, *m_source, *m_source, cursor, filter), false,
                   SLX_TR("No earlier crossing of the x-axis."), cursor);
    case PlaybackCommand::NextCurveCrossing: {
      // The sum and difference share data set 1's x, so its indices serve them too.
      const std::size_t slot = static_cast<std::size_t>(m_source - m_slots.data());
      const DataSet& other = m_slots[slot == 0 ? 1 : 0];
      const DataSet& first = slot == 1 ? m_slots[1] : m_slots[0];
      if (!other.hasData()) {
        action.speech = say(SLX_TR("Data set 2 is empty."));
        if (slot == 1) action.speech = say(SLX_TR("Data set 1 is empty."));
        return action;
      }
      const CursorSearch search = [&](std::int32_t c) { return nextCurveCrossing(first, other, c); };
      const CursorMove move = driveCrossingSearch(cursor, m_source->count(), search, [&](std::int32_t i) {
        return isHeardPoint(*m_source, i, filter);
      });
      PlaybackAction found = swept(move, false, SLX_TR("No further crossing of the two data sets."), cursor);
      found.focusGraph = move.sweep.has_value();
      return found;
    }
    case PlaybackCommand::Stop:
      break;
  }
  return action;
}

}  // namespace sonalyx
