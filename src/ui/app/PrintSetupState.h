#pragma once

#include <string>
#include <vector>

namespace sonalyx::ui {

// What the print setup keeps for the whole run: the installed printers, and the
// choices of the last print, offered again the next time the dialog opens.
struct PrintSetupState {
  std::vector<std::string> printerNames;

  std::string printer;
  bool toFile = false;
  std::string fileName;
  std::string fontFamily;
  int fontPoints = 10;
  std::string width = "6";
  std::string height = "8";
  bool landscape = false;
  std::string copies = "1";
  std::string title;
};

}  // namespace sonalyx::ui
