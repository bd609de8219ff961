#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <vector>

#include "core/files/DataSetTextError.h"
#include "core/math/DataPoint.h"
#include "core/math/DataSet.h"
#include "core/speech/TranslationMarker.h"

namespace sonalyx {

// The line end of text files on this platform; data-set files are written with it.
#ifdef _WIN32
inline constexpr char kTextLineEnd[] = "\r\n";
#else
inline constexpr char kTextLineEnd[] = "\n";
#endif

// The one entry of the open and save dialogs' file-type list.
inline constexpr char kDataSetFileFilter[] = SLX_TR("SLX Data Files (*.set)");
inline constexpr char kDataSetFilePattern[] = "*.set";

// One line per point, in the set's order: x left-justified and y right-justified,
// each in 10 characters with at most 10 significant digits, one space between.
void writeDataSet(std::ostream& out, const DataSet& set);

// One point per line, in file order: two numbers separated by blanks, tabs or commas
// ("1.5 2", "1.5<TAB>2", "1.5, 2"), as files, spreadsheets and the clipboard write
// them; "Error" and "Infinity" read back as the writer meant them. Blank lines are
// skipped. LF and CR LF line ends are both accepted; a last line without a line end
// still counts. Any other line throws DataSetTextError with its number, and text
// without a single point throws it too: nothing is half loaded.
std::vector<DataPoint> readDataSet(std::istream& in);
std::vector<DataPoint> readDataSetText(const std::string& text);

// Appends ".set" unless the name's last three characters are "set" in any case, so
// "graph.SET" and "myreset" stay as they are and "points.txt" becomes "points.txt.set".
std::string applySetExtension(const std::string& chosenName);

// Writes the set to the chosen name after the extension rule and returns the name
// written. The file is replaced in one step: on failure no partial file is left and
// an existing file is untouched. Throws FileError.
std::string saveDataSetFile(const std::string& chosenName, const DataSet& set);

// Reads a data-set file whatever its extension. Throws FileError when it cannot be
// opened or read (a folder cannot), DataSetTextError when it holds no table.
std::vector<DataPoint> readDataSetFile(const std::string& path);

}  // namespace sonalyx
