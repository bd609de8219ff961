#include "core/sound/EngineLoad.h"

#include "core/files/SelectedDataSet.h"

namespace sonalyx {

const DataSet& engineSource(const std::array<DataSet, 4>& slots, const SettingsStore& store) {
  return selectedDataSet(slots, store.GetSetType());
}

RangeFilter rangeFilterFromSettings(const SettingsStore& store, const DataSet& source) {
  RangeFilter filter;
  filter.autoScaleX = store.GetAutoScaleX();
  filter.autoScaleY = store.GetAutoScaleY();
  filter.plotType = store.GetPlotType();
  filter.polar = source.isPolar();
  // With both axes auto-scaled nothing is compared, so the range is not read.
  if (!filter.autoScaleX || !filter.autoScaleY) filter.range = store.GetGraphRange();
  return filter;
}

void loadEngine(AudioPlotEngine& engine, const DataSet& source, const SettingsStore& store) {
  engine.Reset();
  for (const SoundedPoint& p : audiblePoints(source, rangeFilterFromSettings(store, source))) {
    engine.AppendPoint(p.x, p.y);
  }
  // The engine takes signed integers; a stored value is passed on bit for bit.
  engine.SetPlayTime(static_cast<int>(store.GetPlayTime()));
  engine.EnableYThreshold(store.GetYThreshOn(), static_cast<float>(store.GetYThresh()));
  engine.SetNumVerticalTicks(static_cast<int>(store.GetNumTicks()));
  engine.SetDataVolume(store.GetWaveVolume());
  engine.SetTickVolume(store.GetTickVolume());
  engine.SetFreqMin(static_cast<int>(store.GetMinFreq()));
  engine.SetFreqMax(static_cast<int>(store.GetMaxFreq()));
}

}  // namespace sonalyx
