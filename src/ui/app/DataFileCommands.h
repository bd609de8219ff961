#pragma once

class QWidget;

namespace sonalyx::ui {

class CGraphCalcApp;
class CDataPage;

// The "&File" menu's data-set commands. Loading and pasting always fill data set
// 1 (its page brings the change to the front and can undo it); saving and copying
// take the set being played. A failure is shown in a message box that is read
// out, and changes nothing.
namespace files {

void OpenDataSet(QWidget* parent, CDataPage& data1);
void SaveDataSet(QWidget* parent, const CGraphCalcApp& app);
void CopyDataSet(const CGraphCalcApp& app);
void PasteDataSet(CDataPage& data1);

}  // namespace files

}  // namespace sonalyx::ui
