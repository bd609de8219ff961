#include "ui/graph/CGraphPlayer.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QWidget>

#include "core/files/SelectedDataSet.h"
#include "core/files/WaveExport.h"
#include "core/sound/EngineLoad.h"
#include "core/sound/GraphPlayback.h"
#include "core/sound/PlayTimeLimit.h"
#include "platform/sound/OutputSequencer.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/app/Voice.h"
#include "ui/graph/CGraphWnd.h"
#include "ui/graph/CPlotWnd.h"

namespace sonalyx::ui {

CGraphPlayer::CGraphPlayer(CGraphCalcApp& app, CPlotWnd& plot, QObject* parent)
    : QObject(parent), m_app(app), m_plot(plot) {
  m_engine.CreateInstance();
}

void CGraphPlayer::run(PlaybackCommand command) {
  const SettingsStore& store = m_app.settings();
  GraphPlayback playback(m_app.dataSets(), store, [](const std::string& text) { return Translate(text); });
  const PlaybackAction action = playback.run(command, m_plot.graph()->cursorIndex());
  OutputSequencer& sequencer = OutputSequencer::instance();
  if (action.resetEngine) {
    // Esc silences everything at once: the graph, an earcon, the voice.
    m_engine.Reset();
    sequencer.stopAll();
  }
  if (action.sweep || action.pointTone) {
    loadEngine(m_engine, engineSource(m_app.dataSets(), store), store);
    if (action.sweep) {
      const SweepRequest& s = *action.sweep;
      m_engine.Play(s.stereo, s.ticks, s.reverse, s.segment, s.start, s.count);
    } else {
      m_engine.PlayPoint(*action.pointTone, action.stereo);
    }
  }
  m_plot.graph()->setCursorIndex(action.cursor);
  if (!action.speech.empty()) {
    sequencer.leadSpeech(action.speechDelayMs);
    voice::Speak(SpeechKind::Content, QString::fromStdString(action.speech));
  }
  if (action.focusGraph && m_plot.isVisible()) m_plot.graph()->takeFocusQuietly();
}

void CGraphPlayer::playSet(std::size_t slot, const QString& speech) {
  const SettingsStore& store = m_app.settings();
  const DataSet& set = m_app.dataSets()[slot];
  if (!set.hasData()) return;
  loadEngine(m_engine, set, store);
  m_engine.Play(!store.GetIsMono(), store.GetPlayTicks(), false, false, 0, 0);
  if (speech.isEmpty()) return;
  OutputSequencer::instance().leadSpeech(1000.0 * store.GetPlayTime());
  voice::Speak(SpeechKind::Content, speech);
}

void CGraphPlayer::writeWaveFile(QWidget* dialogParent) {
  const SettingsStore& store = m_app.settings();
  const DataSet& source = engineSource(m_app.dataSets(), store);
  const QString caption = Translate(kWaveFileErrorCaption);
  if (!source.hasData()) {
    QMessageBox::critical(dialogParent, caption, Translate(kNothingToSaveText));
    return;
  }
  loadEngine(m_engine, source, store);
  // A new file may be named: the export is for a file the user makes.
  const QString chosen = QFileDialog::getSaveFileName(
      dialogParent, Translate("Write Wave File"), QString(),
      Translate(kWaveFileFilter).replace(QStringLiteral("*.wav"), QString::fromUtf8(kWaveFilePattern)));
  if (chosen.isEmpty()) return;
  const std::string path = applyWavExtension(chosen.toStdString());
  // Refused here too, so that the refusal is in the user's language.
  if (!playTimeAllowed(store.GetPlayTime())) {
    QMessageBox::critical(
        dialogParent, caption,
        QString::fromStdString(playTimeLimitText([](const std::string& text) { return Translate(text); })));
    return;
  }
  m_engine.WriteWaveToFile(path, !store.GetIsMono(), store.GetPlayTicks());
  if (!m_engine.lastWriteError().empty()) {
    // A file error's text is its English key.
    QMessageBox::critical(dialogParent, caption,
                          Translate(QString::fromStdString(m_engine.lastWriteError())));
    return;
  }
  voice::Speak(
      SpeechKind::Content,
      Translate("Wave file written: %s.").replace(QStringLiteral("%s"), QString::fromStdString(path)));
}

}  // namespace sonalyx::ui
