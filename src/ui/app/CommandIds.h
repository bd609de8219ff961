#pragma once

// The command identifiers of the menu bar and the hot keys. The numbers are the
// program's own command numbers and stay as they are: pages, tests and the menu
// translation refer to commands by them.
namespace sonalyx::ui::cmd {

// Frame commands.
inline constexpr int kLarger = 32771;
inline constexpr int kSmaller = 32772;
inline constexpr int kShowGraph = 32773;
inline constexpr int kHideGraph = 32774;
inline constexpr int kPrintGraph = 32775;
inline constexpr int kPasteData = 32776;
inline constexpr int kCopyData = 32777;
inline constexpr int kLoadConstants = 32778;
inline constexpr int kSaveConstants = 32779;
inline constexpr int kRestoreDefaults = 32780;
inline constexpr int kCalculator = 32781;
inline constexpr int kEvaluator = 32782;
inline constexpr int kDataSet1 = 32783;
inline constexpr int kDataSet2 = 32784;
inline constexpr int kMatrices = 32785;
inline constexpr int kPlotSource = 32786;
inline constexpr int kPlotCalculus = 32787;
inline constexpr int kPlotAxes = 32788;
inline constexpr int kPlotFrame = 32789;
inline constexpr int kPlotRange = 32790;
inline constexpr int kSpeech = 32791;
inline constexpr int kWaveVolume = 32792;
inline constexpr int kWavePlayTime = 32793;
inline constexpr int kWaveFrequency = 32794;
inline constexpr int kWaveType = 32795;
inline constexpr int kAutoReturn = 32796;
inline constexpr int kSelfVoicing = 32797;
inline constexpr int kEvaluateExpression1 = 32798;
inline constexpr int kPlayDataSet = 32799;
inline constexpr int kPlayWithTicks = 32800;
inline constexpr int kWriteWaveFile = 32801;
inline constexpr int kFindIntersection = 32802;
inline constexpr int kFindZeros = 32803;
inline constexpr int kUserManual = 32804;
inline constexpr int kCalculatorHotkeys = 32805;
inline constexpr int kGraphingHotkeys = 32806;
inline constexpr int kNavigationalHotkeys = 32807;
inline constexpr int kTutorialIndex = 32808;
inline constexpr int kTutorialCalculator = 32809;
inline constexpr int kTutorialEvaluator = 32810;
inline constexpr int kTutorialMatrix = 32811;
inline constexpr int kTutorialSpeech = 32812;
inline constexpr int kTutorialGraphing = 32813;
inline constexpr int kTutorialPrinting = 32814;
inline constexpr int kOnlineHelp = 32815;
inline constexpr int kStopPlaying = 32817;
inline constexpr int kNextPoint = 32818;
inline constexpr int kPreviousPoint = 32819;
inline constexpr int kNextMaximum = 32820;
inline constexpr int kNextMinimum = 32821;
inline constexpr int kFirstPoint = 32822;
inline constexpr int kLastPoint = 32823;
inline constexpr int kCopyMatrix = 32824;
inline constexpr int kPreviousZero = 32825;

// Commands that the framework of the original platform numbered.
inline constexpr int kFileNew = 57600;
inline constexpr int kFileOpen = 57601;
inline constexpr int kCloseChild = 57602;
inline constexpr int kFileSave = 57603;
inline constexpr int kAppAbout = 57664;
inline constexpr int kAppExit = 57665;

}  // namespace sonalyx::ui::cmd
