#pragma once

#include <QObject>
#include <cstddef>

#include "core/sound/PlaybackCommand.h"
#include "platform/sound/CSNControl.h"

class QWidget;

namespace sonalyx::ui {

class CGraphCalcApp;
class CPlotWnd;

// Carries out the graph's playback keys: asks the core what a key does, loads the
// engine and starts the sweep or the point tone, moves the cursor, and hands the
// speech to the voice to follow the sound by its lead. Nothing here waits: the
// output sequencer times the speech, so every key answers at once.
class CGraphPlayer : public QObject {
  Q_OBJECT
 public:
  CGraphPlayer(CGraphCalcApp& app, CPlotWnd& plot, QObject* parent = nullptr);

  void run(PlaybackCommand command);
  // The whole of one set, whatever the set played (the curve a fit has just
  // plotted), with `speech` said after it.
  void playSet(std::size_t slot, const QString& speech);
  // The sound of the set played as a wave file, after the save dialog.
  void writeWaveFile(QWidget* dialogParent);

  CSNControl& engine() { return m_engine; }

 private:
  CGraphCalcApp& m_app;
  CPlotWnd& m_plot;
  CSNControl m_engine;
};

}  // namespace sonalyx::ui
